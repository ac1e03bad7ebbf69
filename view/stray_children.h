// SPDX-License-Identifier: MIT
// Widgets that a module puts where Motif has no place for them. Such a one ends the program or
// crashes it, so it is left out.
#ifndef PANDREL_VIEW_STRAY_CHILDREN_H
#define PANDREL_VIEW_STRAY_CHILDREN_H

#include <string>
#include <vector>

#include "uilfix/module.h"

namespace view {

struct StrayChild {
  std::string child;
  std::string parent;
  std::string parent_class;
};

// Takes the widgets that their parents cannot have out of the parents' lists of controls. Returns
// them in the order of the module.
std::vector<StrayChild> RemoveStrayChildren(uilfix::Module& module);

}  // namespace view

#endif
