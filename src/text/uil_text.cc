// SPDX-License-Identifier: MIT
#include "text/uil_text.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "osi/arena.h"
#include "osi/fatal.h"
#include "osi/strings.h"

// One below the first number handed out.
static constexpr int32_t kFirstSerial = 99;
static int32_t serial = kFirstSerial;

static constexpr std::size_t kInt32Digits = 11;  // "-2147483648"

char* JoinTexts(const char* before, const char* text, const char* after,
                const char* out_of_memory) {
  const std::size_t before_length = OsiStrlen(before);
  const std::size_t text_length = OsiStrlen(text);
  const std::size_t after_length = OsiStrlen(after);
  char* joined = ArenaTextBlock(before_length + text_length + after_length + 1);
  if (!joined) Error(out_of_memory);
  char* end = joined;
  if (before_length) std::memcpy(end, before, before_length);
  end += before_length;
  if (text_length) std::memcpy(end, text, text_length);
  end += text_length;
  if (after_length) std::memcpy(end, after, after_length);
  end[after_length] = '\0';
  return joined;
}

// Writes the digits of `number` and a NUL into `buffer`; returns their count.
static std::size_t FormatInt(int32_t number, char (&buffer)[kInt32Digits + 1]) {
  char* end = std::to_chars(buffer, buffer + kInt32Digits, number).ptr;
  *end = '\0';
  return static_cast<std::size_t>(end - buffer);
}

char* IntToString(int32_t number) {
  char digits[kInt32Digits + 1];
  char* text = ArenaText(digits, FormatInt(number, digits));
  if (!text) Error("Out of memory in IntToString");
  return text;
}

int32_t StringToInt(const char* text) {
  if (!text) return 0;
  // Mostly a number that we wrote ourselves.
  int32_t number = 0;
  if (std::from_chars(text, text + std::strlen(text), number).ec == std::errc()) return number;
  return static_cast<int32_t>(std::strtol(text, nullptr, 10));
}

char* IntToQuotedString(int32_t number) {
  char digits[kInt32Digits + 1];
  FormatInt(number, digits);
  return JoinTexts("\"", digits, "\"", "Out of memory in IntToString");
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
  char digits[kInt32Digits + 1];
  FormatInt(++serial, digits);
  return JoinTexts(a, b, digits, "Out of memory in MergeStringsUnique");
}

std::size_t CountNewlines(const char* text) {
  std::size_t count = 0;
  if (text) {
    for (; *text; ++text) count += *text == '\n';
  }
  return count;
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
  if (length > 0) {
    char& last = text[length - 1];
    if (last >= '0' && last <= '8') last = static_cast<char>(last + ('A' - '0'));
  }
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
  // A text that was a single quote is empty by now.
  return *text == '"' ? text + 1 : text;
}

int IbStrncmp(const char* a, const char* b, std::size_t length) { return OsiStrncmp(a, b, length); }

void ResetStrings() { serial = kFirstSerial; }
