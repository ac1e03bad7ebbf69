// SPDX-License-Identifier: MIT
// A guard for walks from a widget up: ends the climb where it comes to a widget that it left
// already, which happens when one lies below itself.
#ifndef PANDREL_WIDGET_CLIMB_H
#define PANDREL_WIDGET_CLIMB_H

#include <algorithm>
#include <vector>

struct Widg;

class Climb {
 public:
  // Whether this climb has not stood on the widget before; remembers it.
  bool IsNew(const Widg* widg) {
    if (std::find(seen_.begin(), seen_.end(), widg) != seen_.end()) return false;
    seen_.push_back(widg);
    return true;
  }

 private:
  std::vector<const Widg*> seen_;
};

#endif
