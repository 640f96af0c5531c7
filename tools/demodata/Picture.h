// A small picture as a camera would leave it: a bitmap of an article on a bench.
#pragma once

#include <string>

namespace velcro::demo {

/// The bytes of a 64 x 48 bitmap; each number gives another article.
std::string articlePicture(int number);

} // namespace velcro::demo
