#include "platform/camera/Bitmap.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

namespace velcro::camera {

QByteArray bitmapBytes(const QImage& picture) {
    QByteArray bytes;
    if (!picture.isNull()) {
        QBuffer buffer(&bytes);
        // The writer gives 24 bits to a picture without transparency.
        QImageWriter(&buffer, "bmp").write(picture.convertToFormat(QImage::Format_RGB32));
    }
    return bytes;
}

QImage readBitmap(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "bmp");
    const QSize size = reader.size();
    if (size.width() > largestSide || size.height() > largestSide) {
        throw BitmapError(QStringLiteral("it is %1 by %2 points large")
                              .arg(size.width())
                              .arg(size.height())
                              .toStdString());
    }
    QImage picture = reader.read();
    if (picture.isNull()) {
        throw BitmapError("its bytes are damaged");
    }
    return picture;
}

} // namespace velcro::camera
