// The reference: a Qt Widgets window with nothing in it.
//   empty-window <width> <height>
#include "Stamp.h"

#include <QDialog>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QDialog window;
    if (argc > 2) {
        window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
    }
    QTimer::singleShot(0, [] {
        bench::stamp("painted");
        QApplication::quit();
    });
    window.show();
    return QApplication::exec();
}
