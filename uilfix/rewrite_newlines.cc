// SPDX-License-Identifier: MIT
// A GIL string may hold line ends. For the compiler a string ends at the end of its line, and the
// second line of a commented title is not a comment.
#include "uilfix/literals.h"
#include "uilfix/rewrites.h"
#include "uilfix/values.h"

namespace uilfix {
namespace {

std::string EscapeNewlines(std::string_view inside) {
  std::string escaped;
  for (std::size_t i = 0; i < inside.size(); ++i) {
    // The editor put a backslash before a line end that only continues a string.
    if (inside.substr(i, 2) == "\\\n") {
      ++i;
    } else if (inside[i] == '\n') {
      escaped += "\\n";
    } else if (inside[i] == '\\' && i + 1 < inside.size()) {
      escaped += inside.substr(i++, 2);
    } else {
      escaped += inside[i];
    }
  }
  return escaped;
}

}  // namespace

void FixNewlines(Module& module, Report& report) {
  ForEachValue(module, [&](const ValuePlace& place) {
    if (place.value.find('\n') == std::string::npos) return;
    if (ChangeLiterals(place.value, EscapeNewlines)) {
      report.Add(place.line, place.What() + ": line ends written as \\n");
    }
  });
}

}  // namespace uilfix
