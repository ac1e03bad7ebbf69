// SPDX-License-Identifier: MIT
// The initial values of sliders, gauges and lists in a GIL file; a module does not have them.
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

// Every slider, gauge and list of a GIL text, in its order, also those without initial values. A
// text that is not GIL gives none.
std::vector<GilStart> ReadGilStarts(std::string_view gil);

}  // namespace uilfix

#endif
