// The seat's own reader, as libfprint's virtual one: enrolled by velcro-enrol, watched by
// velcro-finger.
#include "platform/fingerprint/PluggedReader.h"
#include "support/FingerPicture.h"
#include "support/VirtualFingerReader.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace velcro::fingerprint;
using velcro::test::emptyPicture;
using velcro::test::fingerPicture;
using velcro::test::VirtualFingerReader;

namespace {

class PluggedReaderTest : public testing::Test
{
protected:
    static void SetUpTestSuite() {
        PluggedReader::helperProgram = QStringLiteral(VELCRO_FINGER);
        VirtualFingerReader device;
        first = device.enrol(1);
        second = device.enrol(2);
    }

    bool open(QList<QByteArray> enrolled) {
        templates = std::move(enrolled);
        const bool opened =
            reader.open({.touched = [this] { ++touches; },
                         .captured = [this](const std::shared_ptr<Print>& print) { taken = print; },
                         .featureInfo = [this](int quality) { qualities.append(quality); },
                         .imageReceived = [this](const QImage& image) { picture = image; },
                         .lost = [this](const QString& reason) { lost = reason; },
                         .enrolled = [this] { return templates; }});
        waitFor([] { return false; }, 300); // till the helper has asked the device for a finger
        return opened;
    }
    static bool waitFor(const std::function<bool()>& isSo, int milliseconds = 20'000) {
        QElapsedTimer since;
        for (since.start(); !isSo() && since.elapsed() < milliseconds;) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents,
                                            10);
        }
        return isSo();
    }
    /// Which of the templates the finger matches; -1 none, -2 when the reader took no finger.
    int lay(const QImage& image) {
        taken.reset();
        device.lay(image);
        if (!waitFor([this] { return taken != nullptr; })) {
            return -2;
        }
        waitFor([] { return false; }, 100);
        for (int i = 0; i < templates.size(); ++i) {
            try {
                if (reader.compare(*taken, templates[i]).verified) {
                    return i;
                }
            } catch (const TemplateError&) {
                ++unreadable;
            }
        }
        return -1;
    }

    inline static QByteArray first, second;
    VirtualFingerReader device;
    PluggedReader reader;
    QList<QByteArray> templates;
    std::shared_ptr<Print> taken;
    QList<int> qualities;
    QImage picture;
    QString lost;
    int touches = 0, unreadable = 0;
};

} // namespace

TEST_F(PluggedReaderTest, theRightFingerIsFoundAndAnotherIsNot) {
    ASSERT_TRUE(open({second, first}));
    EXPECT_EQ(reader.serialNumber(), "virtual_image");
    const struct
    {
        unsigned finger, impression;
        int row;
    } fingers[] = {{1, 0, 1}, {1, 5, 1}, {2, 6, 0}, {3, 1, -1}, {2, 7, 0}, {4, 0, -1}, {1, 8, 1}};
    for (const auto& [finger, impression, row] : fingers) {
        EXPECT_EQ(lay(fingerPicture(finger, impression)), row) << finger << " " << impression;
        EXPECT_EQ(picture.size(), QSize(256, 256));
        EXPECT_EQ(qualities.last(), 0);
        EXPECT_GT(reader.lastQuality(), 20);
    }
    EXPECT_EQ(touches, 7);
}

TEST_F(PluggedReaderTest, aPictureWithoutAFingerIsABadScanAndTheNextOneCounts) {
    ASSERT_TRUE(open({first}));
    device.lay(emptyPicture());
    ASSERT_TRUE(waitFor([this] { return !qualities.isEmpty(); }));
    EXPECT_GT(qualities.last(), 0);
    EXPECT_EQ(reader.lastQuality(), 0);
    waitFor([] { return false; }, 300);
    EXPECT_EQ(lay(fingerPicture(1, 3)), 0);
}

TEST_F(PluggedReaderTest, templatesThatCannotBeReadAreToldWhenTheyAreCompared) {
    ASSERT_TRUE(open({"", "SIM:X", first.chopped(40), "line\nbreak", second}));
    EXPECT_EQ(lay(fingerPicture(2, 3)), 4);
    EXPECT_EQ(unreadable, 4);
}

TEST_F(PluggedReaderTest, othersMayBeEnrolledWhileItWaits) {
    ASSERT_TRUE(open({}));
    EXPECT_EQ(lay(fingerPicture(1, 1)), -1);
    templates = {first};
    reader.enrolledChanged();
    waitFor([] { return false; }, 300);
    EXPECT_EQ(lay(fingerPicture(1, 2)), 0);
}

TEST_F(PluggedReaderTest, aReaderThatGoesIsToldAndOneThatIsNotThereDoesNotOpen) {
    ASSERT_TRUE(open({first}));
    device.unplug();
    EXPECT_TRUE(waitFor([this] { return !lost.isEmpty(); }));
    reader.close();
    PluggedReader::helperProgram = QStringLiteral("/nowhere/velcro-finger");
    EXPECT_FALSE(open({first}));
    PluggedReader::helperProgram = QStringLiteral(VELCRO_FINGER);
    qunsetenv("FP_VIRTUAL_IMAGE");
    EXPECT_FALSE(open({first})) << "this machine has a reader of its own";
}
