// SPDX-License-Identifier: MIT
#include "gil_names.h"

#include <cctype>

#include "uilfix/module_files.h"

namespace view {
namespace {

constexpr std::size_t kCutLength = 30;

bool IsBlank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

// The word or string at the start of `text`.
std::string TakeValue(std::string_view text) {
  while (!text.empty() && IsBlank(text[0])) text.remove_prefix(1);
  std::size_t end = 0;
  if (text.starts_with('"')) {
    end = text.find('"', 1);
    end = end == std::string_view::npos ? text.size() : end + 1;
  } else {
    while (end < text.size() && !IsBlank(text[end]) && text[end] != '(' && text[end] != ')') ++end;
  }
  return std::string(text.substr(0, end));
}

// The value of the first attribute of this name; empty when there is none.
std::string AttributeOf(std::string_view object, std::string_view keyword) {
  for (std::size_t at = object.find(keyword); at != std::string_view::npos;
       at = object.find(keyword, at + 1)) {
    const std::string_view after = object.substr(at + keyword.size());
    if (!after.empty() && IsBlank(after[0])) return TakeValue(after);
  }
  return "";
}

// Whether the converter or the mender may have put this behind a name: nothing, a number, of which
// builder 2.5 writes the last digit as a letter, the name of a part as in "_label", or that of a
// menu's item.
bool IsAddedToNames(std::string_view rest) {
  if (rest.empty() || rest[0] == '_' || rest.starts_with("choice")) return true;
  const bool letter = rest.size() == 1 && rest[0] >= 'A' && rest[0] <= 'I';
  return letter || (rest[0] >= '0' && rest[0] <= '9');
}

constexpr std::string_view kType = ":type";

// Calls `visit` with the text of each object, from its type to the next object's.
template <typename Visit>
void ForEachObject(std::string_view gil, Visit visit) {
  for (std::size_t at = gil.find(kType); at != std::string_view::npos;) {
    const std::size_t next = gil.find(kType, at + 1);
    visit(gil.substr(at, next - at));
    at = next;
  }
}

}  // namespace

std::vector<std::string> ReadGilNames(std::string_view gil) {
  constexpr std::string_view kKeyword = ":name";
  std::vector<std::string> names;
  for (std::size_t pos = gil.find(kKeyword); pos != std::string_view::npos;
       pos = gil.find(kKeyword, pos + 1)) {
    const std::string_view after = gil.substr(pos + kKeyword.size());
    if (after.empty() || !IsBlank(after[0])) continue;
    std::string name = TakeValue(after);
    if (!name.empty()) names.push_back(std::move(name));
  }
  return names;
}

std::vector<std::string> ReadPinnedPopups(std::string_view gil) {
  std::vector<std::string> names;
  ForEachObject(gil, [&](std::string_view object) {
    if (AttributeOf(object, kType) == ":popup-window" && AttributeOf(object, ":pinned") == "t") {
      names.push_back(AttributeOf(object, ":name"));
    }
  });
  return names;
}

std::vector<GlyphButton> ReadGlyphButtons(std::string_view gil) {
  std::vector<GlyphButton> buttons;
  ForEachObject(gil, [&](std::string_view object) {
    const std::string label = AttributeOf(object, ":label");
    if (AttributeOf(object, kType) != ":button" || label.size() < 2) return;
    if (AttributeOf(object, ":label-type") != ":glyph") return;
    buttons.push_back({AttributeOf(object, ":name"), label.substr(1, label.size() - 2)});
  });
  return buttons;
}

std::string ReadGilText(const std::filesystem::path& file) {
  const std::string text = uilfix::ReadFile(file.string()).value_or("");
  std::string all = text;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(file.parent_path(), error)) {
    const std::string other = entry.path().filename().string();
    if (entry.path() == file || text.find(other) == std::string::npos) continue;
    if (!entry.is_regular_file(error)) continue;
    all += "\n" + uilfix::ReadFile(entry.path().string()).value_or("");
  }
  return all;
}

std::string WidgetForm(const std::string& gil_name) {
  std::string name = gil_name.substr(0, kCutLength);
  if (!name.empty()) name[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[0])));
  return name;
}

std::string GuessGilName(const std::vector<std::string>& gil_names, std::string_view widget) {
  std::string best;
  for (const std::string& name : gil_names) {
    const std::string form = WidgetForm(name);
    if (!widget.starts_with(form)) continue;
    // What was cut off may be what tells.
    if (widget.size() < kCutLength && !IsAddedToNames(widget.substr(form.size()))) continue;
    if (name.size() > best.size()) best = name;
  }
  return best;
}

}  // namespace view
