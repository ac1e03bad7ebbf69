// SPDX-License-Identifier: MIT
#include "uilfix/module.h"

#include <gtest/gtest.h>

namespace uilfix {
namespace {

constexpr char kModule[] =
    "module Pandrel\nnames = case_sensitive\n\nprocedure quit;\nprocedure ok;\n\n"
    "object\nbutton1:XmPushButton{\n\tcontrols {\n\t\t};\n\targuments {\n\t\tXmNx = 10;\n"
    "\t\tXmNlabelString = \"a;\nb\";\n\t\t};\n\tcallbacks {\n"
    "\t\tXmNactivateCallback = procedures "
    "{\n\t\t\tok(1);\n\t\t\tquit();\n\t\t\t};\n\n\t\t};\n};\n\n"
    "!(ZO)object\n!(ZO)window1:TopLevelShell{\n!(ZO)\tcontrols {\n"
    "!(ZO)\t\tunmanaged XmPushButton button1;\n!(ZO)\t\t};\n!(ZO)\targuments {\n!(ZO)\t\t};\n"
    "!(ZO)\tcallbacks {\n!(ZO)\t\t};\n\n!(ZO)\t};\n\n\nend module;\n\n";

const Object& ObjectAt(const Module& module, std::size_t index) {
  static const Object none;
  for (const Item& item : module.items) {
    const auto* object = std::get_if<Object>(&item);
    if (object && index-- == 0) return *object;
  }
  return none;
}

template <typename T>
T Only(const Object& object) {
  std::vector<T> found;
  ForEachEntry<T>(object, [&](const T& entry) { found.push_back(entry); });
  EXPECT_EQ(found.size(), 1u);
  return found.empty() ? T{} : found.front();
}

TEST(Module, TakesDeclarationsAndObjects) {
  const Module module = ParseModule(kModule);
  int declarations = 0;
  for (const Item& item : module.items) {
    declarations += std::holds_alternative<Declaration>(item) ? 1 : 0;
  }
  EXPECT_EQ(declarations, 2);
  const Object& button = ObjectAt(module, 0);
  EXPECT_EQ(button.name, "button1");
  EXPECT_EQ(button.class_name, "XmPushButton");
  EXPECT_FALSE(button.IsComment());
  EXPECT_EQ(button.line, 8);
  EXPECT_EQ(*FindArgument(button, "XmNx"), "10");
  EXPECT_EQ(*FindArgument(button, "XmNlabelString"), "\"a;\nb\"");
  EXPECT_EQ(FindArgument(button, "XmNy"), nullptr);
}

// The lines between two entries are one text, but for the head of the arguments and the object's
// end.
TEST(Module, JoinsSectionLines) {
  Module module = ParseModule(
      "object\na:XmLabel{\n\tcontrols {\n\t\t};\n\targuments {\n\t\t};\n\tcallbacks {\n\t\t};\n\n"
      "\t};\n\nend module;\n");
  auto& object = std::get<Object>(module.items.front());
  std::vector<std::string> texts;
  std::vector<Mark> marks;
  for (const Entry& entry : object.entries) {
    texts.push_back(std::get<Verbatim>(entry).text);
    marks.push_back(std::get<Verbatim>(entry).mark);
  }
  EXPECT_EQ(texts, (std::vector<std::string>{"\tcontrols {\n\t\t};\n\targuments {\n",
                                             "\t\t};\n\tcallbacks {\n\t\t};\n\n", "\t};\n"}));
  EXPECT_EQ(marks, (std::vector<Mark>{Mark::kArguments, Mark::kEnd, Mark::kObjectEnd}));
  ASSERT_TRUE(AddArgument(object, "XmNx", "1"));
  EXPECT_EQ(RenderModule(module),
            "object\na:XmLabel{\n\tcontrols {\n\t\t};\n\targuments {\n\t\tXmNx = 1;\n\t\t};\n"
            "\tcallbacks {\n\t\t};\n\n\t};\n\nend module;\n");
}

TEST(Module, TakesListsOfCalls) {
  const auto callback = Only<Callback>(ObjectAt(ParseModule(kModule), 0));
  EXPECT_TRUE(callback.list);
  EXPECT_EQ(callback.reason, "XmNactivateCallback");
  ASSERT_EQ(callback.calls.size(), 2u);
  EXPECT_EQ(callback.calls[0].procedure, "ok");
  EXPECT_EQ(callback.calls[0].argument, "1");
  EXPECT_EQ(callback.calls[1].argument, "");
  EXPECT_EQ(callback.calls[1].line, 19);
}

TEST(Module, TakesCommentedShells) {
  const Module module = ParseModule(kModule);
  const Object& shell = ObjectAt(module, 1);
  EXPECT_TRUE(shell.IsComment());
  EXPECT_EQ(shell.prefix, "!(ZO)");
  EXPECT_EQ(shell.name, "window1");
  const auto control = Only<Control>(shell);
  EXPECT_TRUE(control.unmanaged);
  EXPECT_EQ(control.class_name, "XmPushButton");
  EXPECT_EQ(control.name, "button1");
}

TEST(Module, TakesNamesThatHoldAnything) {
  const Module module = ParseModule(
      "object\n\"a: b{\nc\":XmLabel{\n\tcontrols {\n\t\tXmLabel \"x;y\n z\";\n\t\t};\n"
      "\targuments {\n\t\tXmNtopWidget = \"half;\n\t\t};\n");
  const Object& object = ObjectAt(module, 0);
  EXPECT_EQ(object.class_name, "XmLabel");
  EXPECT_EQ(object.name, "\"a: b{\nc\"");
  EXPECT_EQ(Only<Control>(object).name, "\"x;y\n z\"");
  EXPECT_EQ(*FindArgument(object, "XmNtopWidget"), "\"half");
}

TEST(Module, RendersWhatItRead) { EXPECT_EQ(RenderModule(ParseModule(kModule)), kModule); }

// Every way of breaking the module off, and of losing one byte of it, comes back as it was.
TEST(Module, RendersDamagedTextAsItWas) {
  const std::string whole = kModule;
  for (std::size_t i = 0; i <= whole.size(); ++i) {
    const std::string cut = whole.substr(0, i);
    ASSERT_EQ(RenderModule(ParseModule(cut)), cut);
    std::string hole = whole;
    if (i < whole.size()) hole.erase(i, 1);
    ASSERT_EQ(RenderModule(ParseModule(hole)), hole);
  }
}

TEST(Module, KeepsForeignTextAsItIs) {
  for (const std::string text : {"", "\n", "object", "object\n", "object\nx",
                                 "!(ZO)object\n!x:Y{\n", "procedure p(string);\n", "object\n:{\n",
                                 "object\nx:XmLabel{\n\targuments {\n\t\tXmNvalue = \"open;\n"}) {
    EXPECT_EQ(RenderModule(ParseModule(text)), text);
  }
}

}  // namespace
}  // namespace uilfix
