// SPDX-License-Identifier: MIT
// The helpers that build texts, each on any text, and what holds for its result.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "osi/arena.h"
#include "osi/numbers.h"
#include "osi/strings.h"
#include "osi/trim.h"
#include "text/uil_text.h"

namespace {

void Require(bool condition, const char* what, const std::string& text) {
  if (condition) return;
  std::fprintf(stderr, "%s does not hold for \"%s\"\n", what, text.c_str());
  std::abort();
}

// A writable copy of the text in a block of exactly its size.
class Buffer {
 public:
  explicit Buffer(const std::string& text) : bytes_(text.c_str(), text.c_str() + text.size() + 1) {
    bytes_.shrink_to_fit();
  }
  char* get() { return bytes_.data(); }

 private:
  std::vector<char> bytes_;
};

void CheckQuoting(const std::string& text) {
  Require(MakeQuotedString(text.c_str()) == "\"" + text + "\"", "quoting", text);
  Require(MakeBracketedString(text.c_str()) == "[" + text + "]", "bracketing", text);
  Buffer quoted("\"" + text + "\"");
  Require(RemoveQuotes(quoted.get()) == text, "unquoting", text);
  Buffer plain(text);
  const std::size_t left = std::strlen(RemoveQuotes(plain.get()));
  Require(left <= text.size() && left + 2 >= text.size(), "unquoting what may not be quoted", text);
}

void CheckJoining(const std::string& text) {
  const std::size_t half = text.size() / 2;
  const std::string a = text.substr(0, half);
  const std::string b = text.substr(half);
  Require(MergeStrings(a.c_str(), b.c_str()) == text, "merging", text);
  const std::string serial = MergeStringsUnique(a.c_str(), b.c_str());
  Require(serial.compare(0, text.size(), text) == 0 && serial.size() >= text.size() + 3,
          "a serial number", text);
  Require(EndOfString(Buffer(text).get()) != nullptr, "an end", text);
}

void CheckNewlines(const std::string& text) {
  const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  Require(CountNewlines(text.c_str()) == lines, "counting newlines", text);
  const std::string replaced = ReplaceNewlines(text.c_str());
  Require(replaced.size() == text.size() + lines, "replacing newlines", text);
  Require(replaced.find('\n') == std::string::npos, "no newline is left", text);
}

void CheckEnds(const std::string& text) {
  Buffer digit(text);
  const std::string lettered = ReplaceTrailingDigit(digit.get());
  Require(lettered.size() == text.size(), "a trailing digit in place", text);
  const char last = text.empty() ? '\0' : text.back();
  Require(text.empty() || lettered.back() == (last >= '0' && last <= '8' ? last + 17 : last),
          "a trailing digit as a letter", text);

  const std::string stem = FilenameWithoutExtension(text.c_str());
  Require(stem == text.substr(0, text.rfind('.')), "a name without extension", text);

  Buffer digits(text);
  OsiRemoveEndDigits(digits.get());
  Require(text.compare(0, std::strlen(digits.get()), digits.get()) == 0, "a base", text);
  Require(text.empty() || *digits.get() != '\0', "a base that is not empty", text);
  Buffer blanks(text);
  OsiRemoveEndBlanks(blanks.get());
  OsiRemoveEndNewlines(blanks.get());
  Require(text.compare(0, std::strlen(blanks.get()), blanks.get()) == 0, "trimming", text);
}

void CheckNumbers(const std::string& text) {
  int value = 0;
  int error = 0;
  OsiStrToInt(text.c_str(), &value, &error);
  int32_t number = 0;
  std::memcpy(&number, text.data(), std::min(text.size(), sizeof number));
  Require(IntToString(number) == std::to_string(number), "a number", text);
  Require(IntToQuotedString(number) == "\"" + std::to_string(number) + "\"", "a quoted number",
          text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  // A text ends at its first NUL byte.
  const std::string text(reinterpret_cast<const char*>(data),
                         strnlen(reinterpret_cast<const char*>(data), size));
  CheckQuoting(text);
  CheckJoining(text);
  CheckNewlines(text);
  CheckEnds(text);
  CheckNumbers(text);
  ResetStrings();
  ArenaReset();
  return 0;
}
