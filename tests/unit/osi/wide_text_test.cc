// SPDX-License-Identifier: MIT
#include "osi/wide_text.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

#include "osi/memory.h"
#include "unit/osi/owned.h"
#include "unit/osi/surroundings.h"

namespace {

// "nai-diaeresis-ve" and the euro sign: 1, 2 and 3 bytes a character.
constexpr char kMultibyte[] = "na\xc3\xafve\xe2\x82\xac";
constexpr wchar_t kWide[] = L"na\u00efve\u20ac";
constexpr std::size_t kByteCount = 9;
constexpr std::size_t kCharacterCount = 6;

constexpr char kNoText[] = "a\xff";
constexpr wchar_t kNoCharacter[] = {L'a', static_cast<wchar_t>(0xd800), L'\0'};  // a lone surrogate

std::wstring TakeWide(wchar_t* w) {
  if (!w) {
    ADD_FAILURE() << "null where a new wide string was expected";
    return L"";
  }
  std::wstring text = w;
  OsiFree(w);
  return text;
}

class WideTextInUtf8 : public testing::Test {
 private:
  ScopedLocale locale_{"C.UTF-8"};
};

class WideTextInC : public testing::Test {
 private:
  ScopedLocale locale_{"C"};
};

TEST_F(WideTextInUtf8, MbstowcsConverts) {
  wchar_t wide[10];
  EXPECT_EQ(OsiMbstowcs(wide, kMultibyte, 10), kCharacterCount);
  EXPECT_EQ(std::wstring(wide), kWide);
}

TEST_F(WideTextInUtf8, MbstowcsCountsWithoutADestination) {
  EXPECT_EQ(OsiMbstowcs(nullptr, kMultibyte, 0), kCharacterCount);
  EXPECT_EQ(OsiMbstowcs(nullptr, nullptr, 0), 0U);
}

TEST_F(WideTextInUtf8, MbstowcsStopsWhenTheDestinationIsFull) {
  wchar_t wide[4] = {L'x', L'x', L'x', L'x'};
  EXPECT_EQ(OsiMbstowcs(wide, kMultibyte, 3), 3U);
  EXPECT_EQ(std::wstring(wide, 4), L"na\u00efx");
}

TEST_F(WideTextInUtf8, MbstowcsTakesNullAsEmptyAndRefusesWhatIsNoText) {
  wchar_t wide[4] = {L'x', L'x', L'x', L'x'};
  EXPECT_EQ(OsiMbstowcs(wide, nullptr, 4), 0U);
  EXPECT_EQ(wide[0], L'\0');
  EXPECT_EQ(OsiMbstowcs(wide, kNoText, 4), kOsiBadText);
}

TEST_F(WideTextInUtf8, WcstombsConverts) {
  char bytes[16];
  EXPECT_EQ(OsiWcstombs(bytes, kWide, sizeof bytes), kByteCount);
  EXPECT_STREQ(bytes, kMultibyte);
  EXPECT_EQ(OsiWcstombs(nullptr, kWide, 0), kByteCount);
}

TEST_F(WideTextInUtf8, WcstombsTakesNullAsEmptyAndRefusesWhatIsNoCharacter) {
  char bytes[16] = "x";
  EXPECT_EQ(OsiWcstombs(bytes, nullptr, sizeof bytes), 0U);
  EXPECT_STREQ(bytes, "");
  EXPECT_EQ(OsiWcstombs(bytes, kNoCharacter, sizeof bytes), kOsiBadText);
}

TEST_F(WideTextInUtf8, MbtowcConvertsOneCharacter) {
  wchar_t wide = L'x';
  EXPECT_EQ(OsiMbtowc(&wide, "\xe2\x82\xac..", 5), 3);
  EXPECT_EQ(wide, L'\u20ac');
  EXPECT_EQ(OsiMbtowc(&wide, "a", 1), 1);
  EXPECT_EQ(wide, L'a');
  EXPECT_EQ(OsiMbtowc(nullptr, "\xc3\xaf", 2), 2);
}

TEST_F(WideTextInUtf8, MbtowcFailsForPartsOfACharacter) {
  wchar_t wide;
  EXPECT_EQ(OsiMbtowc(&wide, "\xe2\x82\xac", 2), -1);
  EXPECT_EQ(OsiMbtowc(nullptr, nullptr, 0), 0);
  EXPECT_EQ(OsiMbtowc(&wide, "\xff", 1), -1);
}

TEST_F(WideTextInUtf8, MbtowcFindsTheEndOfTheString) {
  wchar_t wide = L'x';
  EXPECT_EQ(OsiMbtowc(&wide, "", 1), 0);
  EXPECT_EQ(wide, L'\0');
  wide = L'x';
  EXPECT_EQ(OsiMbtowc(&wide, nullptr, 1), 0);
  EXPECT_EQ(wide, L'\0');
}

TEST_F(WideTextInUtf8, LengthsAreInCharactersAndInBytes) {
  EXPECT_EQ(OsiWcStrlenWc(kWide), kCharacterCount);
  EXPECT_EQ(OsiWcStrlenWc(nullptr), 0U);
  EXPECT_EQ(OsiWcStrlen(kWide), kByteCount);
  EXPECT_EQ(OsiWcStrlen(nullptr), 0U);
  EXPECT_EQ(OsiWcStrlen(kNoCharacter), kOsiBadText);
}

TEST_F(WideTextInUtf8, LengthOfTheFirstCharacters) {
  EXPECT_EQ(OsiWcNStrlen(kWide, 0), 0U);
  EXPECT_EQ(OsiWcNStrlen(kWide, 2), 2U);
  EXPECT_EQ(OsiWcNStrlen(kWide, 3), 4U);
  EXPECT_EQ(OsiWcNStrlen(kWide, 6), kByteCount);
  EXPECT_EQ(OsiWcNStrlen(kWide, 1000), kByteCount);
  EXPECT_EQ(OsiWcNStrlen(nullptr, 3), 0U);
  EXPECT_EQ(OsiWcNStrlen(kNoCharacter, 1), 1U);
  EXPECT_EQ(OsiWcNStrlen(kNoCharacter, 2), kOsiBadText);
}

TEST_F(WideTextInUtf8, WcMbStrcatAppendsMultibyteText) {
  wchar_t wide[16] = L"ab";
  EXPECT_EQ(OsiWcMbStrcat(wide, kMultibyte), wide);
  EXPECT_EQ(std::wstring(wide), std::wstring(L"ab") + kWide);
  EXPECT_EQ(OsiWcMbStrcat(wide, nullptr), wide);
  EXPECT_EQ(std::wstring(wide), std::wstring(L"ab") + kWide);
}

TEST_F(WideTextInUtf8, WcMbStrcatAppendsNothingItCannotConvert) {
  wchar_t wide[16] = L"ab";
  EXPECT_EQ(OsiWcMbStrcat(wide, kNoText), nullptr);
  EXPECT_EQ(std::wstring(wide), L"ab");
  EXPECT_EQ(OsiWcMbStrcat(nullptr, "a"), nullptr);
}

TEST_F(WideTextInUtf8, NewCopiesOfEitherForm) {
  EXPECT_EQ(TakeWide(OsiWcMbstowcs(kMultibyte)), kWide);
  EXPECT_EQ(Take(OsiWcWcstombs(kWide)), kMultibyte);
  EXPECT_EQ(TakeWide(OsiWcMbstowcs(nullptr)), L"");
  EXPECT_EQ(Take(OsiWcWcstombs(nullptr)), "");
}

TEST_F(WideTextInUtf8, NoCopyOfWhatCannotBeConverted) {
  EXPECT_EQ(OsiWcMbstowcs(kNoText), nullptr);
  EXPECT_EQ(OsiWcWcstombs(kNoCharacter), nullptr);
}

TEST_F(WideTextInC, AsciiConvertsBothWays) {
  EXPECT_EQ(TakeWide(OsiWcMbstowcs("menu")), L"menu");
  EXPECT_EQ(Take(OsiWcWcstombs(L"menu")), "menu");
  EXPECT_EQ(OsiWcStrlen(L"menu"), 4U);
  wchar_t wide;
  EXPECT_EQ(OsiMbtowc(&wide, "menu", 4), 1);
  EXPECT_EQ(wide, L'm');
}

TEST_F(WideTextInC, TheEuroSignHasNoBytes) {
  EXPECT_EQ(OsiWcStrlen(kWide), kOsiBadText);
  EXPECT_EQ(OsiWcNStrlen(kWide, 2), 2U);
  EXPECT_EQ(OsiWcWcstombs(kWide), nullptr);
}

TEST(OsiWcStrcmp, ComparesWithNullAsEmpty) {
  EXPECT_EQ(OsiWcStrcmp(L"menu", L"menu"), 0);
  EXPECT_LT(OsiWcStrcmp(L"a", L"b"), 0);
  EXPECT_GT(OsiWcStrcmp(L"\u20ac", L"a"), 0);
  EXPECT_EQ(OsiWcStrcmp(nullptr, L""), 0);
  EXPECT_EQ(OsiWcStrcmp(nullptr, nullptr), 0);
  EXPECT_LT(OsiWcStrcmp(nullptr, L"a"), 0);
  EXPECT_GT(OsiWcStrcmp(L"a", nullptr), 0);
}

TEST(OsiWcStrcpy, CopiesWithNullAsEmpty) {
  wchar_t dst[8] = L"xxxx";
  EXPECT_EQ(OsiWcStrcpy(dst, L"menu"), dst);
  EXPECT_EQ(std::wstring(dst), L"menu");
  EXPECT_EQ(OsiWcStrcpy(dst, nullptr), dst);
  EXPECT_EQ(std::wstring(dst), L"");
  EXPECT_EQ(OsiWcStrcpy(nullptr, L"menu"), nullptr);
}

TEST(OsiWcStrcat, AppendsWithNullAsEmpty) {
  wchar_t dst[8] = L"menu";
  EXPECT_EQ(OsiWcStrcat(dst, L"bar"), dst);
  EXPECT_EQ(OsiWcStrcat(dst, nullptr), dst);
  EXPECT_EQ(std::wstring(dst), L"menubar");
  EXPECT_EQ(OsiWcStrcat(nullptr, L"bar"), nullptr);
}

TEST(OsiWcStrchr, FindsTheFirst) {
  EXPECT_EQ(OsiWcStrchr(kWide, L'\u20ac'), kWide + 5);
  EXPECT_EQ(OsiWcStrchr(kWide, L'\0'), kWide + 6);
  EXPECT_EQ(OsiWcStrchr(kWide, L'x'), nullptr);
  EXPECT_EQ(OsiWcStrchr(nullptr, L'x'), nullptr);
}

}  // namespace
