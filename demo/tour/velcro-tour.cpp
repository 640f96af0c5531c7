// velcro-tour: the road through the program's real screens, with a picture of each.
//   velcro-tour <output folder> [<width>x<height>]
// Finds the sample databases as the program does. Exit status 1 when something did not go as the
// road says.
#include "Tour.h"

#include "application/Program.h"
#include "application/SysFuncGlobal.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryFile>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <utility>

namespace {

QPushButton& button(QWidget& on, const QString& name) {
    auto* found = on.findChild<QPushButton*>(name);
    if (found == nullptr) {
        throw std::runtime_error("there is no button " + name.toStdString());
    }
    return *found;
}

void type(QWidget& form, const QString& edit, const QString& text) {
    auto* found = form.findChild<QLineEdit*>(edit);
    if (found == nullptr) {
        throw std::runtime_error("there is no edit " + edit.toStdString());
    }
    found->setFocus();
    found->setText(text);
}

// The main form opens the log-in by itself; the road begins once the menu is live.
void signIn(Tour& tour) {
    tour.expect({}, QStringLiteral("log-in"), [&tour](QDialog& form) {
        tour.say(QStringLiteral("Signing in as COUNTER1."));
        type(form, QStringLiteral("edUserCode"), QStringLiteral("COUNTER1"));
        type(form, QStringLiteral("edUserPswd"), QStringLiteral("COUNTER"));
        button(form, QStringLiteral("btnOK")).click();
    });
}

void addMenus(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("The main menu."),
              [&] { tour.picture(menu, QStringLiteral("menu")); });
    tour.then(QStringLiteral("F7 opens the reports menu, Esc leads back."), [&] {
        tour.press(menu, Qt::Key_F7);
        tour.picture(menu, QStringLiteral("menu-reports"));
        tour.press(menu, Qt::Key_Escape);
    });
    tour.then(QStringLiteral("F8 opens the configuration menu, Esc leads back."), [&] {
        tour.press(menu, Qt::Key_F8);
        tour.picture(menu, QStringLiteral("menu-configuration"));
        tour.press(menu, Qt::Key_Escape);
    });
}

void addMessage(Tour& tour, const QString& text, const QString& title, const QString& name,
                Tour::Step show) {
    tour.then(text, [&tour, title, name, show = std::move(show)] {
        tour.expect(title, name, [&tour](QDialog& form) { tour.press(form, Qt::Key_Return); });
        show();
    });
}

void addDialogs(Tour& tour) {
    addMessage(tour, QStringLiteral("An information."),
               QStringLiteral("System  Information Message"), QStringLiteral("information"),
               [] { sfg_InfoDlg("Repair order R000123 was saved.", 0); });
    addMessage(tour, QStringLiteral("A message."), QStringLiteral("System Message"),
               QStringLiteral("message"),
               [] { sfg_MessageDlg("The grid was restored to its first layout.", 0); });
    addMessage(tour, QStringLiteral("A warning."), QStringLiteral("System Warning"),
               QStringLiteral("warning"), [] {
                   sfg_WarningDlg("The item has no warranty date. It will be repaired at the "
                                  "customer's cost.",
                                  0);
               });
    addMessage(tour, QStringLiteral("A right that the user lacks."),
               QStringLiteral("Security Access"), QStringLiteral("access"),
               [] { sfg_AccessDlg("CRO [12]", "SysFuncVelmara", "sfvel_CheckUserAccess", 0); });
    addMessage(tour, QStringLiteral("An error."), QStringLiteral("System Error"),
               QStringLiteral("error"), [] {
                   sfg_ErrorDlg("100-001",
                                "SQL Error reading object \"CRORepMst\". Details: \rInvalid object "
                                "name 'CRORepMst'.",
                                "CRO100", "BuildGrid");
               });
    addMessage(tour, QStringLiteral("An error with something to suggest."),
               QStringLiteral("System Error"), QStringLiteral("error-with-suggestion"), [] {
                   gErrorComment = "Ask the supervisor to open the accounting period, then try "
                                   "again.";
                   sfg_ErrorDlg("200-014", "The accounting period is closed.", "CRO100A",
                                "Validation");
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

void addRegister(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("F2 opens the register of repair orders."), [&tour, &menu] {
        tour.expect(QStringLiteral("Workshop Centre: Repair Orders Management"),
                    QStringLiteral("register"),
                    [&tour](QDialog& form) { tour.press(form, Qt::Key_Escape); });
        tour.press(menu, Qt::Key_F2);
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

/// The offscreen platform reads the size of its screen from a file.
void useScreen(QTemporaryFile& file, const QString& size) {
    const QJsonObject screen{{"name", "tour"},
                             {"x", 0},
                             {"y", 0},
                             {"width", size.section('x', 0, 0).toInt()},
                             {"height", size.section('x', 1, 1).toInt()},
                             {"logicalDpi", 96},
                             {"logicalBaseDpi", 96},
                             {"dpr", 1}};
    const QJsonObject all{{"synchronousWindowSystemEvents", false},
                          {"windowFrameMargins", false},
                          {"screens", QJsonArray{screen}}};
    if (!file.open() || file.write(QJsonDocument(all).toJson()) < 0 || !file.flush()) {
        throw std::runtime_error("cannot write the screen's size");
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
}

int walk(int argc, char** argv) {
    QTemporaryFile screen;
    useScreen(screen, argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("1024x768"));
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    Tour tour(QString::fromLocal8Bit(argv[1]));
    Program program({});
    signIn(tour);
    addMenus(tour, program.mainForm());
    addRegister(tour, program.mainForm());
    addDialogs(tour);
    addNotices(tour, program.mainForm());
    addExit(tour, program.mainForm());
    QObject::connect(&program.mainForm(), &TfrmMAIN000::menuIsLive, &application,
                     [&tour] { tour.start(); });
    const int status = program.run();
    return status != 0 || tour.failures() > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: velcro-tour <output folder> [<width>x<height>]\n", stderr);
        return 2;
    }
    try {
        return walk(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "velcro-tour: %s\n", error.what());
        return 1;
    }
}
