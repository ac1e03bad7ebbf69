// SPDX-License-Identifier: MIT
#include "osi/fixed_text.h"

#include <gtest/gtest.h>

#include <string>

TEST(FixedTextTest, KeepsItsText) {
  const char* literal = "XmNwidth";
  EXPECT_EQ(FixedText::Of(literal).text(), literal);
  EXPECT_EQ(FixedText("XmNwidth").view(), "XmNwidth");
}

TEST(FixedTextTest, IsEmptyWhereThereIsNoText) {
  EXPECT_TRUE(FixedText().empty());
  EXPECT_TRUE(FixedText("").empty());
  EXPECT_TRUE(FixedText(nullptr).empty());
  EXPECT_TRUE(FixedText::Of(nullptr).empty());
  EXPECT_STREQ(FixedText(nullptr).text(), "");
  EXPECT_FALSE(FixedText("X").empty());
}

TEST(FixedTextTest, EqualsTheSameTextElsewhere) {
  const std::string elsewhere = "XmNx";
  EXPECT_EQ(FixedText("XmNx"), FixedText::Of(elsewhere.c_str()));
  EXPECT_EQ(FixedText(), FixedText(""));
}

TEST(FixedTextTest, DiffersFromAnyOther) {
  EXPECT_NE(FixedText("XmNx"), FixedText("XmNy"));
  EXPECT_NE(FixedText("XmText"), FixedText("XmTextField"));
  EXPECT_NE(FixedText("XmText"), FixedText("xmtext"));
  EXPECT_NE(FixedText("XmText"), FixedText());
}

// FNV-1a of both is the same.
TEST(FixedTextTest, DiffersFromATextOfTheSameHash) {
  EXPECT_NE(FixedText("costarring"), FixedText("liquid"));
  EXPECT_NE(FixedText("declinate"), FixedText("macallums"));
}
