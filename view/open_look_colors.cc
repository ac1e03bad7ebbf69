// SPDX-License-Identifier: MIT
#include "open_look_colors.h"

#include <string>

namespace view {
namespace {

struct ColorRow {
  std::string_view name;
  std::string_view color;
};

// OPEN LOOK derives its palette from the colour of the windows: 1 is that colour, 2 is nine tenths
// as bright (a pressed button), 3 half as bright (a shadow). Here the windows have Motif's grey.
constexpr ColorRow kPalette[] = {
    {"BG1", "#c4c4c4"},
    {"BG2", "#b0b0b0"},
    {"BG3", "#626262"},
};

}  // namespace

std::string_view OpenLookColor(std::string_view name) {
  for (const ColorRow& row : kPalette) {
    if (row.name == name) return row.color;
  }
  return "";
}

void ReplaceOpenLookColors(uilfix::Module& module) {
  uilfix::ForEachObject(module, [](uilfix::Object& object) {
    uilfix::ForEachEntry<uilfix::Argument>(object, [](uilfix::Argument& argument) {
      for (const ColorRow& row : kPalette) {
        if (argument.value == "color(\"" + std::string(row.name) + "\")") {
          argument.value = "color(\"" + std::string(row.color) + "\")";
        }
      }
    });
  });
}

}  // namespace view
