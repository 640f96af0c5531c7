// The entry of the test programs that need a QApplication.
#include "support/RunTests.h"
#include "ui/Theme.h"

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    return runTests();
}
