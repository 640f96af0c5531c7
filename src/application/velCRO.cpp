// velCRO: customer repair orders of the Velmara retail suite.
#include "application/Program.h"
#include "application/Unattended.h"
#include "ui/Theme.h"

#include <QApplication>

int main(int argc, char** argv) {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    Program program(QApplication::arguments().mid(1));
    if (isUnattended()) {
        turnFormsDown();
    }
    return program.run();
}
