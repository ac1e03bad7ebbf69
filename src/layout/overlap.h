// SPDX-License-Identifier: MIT
// Geometry predicates, and the pass that moves controls down where they would overlap. Part of what
// the layout offers; no step of the conversion calls it.
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

// Whether one widget's top or bottom lies strictly inside the other's vertical extent. Equal
// extents do not overlap by this test.
bool VerticalOverlap(const Widg* a, const Widg* b);

// Whether the widgets stand one above the other. Not symmetric: b's left edge within a is enough,
// a's within b is not.
bool AlignedVertically(const Widg* a, const Widg* b);

// Whether a's left edge lies in the last three tenths of b.
bool MostlyHorizontalOverlap(const Widg* a, const Widg* b);

// The widget's rectangle as far as it is known; the caller's, to be freed with free(). Ends the run when memory is
// exhausted.
Rectangle* Rect(const Widg* widg);

// Whether the point lies strictly inside.
bool PointInRect(int32_t x, int32_t y, const Rectangle* rect);

// Moves `lower` to where `upper` ends.
void MoveToAvoidVerticalOverlap(Widg* lower, const Widg* upper);

// Moves the container's children down, in order of their GIL tops, until none of those that stand
// one above the other overlap. Looks at the first 128; the container keeps its size.
void AvoidVerticalOverlap(const Widg* container);

#endif
