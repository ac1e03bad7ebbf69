// SPDX-License-Identifier: MIT
#include "widget/walk.h"

#include "widget/walk_testing.h"

static std::size_t limit = kMaxRepeats;

void LimitRepeats(std::size_t max_repeats) { limit = max_repeats; }

std::size_t MaxRepeats() { return limit; }

uint32_t NewWalk() {
  static uint32_t last_walk = 0;
  last_walk += 2;
  return last_walk;
}
