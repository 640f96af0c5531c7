// The entry of the test programs that need no screen. A filter that selects no test is a failure:
// a renamed suite must not pass by running nothing.
#include <gtest/gtest.h>

#include <cstdio>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    if (testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::fputs("no test was selected\n", stderr);
        return 1;
    }
    return failed;
}
