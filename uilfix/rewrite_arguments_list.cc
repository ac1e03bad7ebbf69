// SPDX-License-Identifier: MIT
// Reading and extending an object's list of arguments.
#include <algorithm>

#include "uilfix/module.h"

namespace uilfix {
namespace {

// Where a new argument goes: before the line that closes the list of arguments.
std::vector<Entry>::iterator ArgumentsEnd(Object& object) {
  bool inside = false;
  return std::find_if(object.entries.begin(), object.entries.end(), [&](const Entry& entry) {
    const auto* line = std::get_if<Verbatim>(&entry);
    if (!line) return false;
    if (line->text.ends_with("\targuments {\n")) {
      inside = true;
      return false;
    }
    return inside && line->text.ends_with("};\n");
  });
}

}  // namespace

const std::string* FindArgument(const Object& object, std::string_view resource) {
  for (const Entry& entry : object.entries) {
    const auto* argument = std::get_if<Argument>(&entry);
    if (argument && argument->resource == resource) return &argument->value;
  }
  return nullptr;
}

bool AddArgument(Object& object, const std::string& resource, const std::string& value) {
  const auto end = ArgumentsEnd(object);
  if (end == object.entries.end()) return false;
  object.entries.insert(end, Argument{object.prefix + "\t\t", resource, value, object.line});
  return true;
}

}  // namespace uilfix
