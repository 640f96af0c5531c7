// The entry of the test programs that need a QApplication. A filter that selects no test is a
// failure: a renamed suite must not pass by running nothing.
#include "ui/Theme.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const int failed = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::fputs("no test was selected\n", stderr);
        return 1;
    }
    return failed;
}
