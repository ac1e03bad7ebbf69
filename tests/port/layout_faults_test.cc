// SPDX-License-Identifier: MIT
#include "port/layout_faults.h"

#include <gtest/gtest.h>

namespace port {

TEST(LayoutFaultsTest, ReadsTheFieldsOfALine) {
  const auto faults = ParseLayoutFaults(
      "overlap\tok\tokButton\tmain\t10\t-5\t60\t20\tcancel\tcancelButton\t3\t4\n");
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0].kind, "overlap");
  EXPECT_EQ(faults[0].widget, "ok");
  EXPECT_EQ(faults[0].object, "okButton");
  EXPECT_EQ(faults[0].window, "main");
  EXPECT_EQ(faults[0].place, "60x20+10-5");
  EXPECT_EQ(faults[0].other, "cancel");
  EXPECT_EQ(faults[0].other_object, "cancelButton");
  EXPECT_EQ(faults[0].pixels, "3x4");
}

TEST(LayoutFaultsTest, ResolvesEscapes) {
  EXPECT_EQ(ParseLayoutFaults("cut\ta\\tb\\nc\\\\d\\")[0].widget, "a\tb\nc\\d\\");
}

TEST(LayoutFaultsTest, LeavesMissingFieldsEmpty) {
  const auto faults = ParseLayoutFaults("cut\tok\n\noutside\tok\t\tw\n");
  ASSERT_EQ(faults.size(), 2u);
  EXPECT_EQ(faults[0].widget, "ok");
  EXPECT_EQ(faults[0].place, "");
  EXPECT_EQ(faults[0].pixels, "");
  EXPECT_EQ(faults[1].window, "w");
}

TEST(LayoutFaultsTest, SkipsTheCallsThatTheViewerTells) {
  const auto faults = ParseLayoutFaults("chart: XmNexposeCallback -> draw\ncut\tok\n");
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0].kind, "cut");
}

TEST(LayoutFaultsTest, GivesPageText) {
  EXPECT_EQ(ParseLayoutFaults("cut\t\xE9\n")[0].widget, "\u00e9");
}

TEST(LayoutFaultsTest, TellsLayoutFromIconsAndColours) {
  const auto faults = ParseLayoutFaults("overlap\t\ncut\t\noutside\t\nicon\t\ncolor\t\n");
  ASSERT_EQ(faults.size(), 5u);
  for (std::size_t i = 0; i < faults.size(); ++i) EXPECT_EQ(IsOfLayout(faults[i]), i < 3) << i;
}

}  // namespace port
