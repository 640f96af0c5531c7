// Runs the tests that the filter selects. One that selects none is a failure: a renamed suite must
// not pass by running nothing. What is left beside the suites that a filter takes out may be none.
#pragma once

#include "support/ChildWork.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

inline int runTests() {
    const char* work = std::getenv("VELCRO_CHILD_WORK");
    if (work != nullptr && velcro::test::runAsChild != nullptr) {
        return velcro::test::runAsChild(work);
    }
    const bool isRest = testing::GTEST_FLAG(filter).starts_with('-');
    const int failed = RUN_ALL_TESTS();
    if (!isRest && testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::fputs("no test was selected\n", stderr);
        return 1;
    }
    return failed;
}
