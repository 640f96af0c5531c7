#include "platform/camera/Bitmap.h"

#include <QBuffer>
#include <gtest/gtest.h>

using namespace velcro::camera;

namespace {

QByteArray written(const QImage& picture, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, format);
    return bytes;
}

} // namespace

TEST(BitmapTest, twentyMegabytesGoThereAndBackWhole) {
    QImage picture(3000, 2400, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 251));
        }
    }
    const auto bytes = bitmapBytes(picture);
    EXPECT_GT(bytes.size(), 20'000'000);
    EXPECT_EQ(readBitmap(bytes), picture);
    EXPECT_TRUE(bitmapBytes({}).isEmpty());
}

TEST(BitmapTest, everyBitmapIsReadAndNothingElse) {
    const QImage grey =
        QImage(5, 3, QImage::Format_Grayscale8).convertToFormat(QImage::Format_Indexed8);
    EXPECT_EQ(readBitmap(written(grey, "bmp")).size(), QSize(5, 3)) << "8 bits";
    const auto good = bitmapBytes(QImage(40, 30, QImage::Format_RGB32));
    const struct
    {
        const char* what;
        QByteArray bytes;
    } bad[] = {
        {"nothing", {}},
        {"another format", written(QImage(4, 4, QImage::Format_RGB32), "png")},
        {"cut in its header", good.left(20)},
        {"too large to be a photograph", QByteArray(good).replace(18, 4, "\x00\x00\x01\x00", 4)},
        {"of no size", QByteArray(good).replace(18, 4, QByteArray(4, 0))},
        {"one point wide and very high", bitmapBytes(QImage(1, 100'000, QImage::Format_RGB32))},
    };
    for (const auto& [what, bytes] : bad) {
        EXPECT_THROW(readBitmap(bytes), BitmapError) << what;
    }
}
