// SPDX-License-Identifier: MIT
#include "widget/walk.h"

uint32_t NewWalk() {
  static uint32_t last_walk = 0;
  last_walk += 2;
  return last_walk;
}
