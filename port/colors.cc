// SPDX-License-Identifier: MIT
#include "port/colors.h"

#include <string_view>

namespace port {
namespace {

struct ColorRow {
  std::string_view name;
  std::string_view known;
};

// The background of a control, the one of a pressed control, the shadow and the highlight, as the
// toolkit made them of its default grey.
constexpr ColorRow kColors[] = {
    {"BG1", "gray80"},
    {"BG2", "gray72"},
    {"BG3", "gray40"},
    {"Highlight", "white"},
};

}  // namespace

std::string KnownColor(const std::string& name) {
  for (const ColorRow& row : kColors) {
    if (row.name == name) return std::string(row.known);
  }
  return name;
}

}  // namespace port
