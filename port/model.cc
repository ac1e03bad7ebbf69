// SPDX-License-Identifier: MIT
#include "port/model.h"

#include <string_view>

#include "gil/words.h"

namespace port {

const GilAttribute* PortObject::Find(int32_t attribute) const {
  for (const GilAttribute& candidate : attributes) {
    if (candidate.name == attribute) return &candidate;
  }
  return nullptr;
}

std::string PortObject::Text(int32_t attribute) const {
  const GilAttribute* found = Find(attribute);
  return found && !found->values.empty() ? found->values[0].text : "";
}

int PortObject::Number(int32_t attribute, int missing) const {
  const GilAttribute* found = Find(attribute);
  if (!found || found->values.empty()) return missing;
  const GilValue& value = found->values[0];
  return value.kind == GilValue::Kind::kInteger ? value.number : missing;
}

bool PortObject::Is(int32_t attribute, int32_t token) const {
  const GilAttribute* found = Find(attribute);
  if (!found || found->values.empty()) return false;
  const GilValue& value = found->values[0];
  return value.kind == GilValue::Kind::kToken && value.number == token;
}

bool Connection::IsBefore(const Connection& other) const {
  if ((object < 0) != (other.object < 0)) return other.object < 0;
  return number < other.number;
}

std::string TypeName(int32_t type) {
  const char* text = KeywordText(type);
  return text ? text : "?";
}

std::string FateName(ConnectionFate fate) {
  switch (fate) {
    case ConnectionFate::kModule:
      return "in the module";
    case ConnectionFate::kConnections:
      return "connections.c";
    case ConnectionFate::kFunction:
      return "your function";
    case ConnectionFate::kLost:
      break;
  }
  return "lost";
}

std::string FateName(ObjectFate fate) {
  switch (fate) {
    case ObjectFate::kShown:
      return "shown";
    case ObjectFate::kReplaced:
      return "replaced";
    case ObjectFate::kLost:
      break;
  }
  return "lost";
}

namespace {

// The byte of an escape with one letter, as in C; any other letter stands for itself.
char Escaped(char letter) {
  switch (letter) {
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case 'r':
      return '\r';
    case 'b':
      return '\b';
    case 'f':
      return '\f';
    case 'v':
      return '\v';
    default:
      return letter;
  }
}

bool IsOctal(char c) { return c >= '0' && c <= '7'; }

}  // namespace

std::string GilText(const char* text) {
  std::string_view all = text ? text : "";
  if (all.size() < 2 || all.front() != '"' || all.back() != '"') return std::string(all);
  all = all.substr(1, all.size() - 2);
  std::string result;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i] != '\\' || i + 1 == all.size()) {
      result += all[i];
      continue;
    }
    ++i;
    if (!IsOctal(all[i])) {
      result += Escaped(all[i]);
      continue;
    }
    int byte = 0;
    std::size_t end = i;
    for (; end < all.size() && end < i + 3 && IsOctal(all[end]); ++end) {
      byte = byte * 8 + (all[end] - '0');
    }
    result += static_cast<char>(byte);
    i = end - 1;
  }
  return result;
}

std::string PathText(const std::vector<std::string>& path) {
  std::string text;
  for (const std::string& part : path) {
    if (!text.empty()) text += " / ";
    text += part;
  }
  return text;
}

}  // namespace port
