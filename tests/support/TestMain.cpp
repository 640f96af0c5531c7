// The entry of the test programs that need no screen.
#include "support/RunTests.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    return runTests();
}
