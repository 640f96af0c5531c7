// velcro-tour: the road through the program's real screens, with a picture of each.
//   velcro-tour <output folder> [<width>x<height>]
// Finds the sample databases as the program does. Exit status 1 when something did not go as the
// road says.
#include "Steps.h"

#include "application/Program.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

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
    qputenv("VELCRO_CAMERA", "simulated");
    useScreen(screen, argc > 2 ? QString::fromLocal8Bit(argv[2]) : QStringLiteral("1024x768"));
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
    addImages(tour);
    addDialogs(tour);
    addNotices(tour, program.mainForm());
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
