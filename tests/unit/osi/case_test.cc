// SPDX-License-Identifier: MIT
#include "osi/case.h"

#include <gtest/gtest.h>

#include "osi/memory.h"
#include "unit/osi/owned.h"

TEST(OsiStrcasecmp, TellsEqualityWhateverTheCase) {
  EXPECT_EQ(OsiStrcasecmp("XmNlabelString", "XMNLABELSTRING"), 0);
  EXPECT_EQ(OsiStrcasecmp("a1_b", "A1_B"), 0);
  EXPECT_EQ(OsiStrcasecmp("[", "{"), 1);
}

TEST(OsiStrcasecmp, IsNeverNegative) {
  EXPECT_EQ(OsiStrcasecmp("a", "b"), 1);
  EXPECT_EQ(OsiStrcasecmp("b", "a"), 1);
  EXPECT_EQ(OsiStrcasecmp("menu", "menus"), 1);
  EXPECT_EQ(OsiStrcasecmp("menus", "menu"), 1);
}

TEST(OsiStrcasecmp, FindsAnEmptyStringEqualToAnEmptyOneOnly) {
  EXPECT_EQ(OsiStrcasecmp("", ""), 0);
  EXPECT_EQ(OsiStrcasecmp(nullptr, ""), 0);
  EXPECT_EQ(OsiStrcasecmp(nullptr, nullptr), 0);
  EXPECT_EQ(OsiStrcasecmp("", "a"), 1);
  EXPECT_EQ(OsiStrcasecmp("a", nullptr), 1);
}

TEST(OsiStrcasecmp, TakesBytesAbove127) {
  EXPECT_EQ(OsiStrcasecmp("\xe9\xff", "\xe9\xff"), 0);
  EXPECT_EQ(OsiStrcasecmp("\xe9", "e"), 1);
}

TEST(OsiStrncasecmp, LooksAtTheFirstBytesOnly) {
  EXPECT_EQ(OsiStrncasecmp("WINDOW1", "window2", 6), 0);
  EXPECT_EQ(OsiStrncasecmp("WINDOW1", "window2", 7), 1);
  EXPECT_EQ(OsiStrncasecmp("b", "a", 1), 1);
}

TEST(OsiStrncasecmp, FindsAPrefixEqual) {
  EXPECT_EQ(OsiStrncasecmp("menu", "MENUBAR", 7), 0);
  EXPECT_EQ(OsiStrncasecmp("MENUBAR", "menu", 7), 0);
}

TEST(OsiStrncasecmp, FindsNoDifferenceInNothing) {
  EXPECT_EQ(OsiStrncasecmp("", "a", 1), 0);
  EXPECT_EQ(OsiStrncasecmp("a", nullptr, 1), 0);
  EXPECT_EQ(OsiStrncasecmp(nullptr, "a", 1), 0);
  EXPECT_EQ(OsiStrncasecmp("a", "b", 0), 0);
  EXPECT_EQ(OsiStrncasecmp("a", "b", -1), 0);
}

TEST(OsiStrCaseStr, GivesThePlaceInTheGivenText) {
  const char* hay = "XmOptionMenu_menu";
  EXPECT_EQ(OsiStrCaseStr(hay, "OPTION"), hay + 2);
  EXPECT_EQ(OsiStrCaseStr(hay, "menu"), hay + 8);
  EXPECT_EQ(OsiStrCaseStr(hay, "menux"), nullptr);
  EXPECT_STREQ(hay, "XmOptionMenu_menu");
}

TEST(OsiStrCaseStr, TakesNulls) {
  const char* hay = "menu";
  EXPECT_EQ(OsiStrCaseStr(hay, ""), hay);
  EXPECT_EQ(OsiStrCaseStr(hay, nullptr), hay);
  EXPECT_EQ(OsiStrCaseStr(nullptr, "menu"), nullptr);
  EXPECT_EQ(OsiStrCaseStr(nullptr, nullptr), nullptr);
}

TEST(OsiStrUpCase, MakesANewString) {
  const char* original = "menu_Bar9\xe9";
  EXPECT_EQ(Take(OsiStrUpCase(original)), "MENU_BAR9\xe9");
  EXPECT_EQ(Take(OsiStrUpCase("")), "");
}

TEST(OsiStrUpCase, FillsTheDestination) {
  char dst[] = "xxxxxxxx";
  EXPECT_EQ(OsiStrUpCase("menu", dst), dst);
  EXPECT_STREQ(dst, "MENU");
  char same[] = "in place";
  EXPECT_EQ(OsiStrUpCase(same, same), same);
  EXPECT_STREQ(same, "IN PLACE");
}

TEST(OsiStrUpCase, GivesNullForNullAndLeavesTheDestination) {
  char dst[] = "menu";
  EXPECT_EQ(OsiStrUpCase(nullptr), nullptr);
  EXPECT_EQ(OsiStrUpCase(nullptr, dst), nullptr);
  EXPECT_STREQ(dst, "menu");
}
