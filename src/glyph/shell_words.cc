// SPDX-License-Identifier: MIT
#include "glyph/shell_words.h"

#include <algorithm>
#include <cstring>

// Characters that mean nothing to the shell wherever they stand.
static bool IsPlain(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         (c != '\0' && std::strchr("_-./+,:@%=", c));
}

// Only the quote itself is special between single quotes. It must stand outside of them, behind a
// backslash.
static std::string EscapeSingleQuotes(const std::string& text) {
  std::string escaped;
  for (char c : text) escaped += c == '\'' ? "'\\''" : std::string(1, c);
  return escaped;
}

std::string ShellWord(const std::string& name) {
  std::string operand = name;
  if (!name.empty() && name[0] == '-') operand.insert(0, "./");
  // An empty name gets no quotes either: the commands shown to users have none.
  if (std::all_of(operand.begin(), operand.end(), IsPlain)) return operand;
  return std::string("'").append(EscapeSingleQuotes(operand)).append("'");
}

std::string QuotedSedReplacement(const std::string& text) {
  std::string replacement;
  for (char c : text) {
    if (c == '/' || c == '&' || c == '\\' || c == '\n') replacement += '\\';
    replacement += c;
  }
  return EscapeSingleQuotes(replacement);
}
