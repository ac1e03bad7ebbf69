// SPDX-License-Identifier: MIT
#include "uilfix/gil_starts.h"

#include <charconv>

#include "uilfix/characters.h"

namespace uilfix {
namespace {

// Takes the next word, string or parenthesis off a GIL text; empty at its end. A comment runs from
// a semicolon to the line's end.
std::string_view TakeToken(std::string_view& text) {
  for (;;) {
    while (!text.empty() && IsBlank(text[0])) text.remove_prefix(1);
    if (!text.starts_with(';')) break;
    text.remove_prefix(std::min(text.find('\n'), text.size()));
  }
  std::size_t end = text.empty() ? 0 : 1;
  if (text.starts_with('"')) {
    while (end < text.size() && text[end] != '"') end += text[end] == '\\' ? 2 : 1;
    end = std::min(end + 1, text.size());
  } else if (!text.starts_with('(') && !text.starts_with(')')) {
    while (end < text.size() && !IsBlank(text[end]) && text[end] != '(' && text[end] != ')') ++end;
  }
  const std::string_view token = text.substr(0, end);
  text.remove_prefix(end);
  return token;
}

// The words of the list that a parenthesis just opened, those of lists within it left out.
std::vector<std::string_view> TakeList(std::string_view& text) {
  std::vector<std::string_view> words;
  int depth = 1;
  while (depth > 0) {
    const std::string_view token = TakeToken(text);
    if (token.empty()) break;
    if (token == "(") {
      ++depth;
    } else if (token == ")") {
      --depth;
    } else if (depth == 1) {
      words.push_back(token);
    }
  }
  return words;
}

// Takes the attributes of the object that a parenthesis just opened.
std::optional<GilStart> TakeObject(std::string_view& text) {
  GilStart start;
  std::string_view type;
  for (;;) {
    const std::string_view attribute = TakeToken(text);
    if (attribute.empty() || attribute == ")") break;
    if (attribute == "(") {
      TakeList(text);
      continue;
    }
    const std::string_view value = TakeToken(text);
    if (value.empty() || value == ")") break;
    const auto list = value == "(" ? TakeList(text) : std::vector<std::string_view>();
    if (attribute == ":type") type = value;
    if (attribute == ":name") start.name = value;
    if (attribute == ":initial-value") {
      long number = 0;
      const auto read = std::from_chars(value.data(), value.data() + value.size(), number);
      if (read.ec == std::errc() && read.ptr == value.data() + value.size()) start.value = number;
    }
    if (attribute == ":initial-selections") {
      for (const std::string_view word : list) start.selections.push_back(word == "t");
    }
  }
  start.list = type == ":scrolling-list";
  if (!start.list && type != ":slider" && type != ":gauge") return std::nullopt;
  return start;
}

}  // namespace

bool HoldsGil(std::string_view text) { return TakeToken(text) == "("; }

std::vector<std::string> ReadGilInterfaces(std::string_view gil) {
  std::vector<std::string> files;
  if (TakeToken(gil) != "(") return files;
  // In an interface file an object follows here.
  for (std::string_view attribute = TakeToken(gil); attribute.starts_with(':');
       attribute = TakeToken(gil)) {
    const std::string_view value = TakeToken(gil);
    const auto list = value == "(" ? TakeList(gil) : std::vector<std::string_view>();
    if (attribute != ":interfaces") continue;
    for (std::string_view word : list) {
      if (word.size() > 1 && word.starts_with('"')) word = word.substr(1, word.size() - 2);
      files.emplace_back(word);
    }
  }
  return files;
}

std::vector<GilStart> ReadGilStarts(std::string_view gil) {
  std::vector<GilStart> starts;
  int depth = 0;
  for (std::string_view token = TakeToken(gil); !token.empty(); token = TakeToken(gil)) {
    if (token == ")") --depth;
    if (token != "(") continue;
    if (depth == 0) {
      ++depth;  // the list of all objects
    } else if (auto start = TakeObject(gil)) {
      starts.push_back(std::move(*start));
    }
  }
  return starts;
}

}  // namespace uilfix
