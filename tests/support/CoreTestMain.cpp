// The entry of the test programs that need messages and no screen.
#include "support/RunTests.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return runTests();
}
