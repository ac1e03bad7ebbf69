// SPDX-License-Identifier: MIT
#include "osi/strings.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "osi/memory.h"
#include "unit/osi/owned.h"

TEST(OsiOrEmpty, GivesTheStringItself) {
  const char* text = "button";
  EXPECT_EQ(OsiOrEmpty(text), text);
  EXPECT_STREQ(OsiOrEmpty(nullptr), "");
}

TEST(OsiView, IsTheTextUpToItsNul) {
  EXPECT_EQ(OsiView("but\0ton"), "but");
  EXPECT_EQ(OsiView(nullptr), "");
}

TEST(OsiStrcmp, TakesNullAsEmpty) {
  EXPECT_EQ(OsiStrcmp(nullptr, ""), 0);
  EXPECT_EQ(OsiStrcmp("", nullptr), 0);
  EXPECT_EQ(OsiStrcmp(nullptr, nullptr), 0);
  EXPECT_LT(OsiStrcmp(nullptr, "a"), 0);
  EXPECT_GT(OsiStrcmp("a", nullptr), 0);
}

TEST(OsiStrcmp, OrdersByUnsignedBytesAndMindsCase) {
  const std::string copy = "button";
  EXPECT_EQ(OsiStrcmp("button", copy.c_str()), 0);
  EXPECT_LT(OsiStrcmp("Button", "button"), 0);
  EXPECT_GT(OsiStrcmp("button1", "button"), 0);
  EXPECT_GT(OsiStrcmp("\xff", "a"), 0);
}

TEST(OsiStrcmp, FindsOneTextEqualToItself) {
  const char* shared = "shared";
  EXPECT_EQ(OsiStrcmp(shared, shared), 0);
}

TEST(OsiStrncmp, ComparesTheFirstBytesOnly) {
  EXPECT_EQ(OsiStrncmp("window1", "window2", 6), 0);
  EXPECT_LT(OsiStrncmp("window1", "window2", 7), 0);
  EXPECT_EQ(OsiStrncmp("a", "b", 0), 0);
}

TEST(OsiStrncmp, TakesNullAsEmpty) {
  EXPECT_EQ(OsiStrncmp(nullptr, "", 5), 0);
  EXPECT_LT(OsiStrncmp(nullptr, "a", 1), 0);
  EXPECT_GT(OsiStrncmp("a", nullptr, 1), 0);
}

TEST(OsiStrPcmp, SortsAnArrayOfStringsWithNullFirst) {
  std::vector<const char*> words = {"pane", nullptr, "Menu", "button"};
  std::qsort(words.data(), words.size(), sizeof words[0], OsiStrPcmp);
  EXPECT_EQ(words[0], nullptr);
  EXPECT_STREQ(words[1], "Menu");
  EXPECT_STREQ(words[2], "button");
  EXPECT_STREQ(words[3], "pane");
}

TEST(OsiStrPcmp, TakesNullPointersAsPointingAtNothing) {
  const char* word = "a";
  EXPECT_EQ(OsiStrPcmp(nullptr, nullptr), 0);
  EXPECT_LT(OsiStrPcmp(nullptr, &word), 0);
}

TEST(OsiStrlen, CountsBytesAndGivesZeroForNull) {
  EXPECT_EQ(OsiStrlen(nullptr), 0U);
  EXPECT_EQ(OsiStrlen(""), 0U);
  EXPECT_EQ(OsiStrlen("label"), 5U);
}

TEST(OsiStrdup, CopiesIntoMemoryOfItsOwn) {
  char original[] = "label";
  char* copy = OsiStrdup(original);
  original[0] = 'L';
  EXPECT_NE(copy, original);
  EXPECT_EQ(Take(copy), "label");
  EXPECT_EQ(Take(OsiStrdup("")), "");
}

TEST(OsiStrdup, GivesNullForNull) { EXPECT_EQ(OsiStrdup(nullptr), nullptr); }

TEST(OsiStrcpy, ReturnsTheDestination) {
  char dst[8] = "xxxxxxx";
  EXPECT_EQ(OsiStrcpy(dst, "menu"), dst);
  EXPECT_STREQ(dst, "menu");
}

TEST(OsiStrcpy, TakesANullSourceAsEmpty) {
  char dst[8] = "menu";
  EXPECT_EQ(OsiStrcpy(dst, nullptr), dst);
  EXPECT_STREQ(dst, "");
}

TEST(OsiStrcpy, DoesNothingForANullDestination) {
  EXPECT_EQ(OsiStrcpy(nullptr, "menu"), nullptr);
  EXPECT_EQ(OsiStrcpy(nullptr, nullptr), nullptr);
}

TEST(OsiStrncpy, FillsUpWithNulAndLeavesALongSourceUnterminated) {
  char dst[6] = "xxxxx";
  EXPECT_EQ(OsiStrncpy(dst, "ab", 4), dst);
  EXPECT_EQ(std::string(dst, 6), std::string("ab\0\0x\0", 6));
  OsiStrncpy(dst, "12345", 3);
  EXPECT_EQ(std::string(dst, 6), std::string("123\0x\0", 6));
}

TEST(OsiStrncpy, TakesNulls) {
  char dst[4] = "xxx";
  EXPECT_EQ(OsiStrncpy(dst, nullptr, 3), dst);
  EXPECT_EQ(std::string(dst, 4), std::string("\0\0\0\0", 4));
  EXPECT_EQ(OsiStrncpy(nullptr, "a", 1), nullptr);
}

TEST(OsiStrcat, Appends) {
  char dst[16] = "menu";
  EXPECT_EQ(OsiStrcat(dst, "bar"), dst);
  EXPECT_STREQ(dst, "menubar");
  EXPECT_EQ(OsiStrcat(dst, nullptr), dst);
  EXPECT_STREQ(dst, "menubar");
  EXPECT_EQ(OsiStrcat(nullptr, "bar"), nullptr);
}

TEST(OsiStrncat, AppendsTheFirstBytesAndTerminates) {
  char dst[16] = "menu";
  EXPECT_EQ(OsiStrncat(dst, "barrel", 3), dst);
  EXPECT_STREQ(dst, "menubar");
  EXPECT_EQ(OsiStrncat(dst, nullptr, 3), dst);
  EXPECT_STREQ(dst, "menubar");
  EXPECT_EQ(OsiStrncat(nullptr, "bar", 3), nullptr);
}

TEST(OsiStrchr, FindsTheFirstAndTheLast) {
  const char* path = "/usr/bin/sed";
  EXPECT_EQ(OsiStrchr(path, '/'), path);
  EXPECT_EQ(OsiStrrchr(path, '/'), path + 8);
  EXPECT_EQ(OsiStrchr(path, 'x'), nullptr);
  EXPECT_EQ(OsiStrrchr(path, 'x'), nullptr);
  EXPECT_EQ(OsiStrchr(path, '\0'), path + 12);
}

TEST(OsiStrchr, FindsNothingInNull) {
  EXPECT_EQ(OsiStrchr(nullptr, 'a'), nullptr);
  EXPECT_EQ(OsiStrchr(nullptr, '\0'), nullptr);
  EXPECT_EQ(OsiStrrchr(nullptr, 'a'), nullptr);
}

TEST(OsiStrstr, FindsTheFirstOccurrence) {
  const char* text = "option_menu_menu";
  EXPECT_EQ(OsiStrstr(text, "menu"), text + 7);
  EXPECT_EQ(OsiStrstr(text, "Menu"), nullptr);
  EXPECT_EQ(OsiStrstr(text, ""), text);
  EXPECT_EQ(OsiStrstr(text, nullptr), text);
  EXPECT_EQ(OsiStrstr(nullptr, "menu"), nullptr);
}

TEST(OsiStrAppend, GrowsAStringByOneOrTwo) {
  char* s = OsiStrAppend(OsiStrdup("slider"), "_label");
  s = OsiStrAppend(s, "_", "form");
  EXPECT_EQ(Take(s), "slider_label_form");
}

TEST(OsiStrAppend, MakesANewStringFromNull) {
  EXPECT_EQ(Take(OsiStrAppend(nullptr, "a", "b")), "ab");
  EXPECT_EQ(Take(OsiStrAppend(nullptr, nullptr)), "");
  EXPECT_EQ(Take(OsiStrAppend(OsiStrdup("a"), nullptr, "b")), "ab");
}

TEST(OsiStrAppend, AppendsPartsOfTheStringItself) {
  char* s = OsiStrdup("abc");
  EXPECT_EQ(Take(OsiStrAppend(s, s, s + 1)), "abcabcbc");
}

TEST(OsiStrReplace, KeepsTheBlockWhenTheTextFits) {
  char* s = OsiStrdup("window");
  EXPECT_EQ(OsiStrReplace(s, "menu"), s);
  EXPECT_EQ(Take(s), "menu");
}

TEST(OsiStrReplace, GrowsAsNeeded) {
  const std::string long_text(5000, 'x');
  EXPECT_EQ(Take(OsiStrReplace(OsiStrdup("a"), long_text.c_str())), long_text);
  EXPECT_EQ(Take(OsiStrReplace(nullptr, "abc")), "abc");
}

TEST(OsiStrReplace, GrowsByOneByte) {
  // One byte less than a block of the allocator's has room for, so that one more needs another.
  char* s = OsiStrdup(std::string(23, 'a').c_str());
  const std::string former(malloc_usable_size(s) - 1, 'a');
  OsiFree(s);
  s = OsiStrReplace(OsiStrdup(former.c_str()), (former + "b").c_str());
  EXPECT_GT(malloc_usable_size(s), former.size() + 1);
  EXPECT_EQ(Take(s), former + "b");
}

TEST(OsiStrReplace, MakesTheStringEmptyForNull) {
  EXPECT_EQ(Take(OsiStrReplace(OsiStrdup("window"), nullptr)), "");
  EXPECT_EQ(Take(OsiStrReplace(nullptr, nullptr)), "");
}

TEST(OsiStrReplace, TakesAPartOfTheStringItself) {
  char* s = OsiStrdup("window");
  EXPECT_EQ(Take(OsiStrReplace(s, s + 3)), "dow");
  s = OsiStrdup("window");
  EXPECT_EQ(Take(OsiStrReplace(s, s)), "window");
  // The allocator maps a block of this size by itself: made smaller, it would lose its end at once.
  constexpr std::size_t kLength = 40'000'000;
  s = OsiStrdup(std::string(kLength, 'x').c_str());
  EXPECT_EQ(Take(OsiStrReplace(s, s + kLength - 3)), "xxx");
}
