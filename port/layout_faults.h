// SPDX-License-Identifier: MIT
// What `pandrel-view --check=tab` found in the live windows.
#ifndef PANDREL_PORT_LAYOUT_FAULTS_H
#define PANDREL_PORT_LAYOUT_FAULTS_H

#include <string>
#include <string_view>
#include <vector>

namespace port {

// One finding, as page text. Sizes and places are in pixels.
struct LayoutFault {
  std::string kind;    // "overlap", "cut", "outside", "icon" or "color"
  std::string widget;  // that overlaps, is cut, lies outside, or names the icon or colour
  std::string object;  // its object in the GIL file; empty when it is not known
  std::string window;
  std::string place;  // "60x20+10+5"
  std::string other;  // the other widget, the container, the text that is cut, the icon or colour
  std::string other_object;
  std::string pixels;  // by how much: "3x4", across and down
};

// The findings in the lines of the check: kind, widget, object, window, x, y, width, height, other,
// its object, across and down, with tabs between them; \t, \n and \\ stand for a tab, a newline and
// a backslash. Fields that a line lacks are empty. A line without a tab is none.
std::vector<LayoutFault> ParseLayoutFaults(std::string_view lines);

// Whether it is about the layout, not about icons and colours.
bool IsOfLayout(const LayoutFault& fault);

}  // namespace port

#endif
