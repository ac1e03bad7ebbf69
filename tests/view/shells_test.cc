// SPDX-License-Identifier: MIT
#include "shells.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace view {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

std::string Block(const std::string& prefix, const std::string& head, const std::string& controls,
                  const std::string& arguments) {
  return prefix + "object\n" + prefix + head + "{\n" + prefix + "\tcontrols {\n" + controls +
         prefix + "\t\t};\n" + prefix + "\targuments {\n" + arguments + prefix + "\t\t};\n" +
         prefix + "\tcallbacks {\n" + prefix + "\t\t};\n\n" + prefix + "\t};\n\n";
}

std::vector<Shell> Read(const std::string& text) { return ReadShells(uilfix::ParseModule(text)); }

TEST(Shells, BaseWindow) {
  for (const std::string prefix : {"!(ZO)", "!"}) {
    const auto shells = Read(
        Block("", "board:XmBulletinBoard", "", "") +
        Block(prefix, "window1:TopLevelShell",
              prefix + "\t\tXmBulletinBoard board;\n" + prefix + "\t\tXmPopupMenu menu1;\n",
              prefix + "\t\tXmNtitle = \"A \" &\n" + prefix + "\t\t\t\"\\\"B\\\" \\233\\\";\n" +
                  prefix + "\t\tXmNwidth = 300;\n" + prefix +
                  "\t\tXmNbackground = color(\"blue\");\n" + prefix + "\t\tXmNiconic = true;\n"));
    ASSERT_EQ(shells.size(), 1u);
    const Shell& shell = shells[0];
    EXPECT_EQ(shell.name, "window1");
    EXPECT_FALSE(shell.dialog);
    EXPECT_EQ(shell.title, "A \"B\" \xE9");
    EXPECT_TRUE(shell.iconic);
    EXPECT_FALSE(shell.hidden);
    EXPECT_THAT(shell.resources, ElementsAre(Pair("width", "300"), Pair("background", "blue")));
    ASSERT_EQ(shell.work.size(), 1u);
    EXPECT_EQ(shell.work[0].name, "board");
    EXPECT_TRUE(shell.work[0].managed);
    ASSERT_EQ(shell.popups.size(), 1u);
    EXPECT_EQ(shell.popups[0].name, "menu1");
  }
}

TEST(Shells, DialogBelongsToTheWindowItStandsIn) {
  const auto shells =
      Read(Block("!", "other:TopLevelShell", "", "") +
           Block("!", "dialog:XmDialogShell", "!\t\tunmanaged XmBulletinBoard inside;\n", "") +
           Block("", "board:XmBulletinBoard", "!(ZO)\t\tXmDialogShell dialog;\n", "") +
           Block("!", "main:TopLevelShell", "!\t\tXmBulletinBoard board;\n",
                 "!\t\tXmNmappedWhenManaged = false;\n!\t\tXmNsensitive = false;\n"));
  ASSERT_EQ(shells.size(), 3u);
  EXPECT_TRUE(shells[1].dialog);
  EXPECT_EQ(shells[1].owner, "main");
  EXPECT_FALSE(shells[1].work.at(0).managed);
  EXPECT_TRUE(shells[2].hidden);
  EXPECT_TRUE(shells[2].insensitive);
}

TEST(Shells, DialogOfNobody) {
  EXPECT_EQ(Read(Block("!", "dialog:XmDialogShell", "", "")).at(0).owner, "");
}

TEST(Shells, WithoutCommentsOneWindowPerLooseObject) {
  const auto shells = Read(Block("", "label:XmLabel", "", "") +
                           Block("", "board:XmBulletinBoard", "\t\tXmLabel label;\n", "") +
                           Block("", "menu:XmPulldownMenu", "", ""));
  ASSERT_EQ(shells.size(), 1u);
  EXPECT_EQ(shells[0].name, "board_shell");
  EXPECT_EQ(shells[0].work.at(0).name, "board");
}

TEST(Shells, ModuleWithoutObjects) { EXPECT_TRUE(Read("module Pandrel\nend module;\n").empty()); }

}  // namespace
}  // namespace view
