// SPDX-License-Identifier: MIT
#include "convert/companions.h"

#include "gil/value.h"
#include "text/uil_text.h"
#include "widget/links.h"
#include "widget/resources.h"
#include "widget/tree.h"

Widg* MakeNamedAfter(const char* class_name, const Widg* widg, const char* suffix) {
  return MakeWidg(class_name, MergeStrings(widg->gil_name, suffix));
}

void WrapIn(Widg* wrapper, Widg* widg, Widg* label) {
  wrapper->next = widg->next;
  widg->next = nullptr;
  if (label) label->next = widg;
  SetChildren(wrapper, label ? label : widg);
  MovePositionResources(widg, wrapper);
}

void CopyGilGeometry(const Widg* from, Widg* to) {
  to->x = from->x;
  to->y = from->y;
  to->width = from->width;
  to->height = from->height;
}

void MakeItems(Widg* parent, Item item, const std::function<Widg*(const Item&)>& MakeItem) {
  Widg* children = nullptr;
  while (item.label) {
    if (Widg* child = MakeItem(item)) {
      child->next = children;
      children = child;
    }
    for (Value** list :
         {&item.label, &item.label_type, &item.color, &item.selected, &item.state, &item.submenu}) {
      Step(list);
    }
  }
  SetChildren(parent, children);
}
