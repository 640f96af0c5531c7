// libFuzzer: bytes that a database gives as the picture of an item.
#include "platform/camera/Bitmap.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    try {
        const QImage picture = velcro::camera::readBitmap(bytes);
        // What was read is a picture that can be kept again.
        if (picture.isNull() || velcro::camera::bitmapBytes(picture).isEmpty()) {
            std::abort();
        }
    } catch (const velcro::camera::BitmapError&) {
        return 0; // refused in words
    }
    return 0;
}
