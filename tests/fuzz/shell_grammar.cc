// SPDX-License-Identifier: MIT
// A reader of the little shell language that glyph commands may use; anything else is refused.
#include <cctype>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "confinement.h"

namespace {

// A word without its quotes, or an operator.
struct Piece {
  std::string text;
  bool is_operator = false;
};

bool IsPlain(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 ||
         (c != '\0' && std::strchr("_-./+,:@%=", c) != nullptr);
}

// The pieces of a command; none when it holds anything that means something to the shell besides
// quotes, a backslash before a quote, and the operators | > and ;.
std::optional<std::vector<Piece>> Split(const std::string& command) {
  std::vector<Piece> pieces;
  bool in_word = false;
  const auto word = [&]() -> std::string& {
    if (!in_word) pieces.emplace_back();
    in_word = true;
    return pieces.back().text;
  };
  for (std::size_t i = 0; i < command.size(); ++i) {
    const char c = command[i];
    if (c == ' ') {
      in_word = false;
    } else if (c == '\'') {
      const std::size_t end = command.find('\'', i + 1);
      if (end == std::string::npos) return std::nullopt;
      word().append(command, i + 1, end - i - 1);
      i = end;
    } else if (c == '\\' && i + 1 < command.size() && command[i + 1] == '\'') {
      word() += '\'';
      ++i;
    } else if (c == '|' || c == '>' || c == ';') {
      pieces.push_back({std::string(1, c), true});
      in_word = false;
    } else if (IsPlain(c)) {
      word() += c;
    } else {
      return std::nullopt;
    }
  }
  return pieces;
}

bool Matches(const std::vector<Piece>& pieces, const std::vector<std::string>& pattern) {
  // "?" is one operand that is no option; an operand for an empty name is missing altogether.
  std::size_t i = 0;
  for (const std::string& wanted : pattern) {
    const bool at_word = i < pieces.size() && !pieces[i].is_operator;
    if (wanted == "?") {
      if (!at_word) continue;
      if (!pieces[i].text.empty() && pieces[i].text[0] == '-') return false;
    } else if (i == pieces.size() || pieces[i].text != wanted) {
      return false;
    }
    ++i;
  }
  return i == pieces.size();
}

}  // namespace

bool IsGlyphCommand(const std::string& command) {
  const auto pieces = Split(command);
  if (!pieces) return false;
  return Matches(*pieces, {"icontopbm", "?", "|", "pbmtoxbm", ">", "?"}) ||
         Matches(*pieces, {"sed", "-e", "?", "?", ">", "?", ";", "mv", "?", "?"});
}
