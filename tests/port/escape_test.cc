// SPDX-License-Identifier: MIT
#include "port/escape.h"

#include <gtest/gtest.h>

using namespace port;

TEST(CText, EscapesWhatEndsAString) {
  EXPECT_EQ(CText("a\"b\\c"), "a\\\"b\\\\c");
  EXPECT_EQ(CText("two\nlines\t"), "two\\nlines\\011");
}

TEST(CText, LeavesNoTrigraph) { EXPECT_EQ(CText("?\?/"), "\\?\\?/"); }

TEST(CText, WritesOtherBytesWithThreeDigitsSoThatADigitMayFollow) {
  EXPECT_EQ(CText("\xe9"
                  "1"),
            "\\3511");
  EXPECT_EQ(CText(std::string("\0"
                              "7",
                              2)),
            "\\0007");
}

TEST(CComment, CannotBeEnded) {
  EXPECT_EQ(CComment("*/"), "* /");
  EXPECT_EQ(CComment("**//"), "** //");
  EXPECT_EQ(CComment("ends with *"), "ends with * ");
}

TEST(CComment, BeginsNoOther) { EXPECT_EQ(CComment("/*x"), "/ *x"); }

TEST(CComment, StaysOnItsLine) {
  EXPECT_EQ(CComment("a\nb\rc"), "a b c");
  EXPECT_EQ(CComment("a\\"), "a\\ ");
  EXPECT_EQ(CComment("?\?/"), "? ?/");
}

TEST(OneLine, MakesLatin1Utf8AndDropsControls) {
  EXPECT_EQ(OneLine("caf\xe9\x1b[0m\x85"), "caf\xc3\xa9 [0m ");
}

TEST(ResourceText, KeepsBlanksInFrontAndLineEnds) {
  EXPECT_EQ(ResourceText(" a\n\\b"), "\\ a\\n\\\\b");
}

TEST(RecipeText, StandsInSingleQuotes) {
  EXPECT_EQ(RecipeText("it's $(id)\n"), "it'\\''s $$(id) ");
}
