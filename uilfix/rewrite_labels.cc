// SPDX-License-Identifier: MIT
// A label is a compound string, where a line end is a separator and not a character: the compiler
// makes one segment of a plain string, and \n in it shows as an odd sign.
#include "uilfix/literals.h"
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

// The compiler gives up on expressions not much longer than this.
constexpr std::size_t kMostLines = 10000;

// The lines of a literal's inside, cut at each \n escape. Empty when there is one line, or more
// than the compiler accepts.
std::vector<std::string_view> SplitLines(std::string_view inside) {
  std::vector<std::string_view> lines;
  if (inside.find("\\n") == std::string_view::npos) return lines;
  std::string_view rest = inside;
  while (!rest.empty() && lines.size() < kMostLines) {
    const std::size_t end = inside.size() - rest.size();
    if (TakeCharacter(rest) != "\\n") continue;
    const std::size_t begin =
        lines.empty() ? 0 : lines.back().data() + lines.back().size() + 2 - inside.data();
    lines.push_back(inside.substr(begin, end - begin));
  }
  if (lines.empty() || lines.size() == kMostLines) return {};
  const char* last = lines.back().data() + lines.back().size() + 2;
  lines.push_back(inside.substr(static_cast<std::size_t>(last - inside.data())));
  return lines;
}

// The expression for a label of these lines.
std::string CompoundString(const std::vector<std::string_view>& lines) {
  std::string value;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    value += "compound_string(\"";
    value += lines[i];
    value += "\", separate=true) & ";
  }
  value += '"';
  value += lines.back();
  return value + '"';
}

void MendLabel(Argument& argument, const Object& object, Report& report) {
  std::string inside;
  if (argument.value.find("\\n") == std::string::npos) return;
  if (!PlainString(argument.value, &inside)) return;
  const std::vector<std::string_view> lines = SplitLines(inside);
  if (lines.empty()) return;
  argument.value = CompoundString(lines);
  report.Add(argument.line, argument.resource + " of " + object.name + ": " +
                                std::to_string(lines.size()) + " lines in a compound string");
}

// The items of a list are compound strings as well. An item that is an expression already is left.
void MendItems(Argument& argument, const Object& object, Report& report) {
  if (!argument.value.starts_with("string_table(")) return;
  if (argument.value.find("\\n") == std::string::npos) return;
  std::vector<ValuePart> parts = SplitValue(argument.value);
  bool changed = false;
  for (std::size_t i = 1; i + 1 < parts.size(); ++i) {
    if (!parts[i].literal) continue;
    const std::string& before = parts[i - 1].text;
    const std::string& after = parts[i + 1].text;
    if (!before.ends_with("(") && before.find(',') == std::string::npos) continue;
    if (before.find('&') != std::string::npos || after.find('&') != std::string::npos) continue;
    if (before.ends_with("compound_string(")) continue;
    const auto lines =
        SplitLines(std::string_view(parts[i].text).substr(1, parts[i].text.size() - 2));
    if (lines.empty()) continue;
    parts[i].text = CompoundString(lines);
    changed = true;
  }
  if (!changed) return;
  argument.value = JoinValue(parts);
  report.Add(argument.line, argument.resource + " of " + object.name +
                                ": items of several lines in compound strings");
}

}  // namespace

void FixLabels(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    ForEachEntry<Argument>(object, [&](Argument& argument) {
      if (argument.resource == "XmNlabelString") MendLabel(argument, object, report);
      if (argument.resource == "XmNitems" || argument.resource == "XmNselectedItems") {
        MendItems(argument, object, report);
      }
    });
  });
}

}  // namespace uilfix
