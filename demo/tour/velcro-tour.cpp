// velcro-tour: the road through the program's real screens, with a picture of each.
//   velcro-tour <output folder> [<width>x<height>]
// Finds the sample databases as the program does. Exit status 1 when something did not go as the
// road says.
#include "Steps.h"

#include "application/Program.h"
#include "support/TestScreen.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QTemporaryFile>

#include <cstdio>
#include <exception>

namespace {

int walk(int argc, char** argv) {
    QTemporaryFile screen;
    qputenv("VELCRO_CAMERA", "simulated");
    const QString size = argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("1024x768");
    useScreen(screen, size.section('x', 0, 0).toInt(), size.section('x', 1, 1).toInt(), false);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    Tour tour(QString::fromLocal8Bit(argv[1]));
    Program program({});
    expectLogIn(tour);
    addMenus(tour);
    addWorkshop(tour);
    addRegister(tour);
    addBooking(tour);
    addItems(tour);
    addProcesses(tour);
    addQuotation(tour);
    addImages(tour);
    addDialogs(tour);
    addNotices(tour, program.mainForm());
    addFingers(tour);
    addExit(tour);
    QObject::connect(&program.mainForm(), &TfrmMAIN000::menuIsLive, &application,
                     [&] { tour.start(program.mainForm()); });
    const int status = program.run();
    return status != 0 || !tour.arrived() ? 1 : 0;
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
