// SPDX-License-Identifier: MIT
#include "uilfix/literals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace uilfix {
namespace {

using ::testing::ElementsAre;

TEST(Literals, EndAtTheFirstBareQuote) {
  EXPECT_EQ(LiteralEnd(R"("ab" c)", 0), 4u);
  EXPECT_EQ(LiteralEnd(R"("a\"b" c)", 0), 6u);
  EXPECT_EQ(LiteralEnd(R"("a\\" c)", 0), 5u);
  EXPECT_EQ(LiteralEnd(R"("a\233\" c)", 0), 8u);  // the backslash closes the number
  EXPECT_EQ(LiteralEnd(R"("a\7" c)", 0), 5u);
  EXPECT_EQ(LiteralEnd(R"("abc)", 0), std::string_view::npos);
  EXPECT_EQ(LiteralEnd(R"("abc\)", 0), std::string_view::npos);
}

TEST(Literals, SplitAndJoinAreInverse) {
  for (const std::string value : {"", "12", R"("a")", R"(string_table("a",
"b"))",
                                  R"("a" & "b)", R"(color("red"))"}) {
    EXPECT_EQ(JoinValue(SplitValue(value)), value);
  }
  const auto parts = SplitValue(R"(f("a", "b"))");
  ASSERT_EQ(parts.size(), 5u);
  EXPECT_FALSE(parts[0].literal);
  EXPECT_TRUE(parts[1].literal);
  EXPECT_EQ(parts[1].text, "\"a\"");
  EXPECT_EQ(parts[2].text, ", ");
}

TEST(Literals, EscapesAreThoseOfTheCompiler) {
  EXPECT_EQ(EscapeLength("\\n"), 2u);
  EXPECT_EQ(EscapeLength("\\\""), 2u);
  EXPECT_EQ(EscapeLength("\\233\\x"), 5u);
  EXPECT_EQ(EscapeLength("\\255\\"), 5u);
  EXPECT_EQ(EscapeLength("\\256\\"), 0u);
  EXPECT_EQ(EscapeLength("\\233"), 0u);
  EXPECT_EQ(EscapeLength("\\q"), 0u);
  EXPECT_EQ(EscapeLength("\\"), 0u);
}

TEST(Literals, CharactersKeepEscapesWhole) {
  std::vector<std::string_view> characters;
  std::string_view rest = R"(a\n\233\\q\)";
  while (!rest.empty()) characters.push_back(TakeCharacter(rest));
  EXPECT_THAT(characters, ElementsAre("a", "\\n", "\\233\\", "\\q", "\\"));
}

TEST(Literals, BytesAreWhatTheCompilerMakes) {
  EXPECT_EQ(LiteralBytes(R"(a\tb\65\\\c\"\q)"), "a\tbA\\c\"q");
}

TEST(Literals, PlainStringJoinsParts) {
  std::string inside;
  EXPECT_TRUE(PlainString("\"a\" &\n\t\"b\" & \"c\"", &inside));
  EXPECT_EQ(inside, "abc");
  EXPECT_TRUE(PlainString("\"\"", &inside));
  EXPECT_EQ(inside, "");
  EXPECT_FALSE(PlainString("\"a\" \"b\"", &inside));
  EXPECT_FALSE(PlainString("\"a\" &", &inside));
  EXPECT_FALSE(PlainString("compound_string(\"a\")", &inside));
  EXPECT_FALSE(PlainString("12", &inside));
  EXPECT_FALSE(PlainString("", &inside));
}

}  // namespace
}  // namespace uilfix
