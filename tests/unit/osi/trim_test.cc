// SPDX-License-Identifier: MIT
#include "osi/trim.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/osi/owned.h"

// What is left of `text` after `cut`.
static std::string Cut(void (*cut)(char*), std::string text) {
  cut(text.data());
  return text.c_str();
}

TEST(OsiIsEmptyString, IsTrueForNullEmptyAndWhiteSpace) {
  EXPECT_TRUE(OsiIsEmptyString(nullptr));
  EXPECT_TRUE(OsiIsEmptyString(""));
  EXPECT_TRUE(OsiIsEmptyString(" \t\n\v\f\r"));
  EXPECT_FALSE(OsiIsEmptyString("a"));
  EXPECT_FALSE(OsiIsEmptyString("  a"));
  EXPECT_FALSE(OsiIsEmptyString("\xe9"));
}

TEST(OsiStrRemBeginEndSpaces, CopiesWithoutSpaceAtTheEnds) {
  EXPECT_EQ(Take(OsiStrRemBeginEndSpaces(" \t two words\n ")), "two words");
  EXPECT_EQ(Take(OsiStrRemBeginEndSpaces("word")), "word");
  EXPECT_EQ(Take(OsiStrRemBeginEndSpaces("  ")), "");
  EXPECT_EQ(Take(OsiStrRemBeginEndSpaces("")), "");
}

TEST(OsiStrRemBeginEndSpaces, CopiesEvenWhenNothingIsCut) {
  const char* word = "word";
  char* copy = OsiStrRemBeginEndSpaces(word);
  EXPECT_NE(copy, word);
  EXPECT_EQ(Take(copy), "word");
}

TEST(OsiStrRemBeginEndSpaces, GivesNullForNull) {
  EXPECT_EQ(OsiStrRemBeginEndSpaces(nullptr), nullptr);
}

TEST(OsiRemoveEndBlanks, CutsTrailingWhiteSpace) {
  EXPECT_EQ(Cut(OsiRemoveEndBlanks, "a label \t\n"), "a label");
  EXPECT_EQ(Cut(OsiRemoveEndBlanks, " label"), " label");
  EXPECT_EQ(Cut(OsiRemoveEndBlanks, "caf\xe9 "), "caf\xe9");
  EXPECT_EQ(Cut(OsiRemoveEndBlanks, ""), "");
}

TEST(OsiRemoveEndBlanks, KeepsTheFirstCharacter) {
  EXPECT_EQ(Cut(OsiRemoveEndBlanks, "\t  "), "\t");
  EXPECT_EQ(Cut(OsiRemoveEndBlanks, "a "), "a");
}

TEST(OsiRemoveEndNewlines, CutsNewlinesOnly) {
  EXPECT_EQ(Cut(OsiRemoveEndNewlines, "a line\n\n"), "a line");
  EXPECT_EQ(Cut(OsiRemoveEndNewlines, "a line \n"), "a line ");
  EXPECT_EQ(Cut(OsiRemoveEndNewlines, "a line\r\n"), "a line\r");
  EXPECT_EQ(Cut(OsiRemoveEndNewlines, "a line\n "), "a line\n ");
  EXPECT_EQ(Cut(OsiRemoveEndNewlines, ""), "");
}

TEST(OsiRemoveEndNewlines, KeepsTheFirstCharacter) {
  EXPECT_EQ(Cut(OsiRemoveEndNewlines, "\n\n"), "\n");
}

TEST(OsiRemoveEnd, LeavesNullAlone) {
  OsiRemoveEndBlanks(nullptr);
  OsiRemoveEndNewlines(nullptr);
}
