// Pictures as the suite stores them: the bytes of an ordinary Windows bitmap of 24 bits.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <stdexcept>

namespace velcro::camera {

/// Why bytes are no picture, in words for the user; what() is UTF-8.
class BitmapError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A larger side than this is nobody's photograph, and would take the memory of the seat.
inline constexpr int largestSide = 16384;

/// No bytes for a null picture.
QByteArray bitmapBytes(const QImage& picture);
/// Any bitmap that other programs of the suite store. Throws BitmapError for damaged bytes and for a
/// picture with a side that is too large.
QImage readBitmap(const QByteArray& bytes);

} // namespace velcro::camera
