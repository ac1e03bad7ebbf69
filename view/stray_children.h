// SPDX-License-Identifier: MIT
// Widgets that a module puts into parents that cannot have them. Such a widget ends or crashes the
// program, so it is left out.
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
