// SPDX-License-Identifier: MIT
#include "osi/escapes.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "osi/memory.h"
#include "unit/osi/owned.h"

static std::string Fix(const char* s, const OsiFixOptions& options, unsigned flags) {
  return Take(OsiStrFixChars(s, &options, flags));
}

static std::string Fix(const char* s) { return Take(OsiStrFixChars(s, nullptr, 0)); }

TEST(OsiStrFixChars, EscapesBackslashAndNamedControls) {
  EXPECT_EQ(Fix("a\\b"), "a\\\\b");
  EXPECT_EQ(Fix("\a\b\t\n\v\f\r"), "\\a\\b\\t\\n\\v\\f\\r");
}

TEST(OsiStrFixChars, EscapesOtherControlsInThreeOctalDigits) {
  EXPECT_EQ(Fix("\001"
                "7\033[\177"),
            "\\0017\\033[\\177");
}

TEST(OsiStrFixChars, LeavesEveryOtherByteAlone) {
  std::string plain;
  for (int byte = 0x20; byte < 0x100; ++byte) {
    if (byte != '\\' && byte != 0x7f) plain += static_cast<char>(byte);
  }
  EXPECT_EQ(Fix(plain.c_str()), plain);
}

TEST(OsiStrFixChars, TakesNullAsEmpty) {
  EXPECT_EQ(Fix(nullptr), "");
  constexpr unsigned kAll =
      kOsiFixMap | kOsiFixPrefix | kOsiFixSuffix | kOsiFixBreak | kOsiFixReuse;
  EXPECT_EQ(Take(OsiStrFixChars("a\tb", nullptr, kAll)), "a\\tb");
  EXPECT_EQ(Fix(""), "");
}

TEST(OsiStrFixChars, MapsBytesAsTheCallerWants) {
  const OsiFixMapping mappings[] = {{'"', "\\\""}, {'\n', " "}, {0xe9, "e'"}, {'x', nullptr}};
  OsiFixOptions options;
  options.mappings = mappings;
  options.mapping_count = 4;
  EXPECT_EQ(Fix("\"\xe9x\n\t\"", options, kOsiFixMap), "\\\"e' \\t\\\"");
  EXPECT_EQ(Fix("\"", options, 0), "\"");
}

TEST(OsiStrFixChars, LetsTheLastMappingOfAByteWin) {
  const OsiFixMapping mappings[] = {{'a', "1"}, {'a', "2"}};
  OsiFixOptions options;
  options.mappings = mappings;
  options.mapping_count = 2;
  EXPECT_EQ(Fix("a", options, kOsiFixMap), "2");
}

TEST(OsiStrFixChars, PutsTextsAroundUnescaped) {
  OsiFixOptions options;
  options.prefix = "(\n";
  options.suffix = "\\)";
  EXPECT_EQ(Fix("a\n", options, kOsiFixPrefix | kOsiFixSuffix), "(\na\\n\\)");
  EXPECT_EQ(Fix("a", options, kOsiFixPrefix), "(\na");
  EXPECT_EQ(Fix("a", options, kOsiFixSuffix), "a\\)");
  EXPECT_EQ(Fix("a", options, 0), "a");
  EXPECT_EQ(Fix("a", OsiFixOptions(), kOsiFixPrefix | kOsiFixSuffix), "a");
}

TEST(OsiStrFixChars, BreaksEveryNBytesButNotAtTheEnd) {
  OsiFixOptions options;
  options.break_every = 3;
  EXPECT_EQ(Fix("abcdefg", options, kOsiFixBreak), "abc\ndef\ng");
  EXPECT_EQ(Fix("abcdef", options, kOsiFixBreak), "abc\ndef");
  EXPECT_EQ(Fix("abcdefg", options, 0), "abcdefg");
  options.break_text = "\\\n";
  EXPECT_EQ(Fix("abcd", options, kOsiFixBreak), "abc\\\nd");
  options.break_text = nullptr;
  EXPECT_EQ(Fix("abcd", options, kOsiFixBreak), "abcd");
  options.break_every = 0;
  EXPECT_EQ(Fix("abcd", options, kOsiFixBreak), "abcd");
}

TEST(OsiStrFixChars, NeverBreaksAnEscapeSequence) {
  OsiFixOptions options;
  options.break_every = 3;
  EXPECT_EQ(Fix("ab\ncd\nef", options, kOsiFixBreak), "ab\\n\ncd\\n\nef");
}

TEST(OsiStrFixChars, ReusesABufferThatIsLargeEnough) {
  char buffer[5];
  OsiFixOptions options;
  options.buffer = buffer;
  options.buffer_size = sizeof buffer;
  EXPECT_EQ(OsiStrFixChars("a\nb", &options, kOsiFixReuse), buffer);
  EXPECT_STREQ(buffer, "a\\nb");
}

TEST(OsiStrFixChars, MakesANewBlockWhenTheBufferIsTooSmallOrNotToBeUsed) {
  char buffer[5] = "keep";
  OsiFixOptions options;
  options.buffer = buffer;
  options.buffer_size = sizeof buffer;
  EXPECT_EQ(Fix("12345", options, kOsiFixReuse), "12345");
  EXPECT_EQ(Fix("1", options, 0), "1");
  options.buffer_size = 0;
  EXPECT_EQ(Fix("", options, kOsiFixReuse), "");
  EXPECT_STREQ(buffer, "keep");
  EXPECT_EQ(Fix("1", OsiFixOptions(), kOsiFixReuse), "1");
}

TEST(OsiStrFixChars, EscapesATextWhereItLies) {
  char buffer[16] = "a\tb";
  OsiFixOptions options;
  options.buffer = buffer;
  options.buffer_size = sizeof buffer;
  EXPECT_EQ(OsiStrFixChars(buffer, &options, kOsiFixReuse), buffer);
  EXPECT_STREQ(buffer, "a\\tb");
}
