// Log-in, menu, notices and the way out.
#include "Steps.h"

#include "application/CMN010.h"
#include "application/CMN012.h"
#include "data/Session.h"
#include "platform/fingerprint/SimulatedReader.h"
#include "security/SysLogInForms.h"
#include "support/FingerPicture.h"

#include <QApplication>
#include <QTimer>

#include <utility>

using velcro::fingerprint::SimulatedReader;

namespace {

/// The seat is new: OK makes its till database first, and the screen says so meanwhile.
void pressOKAndWatchTheSweep(Tour& tour) {
    bool swept = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (!swept && tour.message().startsWith(QStringLiteral("Local DB Upgrade in Progress."))) {
            swept = true;
            tour.picture(QStringLiteral("till-upgrade"));
        }
    });
    watch.start(0); // the message is painted once, and the next step may follow in no time
    tour.press(Qt::Key_Return);
    tour.check(swept, QStringLiteral("the screen says that the till database is upgraded"));
}

} // namespace

void expectLogIn(Tour& tour) {
    tour.expect({}, QStringLiteral("log-in"), [&tour] {
        tour.say(QStringLiteral("Signing in as COUNTER1, by keyboard."));
        tour.type(QStringLiteral("COUNTER1"));
        tour.press(Qt::Key_Return);
        tour.type(QStringLiteral("COUNTER"));
        pressOKAndWatchTheSweep(tour);
    });
}

void addMenus(Tour& tour) {
    tour.then(QStringLiteral("The main menu."), [&tour] { tour.picture(QStringLiteral("menu")); });
    tour.then(QStringLiteral("F7 opens the reports menu, Esc leads back."), [&] {
        QWidget& panel = tour.find<QWidget>(QStringLiteral("pnlReports"));
        tour.press(Qt::Key_F7);
        tour.check(panel.isVisible(), QStringLiteral("the menu is open"));
        tour.picture(QStringLiteral("menu-reports"));
        tour.press(Qt::Key_Escape);
        tour.check(!panel.isVisible(), QStringLiteral("the menu is closed"));
    });
    tour.then(QStringLiteral("F8 opens the configuration menu, Esc leads back."), [&] {
        QWidget& panel = tour.find<QWidget>(QStringLiteral("pnlADMConfiguration"));
        tour.press(Qt::Key_F8);
        tour.check(panel.isVisible(), QStringLiteral("the menu is open"));
        tour.picture(QStringLiteral("menu-configuration"));
        tour.press(Qt::Key_Escape);
        tour.check(!panel.isVisible(), QStringLiteral("the menu is closed"));
    });
}

void addNotices(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("Another version is registered: the notice, passed with Ctrl+F12."),
              [&tour] {
                  tour.expect(QStringLiteral("VELMARA : Program Version Mismatch"),
                              QStringLiteral("version"),
                              [&tour] { tour.press(Qt::Key_F12, Qt::ControlModifier); });
                  const QString registered = std::exchange(gSystemVersion, "14.48.00");
                  sfg_VersionDlg();
                  gSystemVersion = registered;
              });
    tour.then(QStringLiteral("The seat stood idle: the count-down, and the user is back."),
              [&tour, &menu] {
                  tour.expect(QStringLiteral("Application Shutdown"), QStringLiteral("idle"),
                              [&tour] { tour.press(Qt::Key_Escape); });
                  emit menu.ExeIdle->idle();
              });
}

namespace {

void signInByFinger(Tour& tour, const QString& name, QString (*screen)()) {
    tour.expect(gEXETitle, name, [&tour, name] {
        const auto lay = [](const QString& finger, unsigned picture) {
            SimulatedReader::touch(finger, velcro::test::fingerPicture(picture, 0));
            QApplication::processEvents();
        };
        lay(QStringLiteral("NOBODYSTHUMB"), 1);
        tour.picture(name + QStringLiteral("-unknown"));
        lay(QStringLiteral("COUNTER1RIGHTINDEX"), 2);
    });
    tour.check(screen() == QStringLiteral("OK"), QStringLiteral("the finger signs its user in"));
}

} // namespace

void addFingers(Tour& tour) {
    tour.then(QStringLiteral("The seat gets a fingerprint reader: signing in by finger."), [&tour] {
        const QString before = std::exchange(gBDDeviceName, QStringLiteral("SIMULATED"));
        signInByFinger(tour, QStringLiteral("finger-digitalpersona"), slif_DP_Biometric_Login_Form);
        signInByFinger(tour, QStringLiteral("finger-zkteco"), slif_ZKT_Biometric_Login_Form);
        gBDDeviceName = before;
    });
}

void addExit(Tour& tour) {
    tour.then(QStringLiteral("Esc asks whether to leave; N stays, Y leaves."), [&tour] {
        tour.expect(QStringLiteral("System Prompt"), QStringLiteral("exit"),
                    [&tour] { tour.press(Qt::Key_N); });
        tour.press(Qt::Key_Escape);
        tour.expect(QStringLiteral("System Prompt"), QStringLiteral("exit-again"),
                    [&tour] { tour.press(Qt::Key_Y); });
        tour.press(Qt::Key_Escape);
    });
}
