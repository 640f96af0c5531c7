// Runs the tests that the filter selects. One that selects none is a failure: a renamed suite must
// not pass by running nothing. What is left beside the suites that a filter takes out may be none.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>

inline int runTests() {
    const bool isRest = testing::GTEST_FLAG(filter).starts_with('-');
    const int failed = RUN_ALL_TESTS();
    if (!isRest && testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::fputs("no test was selected\n", stderr);
        return 1;
    }
    return failed;
}
