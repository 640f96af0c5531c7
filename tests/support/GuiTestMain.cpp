// The entry of the test programs that need a QApplication.
#include "support/RunTests.h"
#include "support/TestScreen.h"
#include "ui/Theme.h"

#include <QApplication>

// Holds a window of 1920 x 1080 with its frame.
constexpr QSize largestScreen(1940, 1100);

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QTemporaryFile screen;
    const auto platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform == "offscreen") {
        useScreen(screen, largestScreen.width(), largestScreen.height(), true);
    }
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    return runTests();
}
