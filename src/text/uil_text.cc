// SPDX-License-Identifier: MIT
#include "text/uil_text.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

#include "osi/arena.h"
#include "osi/fatal.h"
#include "osi/strings.h"

// One below the first number handed out.
static constexpr int32_t kFirstSerial = 99;
static int32_t serial = kFirstSerial;

char* JoinTexts(const char* before, const char* text, const char* after,
                const char* out_of_memory) {
  const std::string_view parts[] = {OsiView(before), OsiView(text), OsiView(after)};
  char* joined = ArenaTextBlock(parts[0].size() + parts[1].size() + parts[2].size() + 1);
  if (!joined) Error(out_of_memory);
  char* end = joined;
  for (std::string_view part : parts) end = std::copy(part.begin(), part.end(), end);
  *end = '\0';
  return joined;
}

char* IntToString(int32_t number) {
  char digits[16];  // room for "-2147483648"
  const char* end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
  char* text = ArenaText(digits, static_cast<std::size_t>(end - digits));
  if (!text) Error("Out of memory in IntToString");
  return text;
}

int32_t ReadInt(std::string_view text) {
  int32_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec == std::errc()) return number;
  return static_cast<int32_t>(std::strtol(text.data(), nullptr, 10));
}

int32_t StringToInt(const char* text) { return text ? ReadInt(text) : 0; }

char* IntToQuotedString(int32_t number) {
  return JoinTexts("\"", std::to_string(number).c_str(), "\"", "Out of memory in IntToString");
}

char* MakeQuotedString(const char* text) {
  return JoinTexts("\"", text, "\"", "Out of memory in MakeQuotedString");
}

char* MakeBracketedString(const char* text) {
  return JoinTexts("[", text, "]", "Out of memory in MakeBracketedString");
}

char* MergeStrings(const char* a, const char* b) {
  return JoinTexts(a, b, "", "Out of memory in MergeStrings");
}

char* MergeStringsUnique(const char* a, const char* b) {
  return JoinTexts(a, b, std::to_string(++serial).c_str(), "Out of memory in MergeStringsUnique");
}

std::size_t CountNewlines(const char* text) {
  return text ? static_cast<std::size_t>(std::count(text, text + std::strlen(text), '\n')) : 0;
}

char* ReplaceNewlines(const char* text) {
  if (!text) return nullptr;
  char* copy = ArenaTextBlock(std::strlen(text) + CountNewlines(text) + 1);
  if (!copy) Error("Out of memory in ReplaceNewlines");
  char* end = copy;
  for (; *text; ++text) {
    if (*text == '\n') {
      *end++ = '\\';
      *end++ = 'n';
    } else {
      *end++ = *text;
    }
  }
  *end = '\0';
  return copy;
}

char* ReplaceTrailingDigit(char* text) {
  const std::size_t length = OsiStrlen(text);
  if (length == 0) return text;
  char& last = text[length - 1];
  if (last >= '0' && last <= '8') last = static_cast<char>(last + ('A' - '0'));
  return text;
}

char* FilenameWithoutExtension(const char* path) {
  const char* dot = path ? std::strrchr(path, '.') : nullptr;
  char* copy = ArenaText(path, dot ? static_cast<std::size_t>(dot - path) : OsiStrlen(path));
  if (!copy) Error("Out of memory in FilenameWithoutExtension");
  return copy;
}

char* EndOfString(char* text) { return text ? text + std::strlen(text) : nullptr; }

char* RemoveQuotes(char* text) {
  const std::size_t length = OsiStrlen(text);
  if (length == 0) return text;
  if (text[length - 1] == '"') text[length - 1] = '\0';
  // A text of one quote is empty by now.
  return *text == '"' ? text + 1 : text;
}

int IbStrncmp(const char* a, const char* b, std::size_t length) { return OsiStrncmp(a, b, length); }

void ResetStrings() { serial = kFirstSerial; }
