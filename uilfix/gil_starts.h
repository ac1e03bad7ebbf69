// SPDX-License-Identifier: MIT
// The initial values of sliders, gauges and lists in a GIL file; a module does not have them. And
// the files of a project, which has them only there.
#ifndef PANDREL_UILFIX_GIL_STARTS_H
#define PANDREL_UILFIX_GIL_STARTS_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace uilfix {

// One slider, gauge or scrolling list.
struct GilStart {
  std::string name;              // as the file gives it
  bool list = false;             // else a slider or gauge
  std::optional<long> value;     // of a slider or gauge
  std::vector<bool> selections;  // of a list, for each of its items whether it is selected
};

// Whether the text begins as GIL does: with a parenthesis, after comments.
bool HoldsGil(std::string_view text);

// The interface files that a GIL text names, in its order; none for a text that is not a project.
std::vector<std::string> ReadGilInterfaces(std::string_view gil);

// Every slider, gauge and list of a GIL text, in its order, also those without initial values. A
// text that is not GIL gives none, nor does a project.
std::vector<GilStart> ReadGilStarts(std::string_view gil);

}  // namespace uilfix

#endif
