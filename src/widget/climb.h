// SPDX-License-Identifier: MIT
// A guard for walks from a widget up. It ends the climb at a widget that the climb has visited
// before, which happens when a widget lies below itself.
#ifndef PANDREL_WIDGET_CLIMB_H
#define PANDREL_WIDGET_CLIMB_H

#include <algorithm>
#include <vector>

struct Widg;

class Climb {
 public:
  // Whether this climb has not visited the widget before; marks it as visited.
  bool IsNew(const Widg* widg) {
    if (std::find(path_.begin(), path_.end(), widg) != path_.end()) return false;
    path_.push_back(widg);
    return true;
  }

 private:
  std::vector<const Widg*> path_;
};

#endif
