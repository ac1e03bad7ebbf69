// SPDX-License-Identifier: MIT
#include "osi/numbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <string>

#include "unit/osi/owned.h"
#include "unit/osi/surroundings.h"

namespace {

struct Reading {
  bool success;
  int value;
  int error;
  bool operator==(const Reading&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Reading& reading) {
  return out << (reading.success ? "success " : "failure ") << reading.value << " error "
             << reading.error;
}

Reading Read(const char* s) {
  Reading reading = {false, 12345, 12345};
  reading.success = OsiStrToInt(s, &reading.value, &reading.error);
  return reading;
}

constexpr Reading Number(int value) { return {true, value, 0}; }
constexpr Reading kTooLarge = {false, 0, -1};
constexpr Reading kNoNumber = {false, 0, -2};

TEST(OsiStrToInt, ReadsDecimalDigits) {
  EXPECT_EQ(Read("0"), Number(0));
  EXPECT_EQ(Read("42"), Number(42));
  EXPECT_EQ(Read("007"), Number(7));
}

TEST(OsiStrToInt, SkipsLeadingBlanksAndTabs) {
  EXPECT_EQ(Read(" -42"), Number(-42));
  EXPECT_EQ(Read("\t \t42"), Number(42));
  EXPECT_EQ(Read("\n42"), kNoNumber);
}

TEST(OsiStrToInt, TakesOneMinusAndNoPlus) {
  EXPECT_EQ(Read("-7"), Number(-7));
  EXPECT_EQ(Read("--7"), kNoNumber);
  EXPECT_EQ(Read("- 7"), kNoNumber);
  EXPECT_EQ(Read("+7"), kNoNumber);
}

TEST(OsiStrToInt, ReadsNoDigitsAsZero) {
  EXPECT_EQ(Read(""), Number(0));
  EXPECT_EQ(Read(nullptr), Number(0));
  EXPECT_EQ(Read("  "), Number(0));
  EXPECT_EQ(Read("-"), Number(0));
}

TEST(OsiStrToInt, FailsForAnythingAfterTheDigits) {
  EXPECT_EQ(Read("42x"), kNoNumber);
  EXPECT_EQ(Read("42 "), kNoNumber);
  EXPECT_EQ(Read("x"), kNoNumber);
  EXPECT_EQ(Read("4.2"), kNoNumber);
}

TEST(OsiStrToInt, FailsFromTwoToThe30thOn) {
  EXPECT_EQ(Read("1073741823"), Number(1073741823));
  EXPECT_EQ(Read("-1073741823"), Number(-1073741823));
  EXPECT_EQ(Read("1073741824"), kTooLarge);
  EXPECT_EQ(Read("-1073741824"), kTooLarge);
  EXPECT_EQ(Read("2000000000"), kTooLarge);
  EXPECT_EQ(Read("2147483648"), kTooLarge);
  EXPECT_EQ(Read("99999999999"), kTooLarge);
}

TEST(OsiStrToInt, LooksNoFurtherOnceTheNumberIsTooLarge) {
  EXPECT_EQ(Read("2000000000x"), kTooLarge);
}

// 2^32 + 1: the tenth digit takes the 32-bit accumulator from 429496729 past 2^32 at once.
TEST(OsiStrToInt, WrapsAt32Bits) { EXPECT_EQ(Read("4294967297"), Number(1)); }

TEST(OsiStrToInt, AllowsMissingOutputs) {
  int value = 1;
  int error = 1;
  EXPECT_TRUE(OsiStrToInt("5", nullptr, nullptr));
  EXPECT_FALSE(OsiStrToInt("5x", nullptr, nullptr));
  EXPECT_TRUE(OsiStrToInt("5", &value, nullptr));
  EXPECT_EQ(value, 5);
  EXPECT_FALSE(OsiStrToInt("5x", nullptr, &error));
  EXPECT_EQ(error, -2);
}

TEST(OsiStrToInt, FailsForBytesThatAreNoText) {
  ScopedLocale locale("C.UTF-8");
  EXPECT_EQ(Read("42\xff"), kNoNumber);
  EXPECT_EQ(Read("\xff"), kNoNumber);
}

TEST(OsiStrToInt, TakesAsciiDigitsOnly) {
  ScopedLocale locale("C.UTF-8");
  EXPECT_EQ(Read("\xd9\xa4\xd9\xa2"), kNoNumber);  // Arabic-Indic 4 and 2
}

TEST(OsiIntToStr, WritesDecimal) {
  EXPECT_EQ(Take(OsiIntToStr(0)), "0");
  EXPECT_EQ(Take(OsiIntToStr(-42)), "-42");
  EXPECT_EQ(Take(OsiIntToStr(INT_MAX)), "2147483647");
  EXPECT_EQ(Take(OsiIntToStr(INT_MIN)), "-2147483648");
}

// The number that OsiRemoveEndDigits gives, and what it leaves of the text.
std::pair<int, std::string> Remove(std::string text) {
  int number = OsiRemoveEndDigits(text.data());
  return {number, text.c_str()};
}

std::pair<int, std::string> Left(int number, const char* text) { return {number, text}; }

TEST(OsiRemoveEndDigits, CutsATrailingNumberAndGivesIt) {
  EXPECT_EQ(Remove("name12"), Left(12, "name"));
  EXPECT_EQ(Remove("name007"), Left(7, "name"));
  EXPECT_EQ(Remove("a1b2"), Left(2, "a1b"));
  EXPECT_EQ(Remove("name20394"), Left(20394, "name"));
  EXPECT_EQ(Remove("name56789"), Left(56789, "name"));
  EXPECT_EQ(Remove("a/1"), Left(1, "a/"));
  EXPECT_EQ(Remove("a:1"), Left(1, "a:"));
  EXPECT_EQ(Remove("abc"), Left(0, "abc"));
  EXPECT_EQ(Remove("abc0"), Left(0, "abc"));
}

TEST(OsiRemoveEndDigits, NeverLooksAtTheFirstCharacter) {
  EXPECT_EQ(Remove("123"), Left(23, "1"));
  EXPECT_EQ(Remove("1"), Left(0, "1"));
  EXPECT_EQ(Remove(" 5"), Left(5, " "));
  EXPECT_EQ(Remove("   "), Left(0, " "));
}

TEST(OsiRemoveEndDigits, CutsTrailingWhiteSpaceFirst) {
  EXPECT_EQ(Remove("label  "), Left(0, "label"));
  EXPECT_EQ(Remove("label12 \t\n"), Left(12, "label"));
  EXPECT_EQ(Remove("label 12"), Left(12, "label "));
}

TEST(OsiRemoveEndDigits, CutsANumberThatIsTooLargeAndGivesZero) {
  EXPECT_EQ(Remove("name2000000000"), Left(0, "name"));
}

TEST(OsiRemoveEndDigits, DoesNotTakeTheMinusForASign) {
  EXPECT_EQ(Remove("name-5"), Left(5, "name-"));
}

TEST(OsiRemoveEndDigits, TakesBytesAbove127AsTheyAre) {
  EXPECT_EQ(Remove("\xe9\xe9"), Left(0, "\xe9\xe9"));
  EXPECT_EQ(Remove("caf\xe9"
                   "3"),
            Left(3, "caf\xe9"));
}

TEST(OsiRemoveEndDigits, GivesZeroForNothing) {
  EXPECT_EQ(OsiRemoveEndDigits(nullptr), 0);
  EXPECT_EQ(Remove(""), Left(0, ""));
}

}  // namespace
