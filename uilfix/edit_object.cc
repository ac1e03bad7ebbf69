// SPDX-License-Identifier: MIT
// Reading and changing an object's lists.
#include <algorithm>

#include "uilfix/module.h"

namespace uilfix {
namespace {

using Place = std::vector<Entry>::iterator;

bool IsBlankText(const std::string& text) {
  return text.find_first_not_of(" \t\n\r") == std::string::npos;
}

Mark MarkOf(const Entry& entry) {
  const auto* verbatim = std::get_if<Verbatim>(&entry);
  return verbatim ? verbatim->mark : Mark::kNone;
}

Place FindMark(Place begin, Place end, Mark mark) {
  return std::find_if(begin, end, [&](const Entry& entry) { return MarkOf(entry) == mark; });
}

// The end of the section whose head is at `head`; `end` when another one begins before that.
Place SectionEnd(Place head, Place end) {
  const Place next =
      std::find_if(head + 1, end, [](const Entry& entry) { return MarkOf(entry) != Mark::kNone; });
  return next != end && std::get<Verbatim>(*next).closes ? next : end;
}

// An argument laid out as its neighbour is.
Argument Beside(const Object& object, const Entry& neighbour) {
  Argument argument;
  argument.line = object.line;
  argument.lead = object.prefix + "\t\t";
  const auto* model = std::get_if<Argument>(&neighbour);
  if (model && IsBlankText(model->lead)) argument.lead = model->lead;
  const bool own_line = !model || !model->layout || model->layout->tail.ends_with('\n');
  if (!own_line) argument.layout = std::make_shared<const Layout>(Layout{"", " = ", ";"});
  return argument;
}

}  // namespace

const std::string* FindArgument(const Object& object, std::string_view resource) {
  for (const Entry& entry : object.entries) {
    const auto* argument = std::get_if<Argument>(&entry);
    if (!argument || argument->resource != resource) continue;
    if (object.IsComment() || !IsCommented(argument->lead)) return &argument->value;
  }
  return nullptr;
}

bool AddArgument(Object& object, const std::string& resource, const std::string& value) {
  std::vector<Entry>& entries = object.entries;
  Place begin = FindMark(entries.begin(), entries.end(), Mark::kArguments);
  if (begin == entries.end()) {
    // An object without a list of arguments gets one in front of all else.
    if (object.IsComment() ||
        FindMark(entries.begin(), entries.end(), Mark::kObjectEnd) == entries.end()) {
      return false;
    }
    const bool own_line = !object.layout || object.layout->tail.ends_with('\n');
    const std::string head = own_line ? "\targuments {\n" : "\n\targuments {\n";
    entries.insert(entries.begin(), {Verbatim{head, Mark::kArguments, object.line},
                                     Verbatim{"\t\t};\n", Mark::kEnd, object.line, true}});
    begin = entries.begin();
  }
  const Place end = SectionEnd(begin, entries.end());
  if (end == entries.end()) return false;
  Argument argument = Beside(object, *std::prev(end));
  argument.resource = resource;
  argument.value = value;
  entries.insert(end, std::move(argument));
  return true;
}

void Unmanage(Control& control) {
  control.unmanaged = true;
  if (!control.layout) return;
  Layout layout = *control.layout;
  layout.head = "unmanaged ";
  control.layout = std::make_shared<const Layout>(std::move(layout));
}

}  // namespace uilfix
