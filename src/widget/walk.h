// SPDX-License-Identifier: MIT
// Walks over a whole tree that handle every widget, in one of the orders of a recursion over first
// child and next sibling, but without its stack.
//
// note [a widget on two paths]
// A menu that two buttons share is visited twice and handled twice. A walk only skips a widget that
// is on its current path, below itself. Menus that share sub-menus level by level have too many
// paths, so after kMaxRepeats repeated visits a walk skips all widgets that it has visited:
//   m1 -> (m2, m2), m2 -> (m3, m3), ... m40: 2 to the 40th paths
#ifndef PANDREL_WIDGET_WALK_H
#define PANDREL_WIDGET_WALK_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "widget/tree.h"

constexpr std::size_t kMaxRepeats = 10000000;

// The limit of a walk: kMaxRepeats, or less in a fuzzer (widget/walk_testing.h).
std::size_t MaxRepeats();

// What a recursive function would do at a widget, in the order of these steps.
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
        // Nothing follows the last step, so the frame can go.
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
