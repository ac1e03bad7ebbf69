// SPDX-License-Identifier: MIT
// Telling a module from any other text.
#include <algorithm>
#include <array>
#include <cctype>

#include "uilfix/module.h"

namespace uilfix {
namespace {

constexpr std::string_view kBlanks = " \t\r\f\v";

// What may follow the module's name on its line.
constexpr std::array<std::string_view, 12> kFollowing = {
    "names", "version",    "objects", "character_set", "value", "procedure",
    "list",  "identifier", "include", "object",        "end",   "default"};

std::string_view TakeWord(std::string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  std::size_t end = 0;
  while (end < line.size() && (std::isalnum(static_cast<unsigned char>(line[end])) ||
                               line[end] == '_' || line[end] == '$')) {
    ++end;
  }
  const std::string_view word = line.substr(0, end);
  line.remove_prefix(end);
  return word;
}

bool IsKeyword(std::string_view word) {
  std::string lower;
  for (char c : word) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  for (const std::string_view keyword : kFollowing) {
    if (lower == keyword) return true;
  }
  return false;
}

// "module NAME", alone on its line or with the next keyword of a module behind it; prose does not
// look like that.
bool IsModuleLine(std::string_view line) {
  const std::string_view word = TakeWord(line);
  if (word != "module" && word != "MODULE" && word != "Module") return false;
  if (TakeWord(line).empty()) return false;
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  return line.empty() || line.starts_with('!') || line.starts_with("/*") ||
         IsKeyword(TakeWord(line));
}

}  // namespace

bool HoldsModule(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\n\r"), text.size());
    if (IsModuleLine(text.substr(0, end))) return true;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return false;
}

}  // namespace uilfix
