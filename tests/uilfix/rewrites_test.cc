// SPDX-License-Identifier: MIT
// What the golden cases do not show: the table itself, and limits at their exact place.
#include "uilfix/rewrites.h"

#include <gtest/gtest.h>

#include "uilfix/literals.h"

namespace uilfix {
namespace {

std::string Label(const std::string& value) {
  return "object\nx:XmLabel{\n\tcontrols {\n\t\t};\n\targuments {\n\t\tXmNlabelString = " + value +
         ";\n\t\t};\n";
}

std::string LabelOf(const std::string& text) {
  std::string value;
  const Module module = ParseModule(text);
  ForEachObject(module,
                [&](const Object& object) { value = *FindArgument(object, "XmNlabelString"); });
  return value;
}

std::size_t LongestLine(const std::string& text) {
  std::size_t longest = 0;
  for (std::size_t pos = 0; pos < text.size();) {
    const std::size_t end = std::min(text.find('\n', pos), text.size());
    longest = std::max(longest, end - pos);
    pos = end + 1;
  }
  return longest;
}

std::string Fix(const std::string& text) {
  Report report;
  return FixText(text, {}, report);
}

TEST(Rewrites, HaveDifferentNames) {
  std::set<std::string_view> names;
  for (const Rewrite& rewrite : Rewrites()) {
    EXPECT_TRUE(names.insert(rewrite.name).second) << rewrite.name;
    EXPECT_EQ(FindRewrite(rewrite.name), &rewrite);
  }
  EXPECT_EQ(FindRewrite("no such"), nullptr);
}

// Labels of every length around the limit: unchanged as long as they fit, then broken so that the
// lines fit and join to the same text.
TEST(Rewrites, BrokenLinesJoinToTheSameText) {
  for (std::size_t length = 90; length < 420; ++length) {
    std::string inside;
    while (inside.size() < length) inside += length % 2 ? "ab \\n" : "\\\"xyz\\\\";
    const std::string module = Label('"' + inside + '"');
    Report report;
    const std::string fixed = FixText(module, {"labels"}, report);
    if (LongestLine(module) <= 130) {
      EXPECT_EQ(fixed, module);
      continue;
    }
    EXPECT_LE(LongestLine(fixed), 130u);
    std::string joined;
    ASSERT_TRUE(PlainString(LabelOf(fixed), &joined));
    EXPECT_EQ(joined, inside);
    EXPECT_EQ(Fix(fixed), Fix(Fix(fixed)));
  }
}

TEST(Rewrites, LongLabelOfSeveralLinesIsBrokenToo) {
  const std::string line(200, 'x');
  const std::string fixed = Fix(Label("\"" + line + "\\n" + line + "\""));
  EXPECT_LE(LongestLine(fixed), 130u);
  EXPECT_EQ(LabelOf(fixed).find("compound_string("), 0u);
  EXPECT_EQ(Fix(fixed), fixed);
}

// Wherever in its line a comment begins, what stands in it comes to light nowhere.
TEST(Rewrites, CommentAtTheEndOfALineStaysOne) {
  for (std::size_t column = 120; column <= 130; ++column) {
    std::string text = "value\n";
    while (text.size() < 6 + column) text += "x;";
    text += "/*c\nobject\nt:XmText{\n\targuments {\n\t\t};\n};\n*/\n";
    const std::string fixed = Fix(text);
    EXPECT_LE(LongestLine(fixed), 130u);
    EXPECT_NE(fixed.find("/*c\nobject\n"), std::string::npos) << fixed;
  }
}

TEST(Rewrites, EmptyTextStaysEmpty) {
  EXPECT_EQ(Fix(""), "");
  EXPECT_EQ(Fix("\n"), "\n");
}

// The shells' heads stand behind declarations, where no head is looked for. Each declaration that
// is left out for being a second one brings the next head to light.
std::string HeadsBehindDeclarations(int count) {
  std::string text = "a:l{;\n";
  for (int i = 0; i < count; ++i) {
    text += "\tArguments {\nprocedure p;};\n\x01\nprocedure p;!object\n!:l{\n;\n";
  }
  return text;
}

TEST(Rewrites, OddTextIsMendedUntilNothingIsLeftToDo) {
  const std::string fixed = Fix(HeadsBehindDeclarations(4));
  EXPECT_EQ(fixed.find("!:l{"), std::string::npos) << fixed;
  EXPECT_EQ(Fix(fixed), fixed);
}

TEST(Rewrites, TextThatIsMendedDifferentlyEachTimeIsRefused) {
  const std::string text = HeadsBehindDeclarations(20);
  Report report;
  EXPECT_EQ(MendText(text, {}, report), std::nullopt);
  EXPECT_EQ(report.HopelessLine(), 3);
  EXPECT_TRUE(report.Changes().empty());
  EXPECT_EQ(FixText(text, {}, report), text);
}

// Twenty thousand widgets of one name: renaming all but one takes no more than a moment.
TEST(Rewrites, ManyDuplicatesAreRenamed) {
  std::string module;
  for (int i = 0; i < 20000; ++i) module += "object\nx:XmLabel{\n\tcontrols {\n\t\t};\n";
  const std::string fixed = Fix(module);
  EXPECT_NE(fixed.find("\nx19999:XmLabel{"), std::string::npos);
}

}  // namespace
}  // namespace uilfix
