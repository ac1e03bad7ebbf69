// SPDX-License-Identifier: MIT
// What the viewer changes in a module before it compiles it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "open_look_colors.h"
#include "stray_children.h"

namespace view {
namespace {

std::string Object(const std::string& name, const std::string& controls,
                   const std::string& arguments = "", const std::string& prefix = "") {
  return prefix + "object\n" + prefix + name + "{\n" + prefix + "\tcontrols {\n" + controls +
         prefix + "\t\t};\n" + prefix + "\targuments {\n" + arguments + prefix + "\t\t};\n" +
         prefix + "\tcallbacks {\n" + prefix + "\t\t};\n" + prefix + "\n" + prefix + "\t};\n\n";
}

std::string Module(const std::string& objects) {
  return "module Pandrel\nnames = case_sensitive\n\n" + objects + "end module;\n";
}

TEST(OpenLookColors, AreNamedSoThatXKnowsThem) {
  EXPECT_EQ(OpenLookColor("BG1"), "#c4c4c4");
  EXPECT_EQ(OpenLookColor("BG4"), "");
  auto module = uilfix::ParseModule(
      Module(Object("a:XmLabel", "", "\t\tXmNbackground = color(\"BG2\");\n") +
             Object("w:TopLevelShell", "", "!\t\tXmNbackground = color(\"BG3\");\n", "!") +
             Object("b:XmLabel", "", "\t\tXmNbackground = color(\"red\");\n")));
  ReplaceOpenLookColors(module);
  EXPECT_EQ(
      uilfix::RenderModule(module),
      Module(Object("a:XmLabel", "", "\t\tXmNbackground = color(\"#b0b0b0\");\n") +
             Object("w:TopLevelShell", "", "!\t\tXmNbackground = color(\"#626262\");\n", "!") +
             Object("b:XmLabel", "", "\t\tXmNbackground = color(\"red\");\n")));
}

TEST(StrayChildren, AreTakenOutOfWhatCannotHaveThem) {
  const std::string board = Object("board:XmBulletinBoard", "\t\tXmPushButton a;\n\t\tXmList l;\n");
  const std::string list_head = "l:XmList";
  auto module = uilfix::ParseModule(
      Module(board + Object(list_head, "\t\tXmPopupMenu m;\n\t\tXmTextField t;\n") +
             Object("o:XmOptionMenu", "\t\tXmPulldownMenu p;\n\t\tXmPushButton b;\n")));
  const auto strays = RemoveStrayChildren(module);
  ASSERT_EQ(strays.size(), 2u);
  EXPECT_EQ(strays[0].child, "t");
  EXPECT_EQ(strays[0].parent, "l");
  EXPECT_EQ(strays[0].parent_class, "XmList");
  EXPECT_EQ(strays[1].child, "b");
  EXPECT_EQ(uilfix::RenderModule(module),
            Module(board + Object(list_head, "\t\tXmPopupMenu m;\n") +
                   Object("o:XmOptionMenu", "\t\tXmPulldownMenu p;\n")));
}

TEST(StrayChildren, CommentsAreLeftAlone) {
  const std::string text = Module(Object("l:XmList", "!\t\tXmTextField t;\n") +
                                  Object("w:XmDialogShell", "!\t\tXmBulletinBoard b;\n", "", "!"));
  auto module = uilfix::ParseModule(text);
  EXPECT_TRUE(RemoveStrayChildren(module).empty());
  EXPECT_EQ(uilfix::RenderModule(module), text);
}

}  // namespace
}  // namespace view
