// velCRO: customer repair orders of the Velmara retail suite.
#include "application/Program.h"
#include "application/StartUp.h"
#include "application/Unattended.h"
#include "platform/seat/CommandLine.h"
#include "ui/Theme.h"

#include <QApplication>

int main(int argc, char** argv) {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const QStringList arguments = QApplication::arguments().mid(1);
    velcro::seat::hideArgument(argc, argv, readCommandLine(arguments).password);
    Program program(arguments);
    if (isUnattended()) {
        turnFormsDown();
    }
    return program.run();
}
