// Photographs of an item: captured, kept, shown and deleted, with cameras that come and go.
#include "platform/camera/Bitmap.h"
#include "platform/camera/SimulatedCamera.h"
#include "repairs/CRO103.h"
#include "repairs/ItemDesk.h"
#include "support/ScreenChecks.h"

using velcro::camera::SimulatedCamera;
using velcro::test::Desk;

namespace {

constexpr auto title = "Customer Repair Orders: Item Camera Capture";

class ImagesTest : public ItemDesk
{
protected:
    ImagesTest() {
        velcro::camera::makeCamera = [this] {
            auto made = std::make_unique<SimulatedCamera>(cameras);
            made->holdElsewhere(held);
            camera = made.get();
            return made;
        };
    }
    ~ImagesTest() override { velcro::camera::makeCamera = {}; }

    void inImages(const std::function<void(TfrmCRO103&)>& steps) {
        TfrmCRO103 form({"900001", "1"}, "SN1", "A watch with a rather long description");
        user.workIn(form, [&] {
            steps(form);
            user.press(Qt::Key_Escape);
        });
    }
    static QImage still(TfrmCRO103& form) {
        return form.findChild<velcro::ui::PictureBox*>("cxImage1")->image();
    }
    static void keep(const char* number, const QString& data = "0x") {
        Desk::onSuite(QStringLiteral("INSERT INTO CRORepItmImages ([CO], [Branch], [CRONo], "
                                     "[ItemNo], [ImageID], [ImageData]) VALUES "
                                     "('01', '100', '900001', '1', '%1', %2)")
                          .arg(number, data));
    }
    QString numbers() const { return below("CRORepItmImages", "[ImageID]"); }

    QStringList cameras{"Counter camera"};
    int held = -1;
    SimulatedCamera* camera = nullptr;
};

} // namespace

TEST_F(ImagesTest, whatTheCameraSeesIsKeptAsABitmapAndShownAgain) {
    inImages([&](TfrmCRO103& form) {
        EXPECT_EQ(namelessControls(form).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(form).join("\n").toStdString(), "");
        EXPECT_TRUE(camera->isActive());
        EXPECT_TRUE(QTest::qWaitFor([&] { return camera->pictureNumber() > 1; }));
        user.press(Qt::Key_Space);
        const QImage first = still(form);
        EXPECT_EQ(numbers(), "") << "nothing is kept yet";
        user.press(Qt::Key_F10);
        const int seen = camera->pictureNumber();
        EXPECT_TRUE(QTest::qWaitFor([&] { return camera->pictureNumber() > seen; }));
        user.press(Qt::Key_Space);
        const QImage second = still(form);
        EXPECT_NE(first, second);
        user.press(Qt::Key_F10);
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.column("Image Index"), QStringList({"1", "2", "3"}));
        keepPicture(form, "item-images");
        form.grid().first();
        user.press(Qt::Key_Return);
        EXPECT_EQ(still(form).convertToFormat(QImage::Format_RGB32), first);
    });
    EXPECT_EQ(below("CRORepItmImages", "[ProcessID]"), "0|0|0");
    const auto bytes = QByteArray::fromHex(
        Desk::suite("SELECT CONVERT(varchar(max), CONVERT(varbinary(max), [ImageData]), 2) "
                    "FROM CRORepItmImages WHERE [CRONo] = '900001' AND [ImageID] = '1'")
            .toLatin1());
    EXPECT_TRUE(bytes.startsWith("BM"));
    EXPECT_EQ(bytes.mid(28, 1), QByteArray(1, 24)) << "bits of a point";
    EXPECT_EQ(bytes.size(), 54 + 640 * 480 * 3);
}

TEST_F(ImagesTest, aPictureOfTwentyMegabytesComesBackWhole) {
    QImage large(3000, 2400, QImage::Format_RGB32);
    for (int y = 0; y < large.height(); ++y) {
        for (int x = 0; x < large.width(); ++x) {
            large.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 251));
        }
    }
    inImages([&](TfrmCRO103& form) {
        camera->showInstead(large);
        user.press(Qt::Key_Space);
        user.press(Qt::Key_F10);
        camera->showInstead(SimulatedCamera::pictureOf(0, 0));
        user.press(Qt::Key_Space);
        user.press(Qt::Key_Return);
        EXPECT_EQ(still(form).convertToFormat(QImage::Format_RGB32), large);
    });
}

TEST_F(ImagesTest, aDeletedOneLeavesNoGap) {
    for (const char* number : {"1", "2", "3", "10"}) {
        keep(number);
    }
    inImages([&](TfrmCRO103& form) {
        form.grid().locate("ImageID", "2");
        user.expectForm("System Prompt", [&] { user.press(Qt::Key_N); });
        user.press(Qt::Key_Delete);
        EXPECT_EQ(numbers(), "1|2|3|10");
        form.grid().locate("ImageID", "2");
        user.expectForm("System Prompt", [&] {
            EXPECT_EQ(user.find<QPlainTextEdit>({}).toPlainText().trimmed(), "Delete Image #ID: 2");
            user.press(Qt::Key_Y);
        });
        user.press(Qt::Key_Delete);
        EXPECT_EQ(numbers(), "1|2|3");
        user.press(Qt::Key_F10);
        EXPECT_EQ(numbers(), "1|2|3|4") << "without bytes, since nothing was captured";
    });
    EXPECT_EQ(below("CRORepItmImages", "DATALENGTH([ImageData])"), "0|0|0|0");
}

TEST_F(ImagesTest, camerasComeAndGoAndTheScreenGoesOn) {
    const struct
    {
        const char* what;
        QStringList cameras;
        int held;
        std::string said;
    } seats[] = {
        {"none", {}, -1, "No camera is attached"},
        {"in use", {"Cam"}, 0, "The camera Cam gives no picture: it is in use by another program"},
    };
    keep("1");
    for (const auto& seat : seats) {
        cameras = seat.cameras;
        held = seat.held;
        inImages([&](TfrmCRO103& form) {
            EXPECT_EQ(user.message().toStdString(), seat.said);
            EXPECT_EQ(user.column("Image Index"), QStringList("1"));
            user.press(Qt::Key_Space);
            EXPECT_EQ(user.message(), "The camera gives no picture") << seat.what;
            EXPECT_FALSE(form.findChild<QWidget*>("btnSwitch")->isVisible());
        });
    }
    cameras = {"First", "Second"};
    held = -1;
    inImages([&](TfrmCRO103& form) {
        camera->showInstead({});
        user.press(Qt::Key_Space);
        EXPECT_EQ(user.message(), "The camera gives no picture") << "a frame of no size";
        user.press(Qt::Key_F6);
        camera->showInstead(SimulatedCamera::pictureOf(1, 0));
        user.press(Qt::Key_Space);
        EXPECT_EQ(still(form), SimulatedCamera::pictureOf(1, 0));
        camera->unplug(1);
        EXPECT_EQ(user.message(), "") << "the other one comes on";
        EXPECT_TRUE(camera->isActive());
        camera->unplug(0);
        EXPECT_EQ(user.message(), "The camera First gives no picture: the camera was unplugged");
        camera->plugIn("Third");
        EXPECT_TRUE(camera->isActive());
    });
}

TEST_F(ImagesTest, bytesThatAreNoPictureLeaveTheStillAndSaySo) {
    keep("1", "0x424D00112233");
    keep("2");
    inImages([&](TfrmCRO103& form) {
        user.press(Qt::Key_Space);
        const QImage before = still(form);
        form.grid().first();
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.message(), "Picture 1 cannot be shown: its bytes are damaged");
        EXPECT_EQ(still(form), before);
        form.grid().last();
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.message(), "");
        EXPECT_EQ(still(form), before);
        Desk::onSuite("DELETE FROM CRORepItmImages");
        user.press(Qt::Key_Return); // gone meanwhile
        EXPECT_EQ(still(form), before);
        Desk::onSuite("DROP TABLE CRORepItmImages");
        user.press(Qt::Key_Return);
        ASSERT_EQ(desk.shown.size(), 1);
        EXPECT_TRUE(desk.shown[0].startsWith("103-002|SQL Error on Table: CRORepItmImages :-\r"));
    });
}

TEST_F(ImagesTest, theListLeadsHere) {
    Desk::onSuite("INSERT INTO CRORepItems ([CO], [Branch], [CRONo], [ItemNo], [SerialNo]) VALUES "
                  "('01', '100', '900001', '1', '" +
                  serial(7) + "')");
    showList([&] {
        user.expectForm(title, [&] {
            EXPECT_EQ(user.sees("edCRONo") + '/' + user.sees("edItemNo") + '/' +
                          user.sees("edSerialNo") + '/' + user.sees("edDescription1"),
                      "900001/1/" + serial(7) + '/' + stock("T1.Description1", serial(7)));
            user.press(Qt::Key_Escape);
            EXPECT_FALSE(camera->isActive());
        });
        user.press(Qt::Key_F4);
    });
}
