// SPDX-License-Identifier: MIT
// What the wrappers of several kinds of objects have in common.
#ifndef PANDREL_CONVERT_COMPANIONS_H
#define PANDREL_CONVERT_COMPANIONS_H

struct Widg;

// A new widget named from the GIL name of another and a suffix.
Widg* MakeNamedAfter(const char* class_name, const Widg* widg, const char* suffix);

// The wrapper takes the widget's place among its siblings; the widget's `next` is cleared. Neither
// is in a list yet.
void TakePlace(Widg* wrapper, Widg* widg);

// Copies the integer fields of the GIL geometry.
void CopyGilGeometry(const Widg* from, Widg* to);

// Whether the widget has one child and no more.
bool HasOneChild(const Widg* widg);

#endif
