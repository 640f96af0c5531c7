#include "security/SysMachine.h"

#include "platform/seat/MachineIdentity.h"

#include <gtest/gtest.h>

TEST(SysMachineTest, aMachineIsNamedByTwentyLetters) {
    EXPECT_EQ(pcNameText("WORKSHOP-COUNTER-LEFT-2"), "WORKSHOP-COUNTER-LEF");
    EXPECT_EQ(pcNameText("WORKSHOP-COUNTER-LEF"), "WORKSHOP-COUNTER-LEF");
    EXPECT_EQ(pcNameText("SEAT1"), "SEAT1");
    EXPECT_EQ(sm_GetPCName(), pcNameText(velcro::seat::computerName()));
}

TEST(SysMachineTest, theLastAddressCounts) {
    EXPECT_EQ(addressThatCounts({"10.0.0.4", "192.168.1.7"}), "192.168.1.7");
    EXPECT_EQ(addressThatCounts({"10.0.0.4"}), "10.0.0.4");
    EXPECT_EQ(addressThatCounts({}), "");
    EXPECT_EQ(sm_GetIP(), addressThatCounts(velcro::seat::hostAddresses()));
}
