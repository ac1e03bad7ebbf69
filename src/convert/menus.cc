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
#include "widget/search.h"
#include "widget/tree.h"

static Item TakeItems(Obj* obj) {
  Item items;
  if (!GetAttrValue(obj, MENU_ITEM_LABELS, &items.label, 1)) Error("Menu doesn't have any labels");
  items.label_type = TakeValue(obj, MENU_ITEM_LABEL_TYPES);
  items.state = TakeValue(obj, MENU_ITEM_STATES);
  items.selected = TakeValue(obj, INITIAL_SELECTIONS);
  items.color = TakeValue(obj, MENU_ITEM_COLORS);
  items.submenu = TakeValue(obj, MENU_ITEM_MENUS);
  return items;
}

// What a user of the menu gets who needs it as class `wanted`: the widget itself, or a copy when it
// already has the class `other`.
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

static Widg* MakeItem(const Widg* menu, int32_t menu_type, const Item& item) {
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
  SetColor(widg, "XmNforeground", item.color);
  return widg;
}

Widg* SpecProcMenu(Obj* obj, Widg* widg) {
  const Item items = TakeItems(obj);
  const Value* type_value = TakeValue(obj, MENU_TYPE);
  if (!type_value) Error("Menu doesn't have a type");
  const int32_t menu_type = ValueToken(type_value, COMMAND);
  if (menu_type == EXCLUSIVE) AddResource(widg, "XmNradioBehavior", "true");
  MakeItems(widg, items, [&](const Item& item) { return MakeItem(widg, menu_type, item); });
  return widg;
}

Widg* MakeMenuButton(Obj* obj, Widg* button) {
  const Value* menu_name = TakeValue(obj, MENU);
  if (!IsStringValue(menu_name)) return button;
  // Make the bar even when there is no menu: the numbers of later names depend on it.
  char bar_name[] = "menubar";
  Widg* bar = MakeWidg("XmMenuBar", bar_name);
  CopyGilGeometry(button, bar);
  const char* name = ValueText(menu_name);
  Widg* menu = FindWidg(top_widget, name);
  if (!menu) {
    std::printf("Cannot find menu %s, ignoring...\n", name);
    button->class_name = "XmPushButton";
    return button;
  }
  SetChildren(button, ClaimPulldown(menu));
  WrapIn(bar, button, nullptr);
  button->class_name = "XmCascadeButton";
  return bar;
}

void AttachPopupMenu(Obj* obj, Widg* widg) {
  const Value* value = TakeValue(obj, MENU);
  if (!IsStringValue(value)) return;
  const char* name = ValueText(value);
  Widg* menu = FindWidg(top_widget, name);
  if (!menu) {
    std::printf("Cannot find menu %s, ignoring it\n", name);
    return;
  }
  AddChildLast(widg, ClaimMenu(menu, "XmPopupMenu", "XmPulldownMenu"));
}
