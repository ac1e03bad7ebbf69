// SPDX-License-Identifier: MIT
#include "convert/companions.h"

#include "text/uil_text.h"
#include "widget/tree.h"

Widg* MakeNamedAfter(const char* class_name, const Widg* widg, const char* suffix) {
  return MakeWidg(class_name, MergeStrings(widg->gil_name, suffix));
}

void TakePlace(Widg* wrapper, Widg* widg) {
  wrapper->next = widg->next;
  widg->next = nullptr;
}

void CopyGilGeometry(const Widg* from, Widg* to) {
  to->x = from->x;
  to->y = from->y;
  to->width = from->width;
  to->height = from->height;
}

bool HasOneChild(const Widg* widg) { return widg->child && !widg->child->next; }
