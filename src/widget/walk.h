// SPDX-License-Identifier: MIT
// Walks over a whole tree that handle every widget, in one of the orders of a recursion over first
// child and next sibling, but without its stack.
//
// note [a widget on two paths]
// A menu that two buttons share is reached twice and handled twice. Only a widget that lies below
// itself is passed over where it comes up again. Menus that share sub-menus level by level have
// more paths than anybody can walk; after kMaxRepeats repeated visits a walk passes over what it
// has seen:
//   m1 -> (m2, m2), m2 -> (m3, m3), ... m40: 2 to the 40th paths
#ifndef PANDREL_WIDGET_WALK_H
#define PANDREL_WIDGET_WALK_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "widget/tree.h"

constexpr std::size_t kMaxRepeats = 10000000;

// What a walk allows: kMaxRepeats, but where a fuzzer wants less (widget/walk_testing.h).
std::size_t MaxRepeats();

// What a recursive function would do, one after the other, once it stands on a widget.
enum class WalkStep : uint8_t { kSelf, kChild, kNext };
using WalkOrder = std::array<WalkStep, 3>;

// The mark of a new walk in the `walk` fields: even; one more marks a widget on the current path.
uint32_t NewWalk();

// Walks from `first` in that order. Enters a widget only when MayEnter(widget) holds (siblings
// behind one that is not entered are not reached through it) and calls Handle(widget), which may
// relink widgets.
template <typename Enter, typename Handler>
void WalkWidgets(Widg* first, const WalkOrder& order, Enter MayEnter, Handler Handle) {
  struct Frame {
    Widg* widg;
    std::size_t step;
  };
  const uint32_t seen = NewWalk();
  const std::size_t max_repeats = MaxRepeats();
  const uint32_t on_path = seen + 1;
  std::size_t repeats = 0;
  std::vector<Frame> path;
  const auto Visit = [&](Widg* widg) {
    if (!widg || widg->walk == on_path || !MayEnter(widg)) return;
    if (widg->walk == seen && ++repeats > max_repeats) return;
    widg->walk = on_path;
    path.push_back({widg, 0});
  };
  Visit(first);
  while (!path.empty()) {
    Widg* widg = path.back().widg;
    const std::size_t step = path.back().step++;
    if (step == order.size()) {
      widg->walk = seen;
      path.pop_back();
      continue;
    }
    switch (order[step]) {
      case WalkStep::kSelf:
        Handle(widg);
        break;
      case WalkStep::kChild:
        Visit(widg->child);
        break;
      case WalkStep::kNext:
        // The last thing a recursion does needs no way back.
        if (step + 1 == order.size()) {
          widg->walk = seen;
          path.pop_back();
        }
        Visit(widg->next);
        break;
    }
  }
}

#endif
