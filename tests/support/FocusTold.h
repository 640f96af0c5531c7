// What a screen reader hears while somebody works.
#pragma once

#include <QStringList>

#include <functional>

namespace velcro::test {

/// The names of what got the focus meanwhile, one after another.
QStringList focusTold(const std::function<void()>& work);

} // namespace velcro::test
