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

TEST(GilNames, OnlyWhatTheConverterAddsMayFollow) {
  const std::vector<std::string> names = {"menu", "b", "Draw"};
  for (const char* own : {"menubar", "menubar4", "bboard1", "drawing", "menuBar"}) {
    EXPECT_EQ(GuessGilName(names, own), "") << own;
  }
  for (const char* made : {"menu", "menuchoice2", "menuB", "menu1C", "menu_widget"}) {
    EXPECT_EQ(GuessGilName(names, made), "menu") << made;
  }
  EXPECT_EQ(GuessGilName(names, "b_toggle_b1"), "b");
  const std::string cut = "aNameOf27LettersBeforeItWas";
  EXPECT_EQ(GuessGilName({cut}, cut + "cho1"), cut);
}

TEST(GilNames, PopupsWithTheirPinsIn) {
  EXPECT_THAT(ReadPinnedPopups("((:type :popup-window :name a :pinned t)"
                               "(:type :popup-window :name b :pinned nil)"
                               "(:type :base-window :name c :pinned t)"
                               "(:type :popup-window :name d)(:type :button :pinned t))"),
              ElementsAre("a"));
}

TEST(GilNames, ButtonsWithIcons) {
  const auto buttons = ReadGlyphButtons(
      "((:type :button :name a :label \"a.icon\" :label-type :glyph)"
      "(:type :button :name b :label \"b.icon\" :label-type :string)"
      "(:type :message :name c :label \"c.icon\" :label-type :glyph)"
      "(:type :button :name d :label-type :glyph))");
  ASSERT_EQ(buttons.size(), 1u);
  EXPECT_EQ(buttons[0].name, "a");
  EXPECT_EQ(buttons[0].icon, "a.icon");
}

}  // namespace
}  // namespace view
