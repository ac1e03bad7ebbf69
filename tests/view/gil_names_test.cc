// SPDX-License-Identifier: MIT
#include "gil_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace view {
namespace {

using ::testing::ElementsAre;

TEST(GilNames, AreRead) {
  EXPECT_THAT(ReadGilNames(";GIL-3\n((:type :button :name Quit)\n(:name\t\"my box\"\n:names x)"),
              ElementsAre("Quit", "\"my box\""));
  EXPECT_TRUE(ReadGilNames("").empty());
  EXPECT_TRUE(ReadGilNames(":name").empty());
}

TEST(GilNames, LongestFittingNameIsGuessed) {
  const std::vector<std::string> names = {"Button", "ButtonBox", "x",
                                          "AVeryLongNameThatWasCutAtThirtyCharacters"};
  EXPECT_EQ(GuessGilName(names, "button"), "Button");
  EXPECT_EQ(GuessGilName(names, "button12"), "Button");
  EXPECT_EQ(GuessGilName(names, "buttonBox_label"), "ButtonBox");
  EXPECT_EQ(GuessGilName(names, "aVeryLongNameThatWasCutAtThirt"), names[3]);
  EXPECT_EQ(GuessGilName(names, "bboard"), "");
}

}  // namespace
}  // namespace view
