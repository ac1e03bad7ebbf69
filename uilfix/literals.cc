// SPDX-License-Identifier: MIT
#include "uilfix/literals.h"

#include <cctype>
#include <cstring>

namespace uilfix {
namespace {

// Letters that may follow a backslash, and the byte each pair stands for.
constexpr char kEscapeLetters[] = "ntvrbf\\\"'";
constexpr char kEscapeBytes[] = "\n\t\v\r\b\f\\\"'";

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

bool IsEscapeLetter(char c) { return c != '\0' && std::strchr(kEscapeLetters, c) != nullptr; }

// The decimal digits at the start of `text`, four of them at most.
int Number(std::string_view text) {
  int number = 0;
  for (std::size_t i = 0; i < text.size() && i < 4 && IsDigit(text[i]); ++i) {
    number = number * 10 + (text[i] - '0');
  }
  return number;
}

}  // namespace

std::size_t LiteralEnd(std::string_view text, std::size_t quote) {
  for (std::size_t i = quote + 1; i < text.size();) {
    if (text[i] == '"') return i + 1;
    if (text[i] != '\\') {
      ++i;
      continue;
    }
    const std::size_t length = EscapeLength(text.substr(i));
    i += length ? length : 2;
  }
  return std::string_view::npos;
}

std::vector<ValuePart> SplitValue(std::string_view value) {
  std::vector<ValuePart> parts;
  std::size_t pos = 0;
  while (pos < value.size()) {
    const std::size_t quote = value.find('"', pos);
    const std::size_t end = quote == std::string_view::npos ? quote : LiteralEnd(value, quote);
    if (end == std::string_view::npos) {
      parts.push_back({false, std::string(value.substr(pos))});
      break;
    }
    if (quote > pos) parts.push_back({false, std::string(value.substr(pos, quote - pos))});
    parts.push_back({true, std::string(value.substr(quote, end - quote))});
    pos = end;
  }
  return parts;
}

std::string JoinValue(const std::vector<ValuePart>& parts) {
  std::string value;
  for (const ValuePart& part : parts) value += part.text;
  return value;
}

bool ChangeLiterals(std::string& value,
                    const std::function<std::string(std::string_view)>& change) {
  std::string changed;
  for (const ValuePart& part : SplitValue(value)) {
    if (part.literal) {
      const std::string_view text = part.text;
      changed += '"' + change(text.substr(1, text.size() - 2)) + '"';
    } else {
      changed += part.text;
    }
  }
  if (changed == value) return false;
  value = changed;
  return true;
}

std::size_t EscapeLength(std::string_view text) {
  if (text.size() < 2) return 0;
  if (IsEscapeLetter(text[1])) return 2;
  std::size_t end = 1;
  while (end < text.size() && end < 5 && IsDigit(text[end])) ++end;
  if (end == 1 || end >= text.size() || text[end] != '\\') return 0;
  return Number(text.substr(1)) <= 255 ? end + 1 : 0;
}

std::string NumericEscape(unsigned char byte) {
  std::string escape = "\\";
  escape += std::to_string(byte);
  escape += '\\';
  return escape;
}

std::string_view TakeCharacter(std::string_view& inside) {
  std::size_t length = 1;
  if (inside[0] == '\\') {
    length = EscapeLength(inside);
    if (length == 0) length = inside.size() > 1 ? 2 : 1;
  }
  const std::string_view character = inside.substr(0, length);
  inside.remove_prefix(length);
  return character;
}

std::string LiteralBytes(std::string_view inside) {
  std::string bytes;
  while (!inside.empty()) {
    const std::string_view character = TakeCharacter(inside);
    if (character.size() == 1) {
      bytes += character;
    } else if (IsEscapeLetter(character[1])) {
      bytes += kEscapeBytes[std::strchr(kEscapeLetters, character[1]) - kEscapeLetters];
    } else if (IsDigit(character[1])) {
      bytes += static_cast<char>(Number(character.substr(1)));
    } else {
      bytes += character.substr(1);
    }
  }
  return bytes;
}

bool PlainString(std::string_view value, std::string* inside) {
  std::string joined;
  bool wants_literal = true;
  for (const ValuePart& part : SplitValue(value)) {
    if (part.literal) {
      if (!wants_literal) return false;
      joined += part.text.substr(1, part.text.size() - 2);
      wants_literal = false;
      continue;
    }
    for (char c : part.text) {
      if (c == '&' && !wants_literal) {
        wants_literal = true;
      } else if (!std::isspace(static_cast<unsigned char>(c))) {
        return false;
      }
    }
  }
  if (wants_literal) return false;
  *inside = joined;
  return true;
}

}  // namespace uilfix
