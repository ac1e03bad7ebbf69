// SPDX-License-Identifier: MIT
// The widgets that a conversion makes besides the object's own: what several kinds of objects need
// for the containers around it and for the buttons of its items.
#ifndef PANDREL_CONVERT_COMPANIONS_H
#define PANDREL_CONVERT_COMPANIONS_H

#include <functional>

struct Value;
struct Widg;

// A new widget named from the GIL name of another and a suffix.
Widg* MakeNamedAfter(const char* class_name, const Widg* widg, const char* suffix);

// Puts the wrapper, which has no children yet, around the widget: it takes over the place among the
// siblings and the position. `label` (may be null) becomes the child before the widget.
void WrapIn(Widg* wrapper, Widg* widg, Widg* label);

// Copies the integer fields of the GIL geometry.
void CopyGilGeometry(const Widg* from, Widg* to);

// An item of a menu or a choice of a setting: the heads of lists that are walked in step. Lists
// other than `label` may be shorter, or missing.
struct Item {
  Value* label = nullptr;
  Value* label_type = nullptr;
  Value* color = nullptr;
  Value* selected = nullptr;
  Value* state = nullptr;    // of menus only, as the next one
  Value* submenu = nullptr;  // in file order; all other lists are reversed, and so they are walked
};

// Makes the children of `parent`: what MakeItem returns for each item, null for none. They come out
// in file order, since each is put in front of those before it.
void MakeItems(Widg* parent, Item item, const std::function<Widg*(const Item&)>& MakeItem);

#endif
