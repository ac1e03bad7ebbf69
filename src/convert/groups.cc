// SPDX-License-Identifier: MIT
#include "convert/groups.h"

#include <cstdio>

#include "flags/flags.h"
#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "osi/fatal.h"
#include "widget/climb.h"
#include "widget/links.h"
#include "widget/nesting.h"
#include "widget/resources.h"
#include "widget/search.h"
#include "widget/tree.h"

static bool IsWrapper(const Widg* widg) {
  return IsClass(widg, "XmMenuBar") || IsClass(widg, "XmFrame") || IsClass(widg, "XmForm") ||
         IsClass(widg, "XmScrolledWindow");
}

// The outermost widget that was made for the member: the menu bar of a button, the frame of a list,
// the row-column around a control and its label.
static Widg* ClimbOutOfWrappers(Widg* member) {
  Climb out_of_containers;
  while (out_of_containers.IsNew(member)) {
    Widg* parent = FindParentOfWidg(top_widget, member);
    if (!parent || !IsWrapper(parent)) break;
    member = parent;
  }
  Climb out_of_labels;
  while (member->wrapped && out_of_labels.IsNew(member)) {
    Widg* parent = FindParentOfWidg(top_widget, member);
    if (!parent) break;
    member = parent;
  }
  return member;
}

// Makes the member's position relative to the group's.
static void MoveIntoGroup(Widg* member, Widg* group) {
  top_widget = RemoveWidg(top_widget, member);
  member->next = nullptr;
  AddChildWidg(group, member);
  ReparentGeometry(group, member);
}

Widg* SpecProcGroup(Obj* obj, Widg* group) {
  if (ignore_groups) return group;
  if (group->child) Error("Group has non-null children");

  // The first member found decides, before anything moves, where the group goes and whether it is
  // kept.
  Widg* group_parent = nullptr;
  bool found_any = false;
  for (const Value* name = TakeValue(obj, MEMBERS); name; name = name->next) {
    Widg* member = FindWidg(top_widget, ValueText(name));
    if (!member) {
      std::printf("Cannot find group member: %s, ignoring...\n", ValueText(name));
      continue;
    }
    if (found_any && !group_parent) continue;
    member = ClimbOutOfWrappers(member);
    if (!found_any) group_parent = FindParentOfWidg(top_widget, member);
    found_any = true;
    if (group_parent) MoveIntoGroup(member, group);
  }
  if (!group_parent) return nullptr;
  AddChildWidg(group_parent, group);
  return group;
}
