// SPDX-License-Identifier: MIT
#include "uilfix/item_list.h"

#include "uilfix/literals.h"

namespace uilfix {
namespace {

constexpr std::string_view kTable = "string_table(";
constexpr std::string_view kNote = "! items in the order of the GIL file";

std::string Trimmed(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(" \t\n\r");
  if (begin == std::string::npos) return "";
  return text.substr(begin, text.find_last_not_of(" \t\n\r") + 1 - begin);
}

}  // namespace

std::optional<std::vector<std::string>> SplitItems(std::string_view value) {
  if (!value.starts_with(kTable) || !value.ends_with(')')) return std::nullopt;
  std::vector<std::string> items;
  std::string item;
  int depth = 0;
  const std::string_view inside = value.substr(kTable.size(), value.size() - kTable.size() - 1);
  for (const ValuePart& part : SplitValue(inside)) {
    if (part.literal) {
      item += part.text;
      continue;
    }
    for (char c : part.text) {
      if (c == '(') ++depth;
      if (c == ')' && --depth < 0) return std::nullopt;
      if (c == '"') return std::nullopt;  // of a string that does not end
      if (c == ',' && depth == 0) {
        items.push_back(Trimmed(item));
        item.clear();
      } else {
        item += c;
      }
    }
  }
  items.push_back(Trimmed(item));
  for (const std::string& one : items) {
    if (one.empty()) return std::nullopt;
  }
  return items;
}

std::string JoinItems(const std::vector<std::string>& items) {
  std::string value(kTable);
  for (const std::string& item : items) {
    if (&item != &items.front()) value += ",\n";
    value += item;
  }
  return value + ')';
}

bool IsInFileOrder(const Argument& items) { return items.lead.find(kNote) != std::string::npos; }

void NoteFileOrder(Argument& items) {
  const std::size_t line = items.lead.rfind('\n');
  std::string indent = items.lead.substr(line == std::string::npos ? 0 : line + 1);
  if (indent.find_first_not_of(" \t") != std::string::npos) indent = "\t\t";
  items.lead += std::string(kNote) + '\n' + indent;
}

}  // namespace uilfix
