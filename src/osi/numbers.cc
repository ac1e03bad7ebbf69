// SPDX-License-Identifier: MIT
#include "osi/numbers.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

#include "osi/memory.h"
#include "osi/strings.h"
#include "osi/trim.h"
#include "osi/wide_text.h"

// A number is too large from here on. A digit too many can wrap the 32-bit sum back below the limit
// (4294967297 reads as 1). That does no harm: such numbers only tell names apart.
static constexpr std::uint32_t kNumberLimit = std::uint32_t{1} << 30;

// Reads the wide `text` into `*value`.
static OsiNumberError ReadNumber(const wchar_t* text, int* value) {
  while (*text == L' ' || *text == L'\t') ++text;
  bool is_negative = *text == L'-';
  if (is_negative) ++text;
  std::uint32_t number = 0;
  for (; *text >= L'0' && *text <= L'9'; ++text) {
    number = number * 10 + static_cast<std::uint32_t>(*text - L'0');
    if (number >= kNumberLimit) return kOsiNumberTooLarge;
  }
  if (*text) return kOsiNotANumber;
  *value = is_negative ? -static_cast<int>(number) : static_cast<int>(number);
  return kOsiNumberOk;
}

bool OsiStrToInt(const char* s, int* value, int* error) {
  int number = 0;
  wchar_t* text = OsiWcMbstowcs(s);
  OsiNumberError result = text ? ReadNumber(text, &number) : kOsiNotANumber;
  OsiFree(text);
  if (value) *value = number;
  if (error) *error = result;
  return result == kOsiNumberOk;
}

char* OsiIntToStr(int n) {
  char digits[16];  // room for "-2147483648"
  std::snprintf(digits, sizeof digits, "%d", n);
  return OsiStrdup(digits);
}

int OsiRemoveEndDigits(char* s) {
  if (!s || !*s) return 0;
  OsiRemoveEndBlanks(s);
  char* last = s + std::strlen(s) - 1;
  while (last != s && *last >= '0' && *last <= '9') --last;
  int number = 0;
  OsiStrToInt(last + 1, &number, nullptr);
  last[1] = '\0';
  return number;
}
