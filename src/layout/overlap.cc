// SPDX-License-Identifier: MIT
#include "layout/overlap.h"

#include <cstdlib>

#include "layout/geometry.h"
#include "layout/tiling.h"
#include "osi/arena.h"
#include "osi/fatal.h"
#include "osi/wrap.h"
#include "text/uil_text.h"
#include "widget/tree.h"

bool IsClose(int32_t a, int32_t b) { return std::abs(static_cast<int64_t>(WrapSub(a, b))) < 10; }

bool ContainedWithin(int32_t v, int32_t low, int32_t high) { return low <= v && v <= high; }

static bool StrictlyBetween(int32_t v, int32_t low, int32_t high) { return low < v && v < high; }

bool VerticalOverlap(const Widg* a, const Widg* b) {
  const int32_t top_a = TopPos(a);
  const int32_t bottom_a = ApproxBottomPos(a);
  const int32_t top_b = TopPos(b);
  const int32_t bottom_b = ApproxBottomPos(b);
  return StrictlyBetween(top_b, top_a, bottom_a) || StrictlyBetween(bottom_b, top_a, bottom_a) ||
         (top_b < top_a && bottom_a < bottom_b);
}

bool AlignedVertically(const Widg* a, const Widg* b) {
  const int32_t left_a = LeftSidePos(a);
  const int32_t right_a = ApproxRightSidePos(a);
  const int32_t left_b = LeftSidePos(b);
  const int32_t right_b = ApproxRightSidePos(b);
  if (ContainedWithin(left_a, left_b, right_b) && ContainedWithin(right_a, left_b, right_b)) {
    return true;
  }
  // The second test looks at a's own right edge, not at b's: it only excludes widgets of negative
  // width.
  if (ContainedWithin(left_b, left_a, right_a) && ContainedWithin(right_a, left_a, right_a)) {
    return true;
  }
  return IsClose(left_a, left_b) || IsClose(right_a, right_b);
}

bool MostlyHorizontalOverlap(const Widg* a, const Widg* b) {
  const int32_t left_a = LeftSidePos(a);
  const int32_t left_b = LeftSidePos(b);
  return StrictlyBetween(left_a, left_b, ApproxRightSidePos(b)) &&
         WrapSub(left_a, left_b) > 0.7 * Width(b);
}

Rectangle* Rect(const Widg* widg) {
  auto* rect = static_cast<Rectangle*>(TryRealloc(nullptr, sizeof(Rectangle)));
  if (!rect) Error("Out of memory in RectangleCorners");
  rect->left = LeftSidePos(widg);
  rect->top = TopPos(widg);
  rect->right = ApproxRightSidePos(widg);
  rect->bottom = ApproxBottomPos(widg);
  return rect;
}

bool PointInRect(int32_t x, int32_t y, const Rectangle* rect) {
  return StrictlyBetween(x, rect->left, rect->right) && StrictlyBetween(y, rect->top, rect->bottom);
}

void MoveToAvoidVerticalOverlap(Widg* lower, const Widg* upper) {
  AddResource(lower, "XmNy", IntToString(ApproxBottomPos(upper)));
}

void AvoidVerticalOverlap(const Widg* container) {
  Widg* widgs[kMaxPositions];
  int32_t count = 0;
  for (Widg* child = container->child; child; child = child->next) {
    InsertByPosition(widgs, &count, child, kPositionTop);
  }
  for (int32_t i = 0; i < count - 1; ++i) {
    for (int32_t j = i + 1; j < count; ++j) {
      if (AlignedVertically(widgs[i], widgs[j]) && VerticalOverlap(widgs[i], widgs[j])) {
        MoveToAvoidVerticalOverlap(widgs[j], widgs[i]);
      }
    }
  }
}
