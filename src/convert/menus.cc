// SPDX-License-Identifier: MIT
#include "convert/menus.h"

#include <cstdio>

#include "convert/companions.h"
#include "convert/label_type.h"
#include "convert/std_attributes.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/fatal.h"
#include "widget/copy.h"
#include "widget/links.h"
#include "widget/resources.h"
#include "widget/search.h"
#include "widget/tree.h"

// The items' lists, walked in step. The names of sub-menus stand in file order and all other lists
// in reverse, and so they are walked.
struct ItemLists {
  Value* label = nullptr;
  Value* label_type = nullptr;
  Value* state = nullptr;
  Value* selected = nullptr;
  Value* color = nullptr;
  Value* submenu = nullptr;
};

static void TakeItems(Obj* obj, ItemLists* lists) {
  if (!GetAttrValue(obj, MENU_ITEM_LABELS, &lists->label, 1)) {
    Error("Menu doesn't have any labels");
  }
  GetAttrValue(obj, MENU_ITEM_LABEL_TYPES, &lists->label_type, 1);
  GetAttrValue(obj, MENU_ITEM_STATES, &lists->state, 1);
  GetAttrValue(obj, INITIAL_SELECTIONS, &lists->selected, 1);
  GetAttrValue(obj, MENU_ITEM_COLORS, &lists->color, 1);
  GetAttrValue(obj, MENU_ITEM_MENUS, &lists->submenu, 1);
}

static void StepItems(ItemLists* lists) {
  Step(&lists->label);
  Step(&lists->label_type);
  Step(&lists->state);
  Step(&lists->selected);
  Step(&lists->color);
  Step(&lists->submenu);
}

// The menu as a user of the class `wanted` gets it: the widget itself, or a copy when one of the
// class `other` has claimed it.
static Widg* ClaimMenu(Widg* menu, const char* wanted, const char* other) {
  if (IsClass(menu, other)) menu = CopyWidgTree(menu);
  menu->class_name = wanted;
  return menu;
}

static Widg* ClaimPulldown(Widg* menu) { return ClaimMenu(menu, "XmPulldownMenu", "XmPopupMenu"); }

static void SetSubMenu(Widg* item, const Value* submenu) {
  if (!IsStringValue(submenu)) return;
  const char* name = ValueText(submenu);
  Widg* menu = FindWidg(top_widget, name);
  if (!menu) {
    std::printf("Cannot find pullright menu %s, ignoring...\n", name);
    return;
  }
  SetChildren(item, ClaimPulldown(menu));
  item->class_name = "XmCascadeButton";
}

static Widg* MakeItem(const Widg* menu, int32_t menu_type, const ItemLists& item) {
  const bool toggles = menu_type == EXCLUSIVE || menu_type == NONEXCLUSIVE;
  if (menu_type != COMMAND && !toggles) {
    std::fprintf(stderr, "***Unknown menu type: %d\n", static_cast<int>(menu_type));
    return nullptr;
  }
  Widg* widg = MakeNamedAfter(toggles ? "XmToggleButton" : "XmPushButton", menu, "choice");
  HandleWidgLabelAndType(widg, item.label, item.label_type);
  if (ValueToken(item.state, ACTIVE) == INACTIVE) AddResource(widg, "XmNsensitive", "false");
  if (toggles && ValueToken(item.selected, NIL) == T) AddResource(widg, "XmNset", "true");
  SetSubMenu(widg, item.submenu);
  if (HasGilText(item.color)) {
    AddResource(widg, "XmNforeground", MakeColorVal(ValueText(item.color)));
  }
  return widg;
}

Widg* SpecProcMenu(Obj* obj, Widg* widg) {
  ItemLists items;
  TakeItems(obj, &items);
  Value* type_value = nullptr;
  if (!GetAttrValue(obj, MENU_TYPE, &type_value, 1)) Error("Menu doesn't have a type");
  const int32_t menu_type = ValueToken(type_value, COMMAND);
  if (menu_type == EXCLUSIVE) AddResource(widg, "XmNradioBehavior", "true");

  // Put in front of each other, items of a reversed list come out in file order.
  Widg* children = nullptr;
  for (; items.label; StepItems(&items)) {
    Widg* item = MakeItem(widg, menu_type, items);
    if (!item) continue;
    item->next = children;
    children = item;
  }
  SetChildren(widg, children);
  return widg;
}

Widg* MakeMenuButton(Obj* /*obj*/, Widg* button, const Value* menuValue) {
  // Made even when the menu turns out to be missing, and its name stays taken.
  char bar_name[] = "menubar";
  Widg* bar = MakeWidg("XmMenuBar", bar_name);
  CopyGilGeometry(button, bar);
  const char* name = ValueText(menuValue);
  Widg* menu = FindWidg(top_widget, name);
  if (!menu) {
    std::printf("Cannot find menu %s, ignoring...\n", name);
    button->class_name = "XmPushButton";
    return button;
  }
  SetChildren(button, ClaimPulldown(menu));
  TakePlace(bar, button);
  SetChildren(bar, button);
  MovePositionResources(button, bar);
  button->class_name = "XmCascadeButton";
  return bar;
}

void AttachPopupMenu(Obj* obj, Widg* widg) {
  Value* value = nullptr;
  if (!GetAttrValue(obj, MENU, &value, 1) || !IsStringValue(value)) return;
  const char* name = ValueText(value);
  Widg* menu = FindWidg(top_widget, name);
  if (!menu) {
    std::printf("Cannot find menu %s, ignoring it\n", name);
    return;
  }
  AddChildLast(widg, ClaimMenu(menu, "XmPopupMenu", "XmPulldownMenu"));
}
