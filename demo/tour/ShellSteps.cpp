// Log-in, menu, notices and the way out.
#include "Steps.h"

#include "application/CMN010.h"
#include "application/CMN012.h"
#include "data/Session.h"

#include <utility>

void expectLogIn(Tour& tour) {
    tour.expect({}, QStringLiteral("log-in"), [&tour](QDialog& form) {
        tour.say(QStringLiteral("Signing in as COUNTER1, by keyboard."));
        tour.type(form, QStringLiteral("COUNTER1"));
        tour.press(form, Qt::Key_Return);
        tour.type(form, QStringLiteral("COUNTER"));
        tour.press(form, Qt::Key_Return);
    });
}

void addMenus(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("The main menu."),
              [&] { tour.picture(menu, QStringLiteral("menu")); });
    tour.then(QStringLiteral("F7 opens the reports menu, Esc leads back."), [&] {
        QWidget& panel = tour.find<QWidget>(menu, QStringLiteral("pnlReports"));
        tour.press(menu, Qt::Key_F7);
        tour.check(panel.isVisible(), QStringLiteral("the menu is open"));
        tour.picture(menu, QStringLiteral("menu-reports"));
        tour.press(menu, Qt::Key_Escape);
        tour.check(!panel.isVisible(), QStringLiteral("the menu is closed"));
    });
    tour.then(QStringLiteral("F8 opens the configuration menu, Esc leads back."), [&] {
        QWidget& panel = tour.find<QWidget>(menu, QStringLiteral("pnlADMConfiguration"));
        tour.press(menu, Qt::Key_F8);
        tour.check(panel.isVisible(), QStringLiteral("the menu is open"));
        tour.picture(menu, QStringLiteral("menu-configuration"));
        tour.press(menu, Qt::Key_Escape);
        tour.check(!panel.isVisible(), QStringLiteral("the menu is closed"));
    });
}

void addNotices(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("Another version is registered: the notice, passed with Ctrl+F12."),
              [&tour] {
                  tour.expect(QStringLiteral("VELMARA : Program Version Mismatch"),
                              QStringLiteral("version"), [&tour](QDialog& form) {
                                  tour.press(form, Qt::Key_F12, Qt::ControlModifier);
                              });
                  const QString registered = std::exchange(gSystemVersion, "14.48.00");
                  sfg_VersionDlg();
                  gSystemVersion = registered;
              });
    tour.then(QStringLiteral("The seat stood idle: the count-down, and the user is back."),
              [&tour, &menu] {
                  tour.expect(QStringLiteral("Application Shutdown"), QStringLiteral("idle"),
                              [&tour](QDialog& form) { tour.press(form, Qt::Key_Escape); });
                  emit menu.ExeIdle->idle();
              });
}

void addExit(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("Esc asks whether to leave; N stays, Y leaves."), [&tour, &menu] {
        tour.expect(QStringLiteral("System Prompt"), QStringLiteral("exit"),
                    [&tour](QDialog& form) { tour.press(form, Qt::Key_N); });
        tour.press(menu, Qt::Key_Escape);
        tour.expect(QStringLiteral("System Prompt"), QStringLiteral("exit-again"),
                    [&tour](QDialog& form) { tour.press(form, Qt::Key_Y); });
        tour.press(menu, Qt::Key_Escape);
    });
}
