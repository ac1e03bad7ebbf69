// SPDX-License-Identifier: MIT
// The windows of a module. UIL has no shells, so the module describes them in comments and the
// program that shows it makes them. This reads what to make.
#ifndef PANDREL_VIEW_SHELLS_H
#define PANDREL_VIEW_SHELLS_H

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "uilfix/module.h"

namespace view {

// A widget to fetch into a shell.
struct ShellChild {
  std::string name;
  bool managed = true;
};

struct Shell {
  std::string name;
  bool dialog = false;             // XmDialogShell, else TopLevelShell
  std::string owner;               // of a dialog: the top-level shell it belongs to; may be empty
  std::vector<ShellChild> work;    // its work area; none for a window without a child
  std::vector<ShellChild> popups;  // popup menus that belong to the window as a whole
  std::string title;               // in Latin-1; empty for none
  bool hidden = false;             // not shown at start
  bool iconic = false;
  bool insensitive = false;
  // The other resources, ready for conversion from text: {"width", "300"}, {"background", "blue"}.
  std::vector<std::pair<std::string, std::string>> resources;
};

// The shells of a module, in its order. A module without shell comments gives one unnamed window
// per object that no other controls, menus and the objects in `left_out` excepted.
std::vector<Shell> ReadShells(const uilfix::Module& module,
                              const std::set<std::string>& left_out = {});

}  // namespace view

#endif
