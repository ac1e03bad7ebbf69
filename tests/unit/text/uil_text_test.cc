// SPDX-License-Identifier: MIT
#include "text/uil_text.h"

#include <climits>
#include <functional>
#include <string>

#include "unit/support/session_fixture.h"

using StringsTest = SessionFixture;

static std::string WithoutDigit(std::string text) { return ReplaceTrailingDigit(text.data()); }

static std::string WithoutQuotes(std::string text) { return RemoveQuotes(text.data()); }

TEST_F(StringsTest, IntToStringIsDecimal) {
  EXPECT_STREQ(IntToString(0), "0");
  EXPECT_STREQ(IntToString(-12), "-12");
  EXPECT_STREQ(IntToString(INT32_MAX), "2147483647");
  EXPECT_STREQ(IntToString(INT32_MIN), "-2147483648");
}

TEST_F(StringsTest, IntToQuotedStringIsALiteral) {
  EXPECT_STREQ(IntToQuotedString(0), "\"0\"");
  EXPECT_STREQ(IntToQuotedString(INT32_MIN), "\"-2147483648\"");
}

TEST_F(StringsTest, QuotedTextIsNotEscaped) {
  EXPECT_STREQ(MakeQuotedString("a"), "\"a\"");
  EXPECT_STREQ(MakeQuotedString(""), "\"\"");
  EXPECT_STREQ(MakeQuotedString("a\"b\\"), "\"a\"b\\\"");
  EXPECT_STREQ(MakeQuotedString(nullptr), "\"\"");
}

TEST_F(StringsTest, BracketedText) {
  EXPECT_STREQ(MakeBracketedString("a"), "[a]");
  EXPECT_STREQ(MakeBracketedString(nullptr), "[]");
}

TEST_F(StringsTest, MergedTextsFollowEachOther) {
  EXPECT_STREQ(MergeStrings("button", "_label"), "button_label");
  EXPECT_STREQ(MergeStrings("", ""), "");
  EXPECT_STREQ(MergeStrings(nullptr, "b"), "b");
  EXPECT_STREQ(MergeStrings("a", nullptr), "a");
}

TEST_F(StringsTest, MergingLeavesItsArguments) {
  char a[] = "a";
  char* merged = MergeStrings(a, "");
  EXPECT_NE(merged, a);
  merged[0] = 'x';
  EXPECT_STREQ(a, "a");
}

TEST_F(StringsTest, UniqueTextsAreNumberedFrom100) {
  EXPECT_STREQ(MergeStringsUnique("button", "_"), "button_100");
  EXPECT_STREQ(MergeStringsUnique("button", "_"), "button_101");
  EXPECT_STREQ(MergeStringsUnique("other", ""), "other102");
}

TEST_F(StringsTest, ResetStartsTheNumbersAnew) {
  MergeStringsUnique("a", "b");
  ResetStrings();
  EXPECT_STREQ(MergeStringsUnique("a", "b"), "ab100");
}

TEST_F(StringsTest, JoinedTexts) {
  EXPECT_STREQ(JoinTexts("<", "a", ">", ""), "<a>");
  EXPECT_STREQ(JoinTexts(nullptr, nullptr, nullptr, ""), "");
}

TEST_F(StringsTest, NewlinesAreCounted) {
  EXPECT_EQ(CountNewlines("a\nb\n"), 2U);
  EXPECT_EQ(CountNewlines("a\\n"), 0U);
  EXPECT_EQ(CountNewlines(""), 0U);
  EXPECT_EQ(CountNewlines(nullptr), 0U);
}

TEST_F(StringsTest, NewlinesBecomeTwoCharacters) {
  EXPECT_STREQ(ReplaceNewlines("a\nb\n"), "a\\nb\\n");
  EXPECT_EQ(std::string(ReplaceNewlines("a\nb\n")).size(), 6U);
  EXPECT_STREQ(ReplaceNewlines("\n"), "\\n");
  EXPECT_STREQ(ReplaceNewlines(""), "");
  EXPECT_EQ(ReplaceNewlines(nullptr), nullptr);
}

TEST_F(StringsTest, ReplacingNewlinesCopies) {
  char text[] = "a\nb";
  EXPECT_NE(ReplaceNewlines(text), text);
  EXPECT_STREQ(text, "a\nb");
}

TEST_F(StringsTest, TrailingDigitBecomesALetter) {
  EXPECT_EQ(WithoutDigit("item0"), "itemA");
  EXPECT_EQ(WithoutDigit("item3"), "itemD");
  EXPECT_EQ(WithoutDigit("item8"), "itemI");
  EXPECT_EQ(WithoutDigit("item12"), "item1C");
  EXPECT_EQ(WithoutDigit("5"), "F");
}

TEST_F(StringsTest, TrailingNineAndOthersStay) {
  EXPECT_EQ(WithoutDigit("item9"), "item9");
  EXPECT_EQ(WithoutDigit("item1a"), "item1a");
  EXPECT_EQ(WithoutDigit("item:"), "item:");
  EXPECT_EQ(WithoutDigit("item/"), "item/");
  EXPECT_EQ(WithoutDigit(""), "");
}

TEST_F(StringsTest, TrailingDigitIsReplacedInPlace) {
  char text[] = "item3";
  EXPECT_EQ(ReplaceTrailingDigit(text), text);
  EXPECT_STREQ(text, "itemD");
  EXPECT_EQ(ReplaceTrailingDigit(nullptr), nullptr);
}

TEST_F(StringsTest, ExtensionIsCutAtTheLastDot) {
  EXPECT_STREQ(FilenameWithoutExtension("icon.xbm"), "icon");
  EXPECT_STREQ(FilenameWithoutExtension("a.b.c"), "a.b");
  EXPECT_STREQ(FilenameWithoutExtension("dir.old/icon"), "dir");
  EXPECT_STREQ(FilenameWithoutExtension(".profile"), "");
  EXPECT_STREQ(FilenameWithoutExtension("icon"), "icon");
  EXPECT_STREQ(FilenameWithoutExtension(""), "");
  EXPECT_STREQ(FilenameWithoutExtension(nullptr), "");
}

TEST_F(StringsTest, EndOfStringIsItsNul) {
  char text[] = "abc";
  EXPECT_EQ(EndOfString(text), text + 3);
  EXPECT_EQ(EndOfString(text + 3), text + 3);
  EXPECT_EQ(EndOfString(nullptr), nullptr);
}

TEST_F(StringsTest, QuotesAreRemovedOnceAtEachEnd) {
  EXPECT_EQ(WithoutQuotes("\"abc\""), "abc");
  EXPECT_EQ(WithoutQuotes("\"abc"), "abc");
  EXPECT_EQ(WithoutQuotes("abc\""), "abc");
  EXPECT_EQ(WithoutQuotes("abc"), "abc");
  EXPECT_EQ(WithoutQuotes("\"\"abc\"\""), "\"abc\"");
  EXPECT_EQ(WithoutQuotes("\"\""), "");
  EXPECT_EQ(WithoutQuotes("\""), "");
  EXPECT_EQ(WithoutQuotes(""), "");
}

TEST_F(StringsTest, QuotesAreRemovedInTheSameBuffer) {
  char text[] = "\"abc\"";
  EXPECT_EQ(RemoveQuotes(text), text + 1);
  EXPECT_EQ(text[4], '\0');
  EXPECT_EQ(RemoveQuotes(nullptr), nullptr);
}

TEST_F(StringsTest, PrefixesAreComparedWithNullAsEmpty) {
  EXPECT_EQ(IbStrncmp("abc", "abd", 2), 0);
  EXPECT_LT(IbStrncmp("abc", "abd", 3), 0);
  EXPECT_GT(IbStrncmp("abd", "abc", 3), 0);
  EXPECT_EQ(IbStrncmp(nullptr, "", 3), 0);
  EXPECT_EQ(IbStrncmp(nullptr, nullptr, 3), 0);
  EXPECT_LT(IbStrncmp(nullptr, "a", 3), 0);
  EXPECT_GT(IbStrncmp("a", nullptr, 3), 0);
}

struct MemoryCase {
  std::function<void()> helper;
  const char* name;  // as the message tells it
};

TEST_F(StringsTest, HelperWithoutMemoryEndsTheRun) {
  for (const auto& [helper, name] :
       {MemoryCase{[] { IntToString(1); }, "IntToString"},
        {[] { IntToQuotedString(1); }, "IntToString"},
        {[] { MakeQuotedString("a"); }, "MakeQuotedString"},
        {[] { MakeBracketedString("a"); }, "MakeBracketedString"},
        {[] { MergeStrings("a", "b"); }, "MergeStrings"},
        {[] { MergeStringsUnique("a", "b"); }, "MergeStringsUnique"},
        {[] { ReplaceNewlines("a"); }, "ReplaceNewlines"},
        {[] { FilenameWithoutExtension("a"); }, "FilenameWithoutExtension"}}) {
    const Outcome outcome = RunOutOfMemory(0, helper);
    EXPECT_EQ(outcome.status, -1) << name;
    EXPECT_EQ(outcome.out, "") << name;
    EXPECT_EQ(outcome.err, std::string("Error: Out of memory in ") + name + "\n");
  }
}
