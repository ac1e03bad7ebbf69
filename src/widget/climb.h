// SPDX-License-Identifier: MIT
// A guard for walks from a widget up: ends the climb where it comes to a widget that it left
// already, which happens when one lies below itself.
#ifndef PANDREL_WIDGET_CLIMB_H
#define PANDREL_WIDGET_CLIMB_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

struct Widg;

class Climb {
 public:
  // Whether this climb has not stood on the widget before; remembers it.
  bool IsNew(const Widg* widg) {
    const auto first_end = first_.begin() + first_count_;
    if (std::find(first_.begin(), first_end, widg) != first_end) return false;
    if (first_end != first_.end()) {
      first_[first_count_++] = widg;
      return true;
    }
    if (std::find(others_.begin(), others_.end(), widg) != others_.end()) return false;
    others_.push_back(widg);
    return true;
  }

 private:
  // Climbs are short and very many, so the ordinary one takes no memory from the heap.
  std::array<const Widg*, 4> first_;
  std::size_t first_count_ = 0;
  std::vector<const Widg*> others_;
};

#endif
