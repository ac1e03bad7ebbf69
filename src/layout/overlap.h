// SPDX-License-Identifier: MIT
// Geometry predicates, and a pass that moves controls down where they would overlap. The layout
// offers it, but no step of the conversion calls it. All numbers are pixels.
#ifndef PANDREL_LAYOUT_OVERLAP_H
#define PANDREL_LAYOUT_OVERLAP_H

#include <cstdint>

struct Widg;

struct Rectangle {
  int32_t left, top, right, bottom;
};

// |a - b| < 10.
bool IsClose(int32_t a, int32_t b);

// low <= v <= high.
bool ContainedWithin(int32_t v, int32_t low, int32_t high);

// Whether one widget's top or bottom lies strictly inside the other's vertical extent. Widgets of
// equal extents therefore do not overlap.
bool VerticalOverlap(const Widg* a, const Widg* b);

// Whether the widgets stand one above the other. Not symmetric: b's left edge within a is enough,
// a's within b is not.
bool AlignedVertically(const Widg* a, const Widg* b);

// Whether a's left edge lies in the last three tenths of b.
bool MostlyHorizontalOverlap(const Widg* a, const Widg* b);

// A new rectangle of the widget with its estimated right side and bottom; the caller frees it with
// free(). Ends the run when memory is exhausted.
Rectangle* Rect(const Widg* widg);

// Whether the point lies strictly inside.
bool PointInRect(int32_t x, int32_t y, const Rectangle* rect);

// Moves the top of `lower` to the bottom of `upper`.
void MoveToAvoidVerticalOverlap(Widg* lower, const Widg* upper);

// Goes through pairs of the container's children in order of their GIL tops, and moves the lower of
// two that overlap and stand one above the other. Looks at the first 128 children. The container
// keeps its size.
void AvoidVerticalOverlap(const Widg* container);

#endif
