// Pictures of fingers that nobody has: ridges that run around a core, with endings and forks in
// places that are the finger's own.
#pragma once

#include <QImage>

namespace velcro::test {

/// Grey, 256 by 256 at the resolution of a reader. Impressions of one finger lie a little shifted
/// and turned, and each has its own noise.
QImage fingerPicture(unsigned finger, unsigned impression);
/// What a reader sees that nobody touches.
QImage emptyPicture();

} // namespace velcro::test
