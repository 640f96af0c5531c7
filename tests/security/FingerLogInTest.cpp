// Signing in by finger on the screens of both families of readers.
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "platform/fingerprint/PluggedReader.h"
#include "platform/fingerprint/SimulatedReader.h"
#include "security/CMN999C.h"
#include "security/CMN999D.h"
#include "security/SysBiometrics.h"
#include "security/SysLogInForms.h"
#include "support/Desk.h"
#include "support/FingerPicture.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "support/VirtualFingerReader.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <thread>

using velcro::fingerprint::Family;
using velcro::fingerprint::FingerprintReader;
using velcro::fingerprint::PluggedReader;
using velcro::fingerprint::readerFactory;
using velcro::fingerprint::SimulatedReader;
using velcro::test::Desk;
using velcro::test::fingerPicture;
using velcro::test::VirtualFingerReader;

namespace {

const QString counterFinger = QStringLiteral("COUNTER1RIGHTINDEX");

class FingerLogInTest : public testing::TestWithParam<const char*>
{
protected:
    void SetUp() override {
        cData->ConnectDB_Common();
        gEXETitle = QStringLiteral("Velmara Retail Software: Customer Repair Orders");
        gUserCode.clear();
        SimulatedReader::plugged = true;
        readerFactory = [](Family) { return std::make_unique<SimulatedReader>(); };
    }
    void TearDown() override { readerFactory = {}; }

    /// Opens the seat's screen by its device code, works in it, and tells how it ended.
    QString screen(const ScriptedUser::Step& steps) {
        user.expectForm(gEXETitle, steps);
        return isFirst() ? slif_DP_Biometric_Login_Form() : slif_ZKT_Biometric_Login_Form();
    }
    /// Lays a finger on, and goes on when it was dealt with.
    static void lay(const QString& finger, int quality = 0) {
        SimulatedReader::touch(finger, {}, quality);
        QApplication::processEvents();
        QApplication::processEvents();
    }
    /// What the screen says after that finger; it is cancelled then.
    QString saysAfter(const QString& finger) {
        QString text;
        EXPECT_EQ(screen([&] {
                      lay(finger);
                      text = user.message();
                      user.press(Qt::Key_Escape);
                  }),
                  "CANCEL");
        return text;
    }
    void newTemplate(const QString& value) {
        Desk::onSuite("DELETE FROM " + table());
        Desk::onSuite(
            "INSERT INTO " + table() +
            (isFirst() ? " (UserCode, FPData) VALUES ('COUNTER1', "
                       : " (BioID, FPData) VALUES (1, ") +
            (isFirst() || value == "NULL" ? value : "CAST(" + value + " AS varbinary(max))") + ")");
    }
    /// DigitalPersona's, or ZKTeco's.
    static bool isFirst() { return GetParam() == std::string("01"); }
    static QString table() { return isFirst() ? "SYSUserBiometrics" : "SYSBiometricDetl"; }

    Desk desk{Desk::Start::Configured};
    ScriptedUser user;
};

INSTANTIATE_TEST_SUITE_P(Families, FingerLogInTest, testing::Values("01", "02"));

} // namespace

TEST_P(FingerLogInTest, theRightFingerSignsItsUserIn) {
    const QString ending = screen([&] {
        auto& form = user.form();
        EXPECT_TRUE(namelessControls(form).isEmpty())
            << namelessControls(form).join('\n').toStdString();
        EXPECT_TRUE(clippedControls(form).isEmpty())
            << clippedControls(form).join('\n').toStdString();
        EXPECT_EQ(user.sees("lblPlace"), "Place your Finger on the Device");
        EXPECT_EQ(user.sees("lblManual"), "Cancel to Log-in Manually");
        EXPECT_EQ(user.sees("lblSensorSN"), isFirst() ? "" : "Device Serial No: SIM-0001");
        EXPECT_EQ(user.message(), isFirst() ? "" : "Sensor connected");
        keepPicture(form, isFirst() ? "finger-01" : "finger-02");
        lay("NOBODYSTHUMB");
        EXPECT_EQ(user.message(), "No biometric information found on Database");
        SimulatedReader::touch("NOBODYSTHUMB", fingerPicture(1, 0));
        QTest::qWait(50);
        keepPicture(form, isFirst() ? "finger-01-unknown" : "finger-02-unknown");
        lay(counterFinger);
    });
    EXPECT_EQ(ending, "OK");
    EXPECT_EQ(gUserCode, "COUNTER1");
    EXPECT_EQ(gSessionKEY, "01-100-COUNTER1");
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_P(FingerLogInTest, cancellingLeadsToTheStandardScreenAndThatEndsTheProgram) {
    gBDActive = QStringLiteral("Y");
    gBDDeviceCode = QString::fromLatin1(GetParam());
    user.expectForm(gEXETitle, [&] {
        EXPECT_EQ(user.find<QComboBox>("cmbDatabase").count(), 5);
        user.click("btnAbort");
    });
    user.expectForm(gEXETitle, [&] {
        EXPECT_EQ(user.focus(), "edUserCode");
        user.click("btnCancel");
    });
    EXPECT_FALSE(slif_Show_LogInForm());
}

TEST_P(FingerLogInTest, whatTheTablesLackIsTold) {
    Desk::onSuite("UPDATE SYSUser SET BioID = 99, UserCode = 'GONE' WHERE UserCode = 'COUNTER1'");
    EXPECT_EQ(saysAfter(counterFinger), isFirst() ? "User Code NOT FOUND on Database (COUNTER1)"
                                                  : "User Code NOT FOUND on Database ()");
    Desk::onSuite("DELETE FROM " + table());
    EXPECT_EQ(saysAfter(counterFinger),
              isFirst() ? "NO Biometric Data FOUND" : "No biometric information found on Database");
    Desk::onSuite("DROP TABLE " + table());
    saysAfter(counterFinger);
    ASSERT_FALSE(desk.shown.isEmpty());
    EXPECT_TRUE(desk.shown.last().startsWith(
        isFirst() ? "SBM-001|SQL Error on Table: SYSUserBiometrics\r"
                  : "912M-004|SQL Error - Writing to Table: SYSUserBiometrics\r"))
        << desk.shown.last().toStdString();
    EXPECT_EQ(screen([&] {
                  Desk::onCommon("DELETE FROM vcSettings");
                  lay(counterFinger);
                  EXPECT_EQ(user.message(), "Selected Database has NOT Settings Defined");
                  user.press(Qt::Key_Escape);
              }),
              "CANCEL");
    EXPECT_EQ(saysAfter(counterFinger), "Select the Log-In Company");
}

TEST_P(FingerLogInTest, theLogInsOwnChecksApply) {
    const struct
    {
        const char* change;
        const char* box;
        const char* bar; // of the second family
    } cases[] = {
        {"Status = 'I'", "box|The User as marked as INACTIVE", ""},
        {"Status = 'A', UserPswd = 'COUNTER '", "box|Password is INVALID", "Password INVALID"},
        {"UserPswd = 'COUNTER', UserGroup = 'NONE'", "", "Access DENIED to this Module"},
    };
    for (const auto& [change, box, bar] : cases) {
        SCOPED_TRACE(change);
        Desk::onSuite(QStringLiteral("UPDATE SYSUser SET %1 WHERE UserCode = 'COUNTER1'")
                          .arg(QLatin1String(change)));
        desk.shown.clear();
        const QString message = saysAfter(counterFinger);
        QStringList shown;
        shown << QString::fromLatin1(box);
        if (isFirst() && *bar != 0) {
            shown << QStringLiteral("box|System Log-In ERROR\r\r") + bar;
        }
        shown.removeAll(QString());
        EXPECT_EQ(desk.shown, shown);
        if (!isFirst()) {
            EXPECT_EQ(message, bar);
        }
    }
    Desk::onSuite("DROP TABLE SYSUser");
    desk.shown.clear();
    saysAfter(counterFinger);
    ASSERT_FALSE(desk.shown.isEmpty());
    EXPECT_TRUE(desk.shown.first().startsWith("SBM-003|SQL Error on Table: SysUser :-\r"))
        << desk.shown.first().toStdString();
}

TEST_P(FingerLogInTest, aPasswordThatMustNotStayIsChangedFirst) {
    for (const char* change :
         {"UserPswd = 'XQZ741'", "UserGroup = 'EXPIR', PswdDate = '2020/01/01',"
                                 " UserPswd = 'COUNTER'"}) {
        SCOPED_TRACE(change);
        Desk::onSuite(QStringLiteral("UPDATE SYSUser SET %1 WHERE UserCode = 'COUNTER1'")
                          .arg(QLatin1String(change)));
        EXPECT_EQ(screen([&] {
                      user.expectForm("Change System Password", [&] {
                          EXPECT_EQ(user.sees("edUser"), "COUNTER1 - Mirela Dostavan");
                          user.click("btnCancel");
                      });
                      lay(counterFinger);
                      user.expectForm("Change System Password", [&] {
                          lay(counterFinger); // another finger meanwhile
                          user.typeInto("edPswd1", "FRESH1");
                          user.typeInto("edPswd2", "FRESH1");
                          user.press(Qt::Key_Return);
                      });
                      user.expectForm("System Message", [&] { user.press(Qt::Key_Return); });
                      lay(counterFinger);
                  }),
                  "OK");
        EXPECT_EQ(Desk::suite("SELECT UserPswd FROM SYSUser WHERE UserCode = 'COUNTER1'"),
                  "FRESH1");
    }
}

TEST_P(FingerLogInTest, templatesOfAllKindsLeaveTheScreenUp) {
    const QString longText = "'" + QString(3000, '7') + "'";
    const struct
    {
        QString value, first, second; // what is shown: by dialog, or in the second family's bar
    } cases[] = {
        {"NULL", "", "No biometric information found on Database"},
        {"''", "", "No biometric information found on Database"},
        {"'XYZ'", "SBM-002|TemplateError : The template is of another reader.",
         "No biometric information found on Database"},
        {longText, "SBM-002|RangeFault : Range check error", "912M-004"},
        {"'SIM:-'", "SBM-002|RangeFault : Range check error", "912M-004"},
        {"'SIM:COUNTER1'", "", "No biometric information found on Database"},
    };
    for (const auto& [value, first, second] : cases) {
        SCOPED_TRACE(value.left(20).toStdString());
        newTemplate(value);
        desk.shown.clear();
        if (isFirst() && (value == "NULL" || value == "''")) {
            EXPECT_EQ(screen([&] {
                          user.expectForm("System  Information Message",
                                          [&] { user.press(Qt::Key_Escape); });
                          lay(counterFinger);
                          user.press(Qt::Key_Escape);
                      }),
                      "CANCEL");
            continue;
        }
        const QString message = saysAfter(counterFinger);
        if (isFirst()) {
            EXPECT_EQ(desk.shown.join('\n'), first);
        } else if (second.startsWith("912M")) {
            EXPECT_EQ(desk.shown.join('\n'),
                      "912M-004|SQL Error - Writing to Table: SYSUserBiometrics\r"
                      "Range check error");
        } else {
            EXPECT_EQ(message, second);
        }
    }
}

TEST_P(FingerLogInTest, aReaderThatIsNotThereOrGoesIsTold) {
    SimulatedReader::plugged = false;
    screen([&] {
        EXPECT_EQ(user.message(), isFirst() ? "Fingerprint reader NOT FOUND"
                                            : "Initialializing Biometric Sensor FAILED");
        user.press(Qt::Key_Escape);
    });
    SimulatedReader::plugged = true;
    screen([&] {
        SimulatedReader::unplug();
        QApplication::processEvents();
        EXPECT_EQ(user.message(), "Fingerprint reader LOST: The reader was unplugged.");
        user.press(Qt::Key_Escape);
    });
}

TEST_P(FingerLogInTest, twoFingersOneRightAfterTheOtherSignInOnce) {
    EXPECT_EQ(screen([&] {
                  SimulatedReader::touch(counterFinger);
                  SimulatedReader::touch("MANAGERRIGHTINDEX");
                  QApplication::processEvents();
              }),
              "OK");
    EXPECT_EQ(gUserCode, "COUNTER1");
}

TEST_P(FingerLogInTest, aFingerCanBeLaidOnByAFile) {
    const QString file = desk.workingFolder() + "finger";
    readerFactory = [file](Family) { return std::make_unique<SimulatedReader>(file); };
    EXPECT_EQ(screen([&] {
                  QFile finger(file);
                  ASSERT_TRUE(finger.open(QIODevice::WriteOnly));
                  finger.write("MANAGER-RIGHT-INDEX\n");
                  finger.close();
                  EXPECT_TRUE(QTest::qWaitFor([&] { return !user.form().isVisible(); }));
              }),
              "OK");
    EXPECT_EQ(gUserCode, "MANAGER");
}

namespace {

/// As slow as a vendor's component.
class SlowReader : public SimulatedReader
{
public:
    velcro::fingerprint::Comparison compare(const velcro::fingerprint::Print& print,
                                            const QByteArray& stored) override {
        ++compared;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return SimulatedReader::compare(print, stored);
    }
    inline static int compared = 0;
};

} // namespace

TEST_P(FingerLogInTest, aLongComparisonShowsHowFarItIsAndCanBeGivenUp) {
    Desk::onSuite("INSERT INTO " + table() +
                  (isFirst() ? " (UserCode, FPData) SELECT 'COUNTER2', 'SIM:OTHER'"
                             : " (BioID, FPData) SELECT 3, CAST('SIM:OTHER' AS varbinary(max))") +
                  " FROM STKMaster A, SYSUser B");
    readerFactory = [](Family) { return std::make_unique<SlowReader>(); };
    SlowReader::compared = 0;
    QTimer escape;
    QObject::connect(&escape, &QTimer::timeout, [&] {
        auto* form = QApplication::activeModalWidget();
        if (form != nullptr && form->windowTitle() == "Comparing fingerprints") {
            keepPicture(*form, "finger-progress");
            QTest::keyClick(form, Qt::Key_Escape);
        }
    });
    screen([&] {
        escape.start(20);
        lay("NOBODYSTHUMB");
        EXPECT_EQ(user.message(), "The comparison was cancelled");
        user.press(Qt::Key_Escape);
    });
    EXPECT_GT(SlowReader::compared, 100) << "half a second goes by before anything is shown";
    EXPECT_LT(SlowReader::compared, 5000);
}

TEST_P(FingerLogInTest, theSeatsOwnReaderTakesTheSameRoad) {
    PluggedReader::helperProgram = QStringLiteral(VELCRO_FINGER);
    VirtualFingerReader device;
    newTemplate("'" + QString::fromLatin1(device.enrol(1)) + "'");
    readerFactory = velcro::fingerprint::pluggedReader;
    EXPECT_EQ(
        screen([&] {
            EXPECT_EQ(user.sees("lblSensorSN"), isFirst() ? "" : "Device Serial No: virtual_image");
            QTest::qWait(400);
            const auto layTill = [&](const QImage& image, const QString& said) {
                device.lay(image);
                EXPECT_TRUE(QTest::qWaitFor([&] { return user.message().contains(said); }, 20'000))
                    << user.message().toStdString();
                QTest::qWait(400);
            };
            layTill(velcro::test::emptyPicture(),
                    isFirst() ? "Fingerprint could not be read, please try again"
                              : " Fingerprint quality not good, quality=0");
            layTill(fingerPicture(2, 1), "No biometric information found on Database");
            keepPicture(user.form(), isFirst() ? "finger-01-own" : "finger-02-own");
            device.lay(fingerPicture(1, 6));
            EXPECT_TRUE(QTest::qWaitFor([&] { return !user.form().isVisible(); }, 20'000));
        }),
        "OK");
    EXPECT_EQ(gUserCode, "COUNTER1");
}

namespace {

/// One that goes on enrolling whatever it is told.
struct EnrollingReader : SimulatedReader
{
    EnrollingReader() { timesToEnroll = 3; }
    void cancelEnroll() override { ++cancelled; }
    inline static int cancelled = 0;
};

} // namespace

TEST_P(FingerLogInTest, theQualityOfAScanIsToldInTheFamilysWords) {
    readerFactory = [](Family) { return std::make_unique<EnrollingReader>(); };
    EnrollingReader::cancelled = 0;
    const struct
    {
        int quality;
        const char* text;
    } scans[] = {{1, " Fingerprint quality not good, quality=12"},
                 {-1, " Fingerprint quality not good, Suspicious fingerprints, quality=12"}};
    screen([&] {
        for (const auto& [quality, text] : scans) {
            lay("", quality);
            EXPECT_EQ(user.message(),
                      isFirst() ? QStringLiteral("Fingerprint could not be read, please try again")
                                : "Register status: still press finger 3 times!" + QString(text));
        }
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(EnrollingReader::cancelled, isFirst() ? 0 : 1);
}

TEST_P(FingerLogInTest, aTemplatesTextCountsFromZero) {
    EXPECT_EQ(fpStringToByte("0Az"), QByteArray("\x00\x11\x4a", 3));
    EXPECT_EQ(fpStringToByte(QString(2513, '1')).size(), 2513);
    EXPECT_THROW(fpStringToByte(QString(2514, '1')), RangeFault);
    EXPECT_THROW(fpStringToByte("0/0"), RangeFault);
}
