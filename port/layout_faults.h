// SPDX-License-Identifier: MIT
// What `pandrel-view --check` found in the live windows.
#ifndef PANDREL_PORT_LAYOUT_FAULTS_H
#define PANDREL_PORT_LAYOUT_FAULTS_H

#include <string>
#include <string_view>
#include <vector>

namespace port {

// One line of the check; its fields, with tabs between them, in this order. The texts are page
// text.
struct LayoutFault {
  std::string kind;    // "overlap", "cut" or "outside"
  std::string window;  // of the interface
  std::string widget;  // that overlaps, is cut or lies outside
  std::string other;   // that it overlaps, or the container that it leaves; empty for "cut"
  std::string detail;  // for a reader, mostly in pixels; may be empty
};

// The lines of the check. Fields that a line lacks are empty; what it has more belongs to the
// detail. A line without a tab is a fault of the kind "other" with the line as its detail, so that
// nothing is lost; empty lines are skipped.
std::vector<LayoutFault> ParseLayoutFaults(std::string_view lines);

}  // namespace port

#endif
