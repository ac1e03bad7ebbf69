// SPDX-License-Identifier: MIT
#include "port/layout_faults.h"

#include <gtest/gtest.h>

namespace port {

TEST(LayoutFaultsTest, ReadsTheFieldsOfALine) {
  const auto faults = ParseLayoutFaults("overlap\tmain\tok\tcancel\t3 x 20 pixels\n");
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0].kind, "overlap");
  EXPECT_EQ(faults[0].window, "main");
  EXPECT_EQ(faults[0].widget, "ok");
  EXPECT_EQ(faults[0].other, "cancel");
  EXPECT_EQ(faults[0].detail, "3 x 20 pixels");
}

TEST(LayoutFaultsTest, LeavesMissingFieldsEmptyAndKeepsSurplusOnes) {
  const auto faults = ParseLayoutFaults("cut\tmain\tok\n\noutside\tw\tx\ty\ta\tb");
  ASSERT_EQ(faults.size(), 2u);
  EXPECT_EQ(faults[0].widget, "ok");
  EXPECT_EQ(faults[0].other, "");
  EXPECT_EQ(faults[0].detail, "");
  EXPECT_EQ(faults[1].detail, "a\tb");
}

TEST(LayoutFaultsTest, LosesNoLineOfAnotherForm) {
  const auto faults = ParseLayoutFaults("cannot open display\n");
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0].kind, "other");
  EXPECT_EQ(faults[0].detail, "cannot open display");
}

TEST(LayoutFaultsTest, GivesPageText) {
  EXPECT_EQ(ParseLayoutFaults("cut\tm\t\xE9\n")[0].widget, "\u00e9");
}

}  // namespace port
