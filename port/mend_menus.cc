// SPDX-License-Identifier: MIT
#include "port/mend_menus.h"

#include <algorithm>
#include <unordered_set>

#include "gil/object.h"
#include "gil/tokens.h"
#include "widget/copy.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace port {
namespace {

std::vector<Widg*> ItemsOf(const Widg* menu) {
  std::vector<Widg*> items;
  for (Widg* item = menu->child; item; item = item->next) items.push_back(item);
  return items;
}

bool HasSubMenus(const Widg* menu) {
  const std::vector<Widg*> items = ItemsOf(menu);
  return std::any_of(items.begin(), items.end(), [](const Widg* item) { return item->child; });
}

// A menu's names of sub-menus are in the file's order and its other lists in reverse, and the
// conversion walks them in step: the first item gets the menu of the last.
void MirrorSubMenus(Session& session, const Widg* menu, const PortObject& object) {
  const std::vector<Widg*> items = ItemsOf(menu);
  const GilAttribute* labels = object.Find(MENU_ITEM_LABELS);
  if (!HasSubMenus(menu) || !labels || labels->values.size() != items.size()) return;
  const bool toggles = object.Is(MENU_TYPE, EXCLUSIVE) || object.Is(MENU_TYPE, NONEXCLUSIVE);
  const char* plain = toggles ? "XmToggleButton" : "XmPushButton";
  for (std::size_t i = 0; i < items.size() / 2; ++i) {
    Widg* a = items[i];
    Widg* b = items[items.size() - 1 - i];
    Widg* const below_a = a->child;
    Widg* const below_b = b->child;
    SetChildren(a, below_b);
    SetChildren(b, below_a);
    a->class_name = below_b ? "XmCascadeButton" : plain;
    b->class_name = below_a ? "XmCascadeButton" : plain;
    session.parent_of[below_a] = b;
    session.parent_of[below_b] = a;
  }
  session.model.mends.push_back("the sub-menus of " + object.name +
                                " are on the items that name them");
}

// Copies of one interface. Menus that name each other many times over have copies without number.
constexpr int kMostCopies = 10000;

// A copy of the widget with all that is below it. `above` are the originals of the copies around,
// since a menu may be its own sub-menu. `left` counts down the copies that may be made.
Widg* CopyWhole(Widg* widg, std::unordered_set<const Widg*>& above, int& left) {
  Widg* copy = CopyWidg(widg);
  if (--left < 0 || !above.insert(widg).second) return copy;
  Widg* first = nullptr;
  Widg* last = nullptr;
  for (Widg* child = widg->child; child; child = child->next) {
    Widg* made = CopyWhole(child, above, left);
    (last ? last->next : first) = made;
    last = made;
  }
  above.erase(widg);
  if (first) SetChildren(copy, first);
  return copy;
}

void CollectBelow(Widg* first, std::unordered_set<const Widg*>& found) {
  std::vector<Widg*> open = {first};
  while (!open.empty()) {
    Widg* widg = open.back();
    open.pop_back();
    if (!widg || !found.insert(widg).second) continue;
    open.push_back(widg->child);
    open.push_back(widg->next);
  }
}

// Gives the items of a copy sub-menus like those of the original. The conversion copied the first
// one alone, and with it whatever stood behind it in the list of menus. What leaves its place goes
// to `removed`.
void MendCopy(const Widg* original, const Widg* copy, std::unordered_set<const Widg*>& removed,
              int& left) {
  const std::vector<Widg*> items = ItemsOf(original);
  const std::vector<Widg*> copies = ItemsOf(copy);
  if (items.size() != copies.size()) return;
  for (std::size_t i = 0; i < items.size(); ++i) {
    CollectBelow(copies[i]->child, removed);
    std::unordered_set<const Widg*> above = {original};
    SetChildren(copies[i], items[i]->child ? CopyWhole(items[i]->child, above, left) : nullptr);
    copies[i]->class_name = items[i]->class_name;
  }
}

// Forgets the widgets that are not in the tree any more.
void Forget(Session& session, const std::unordered_set<const Widg*>& removed) {
  std::unordered_set<const Widg*> in_tree;
  CollectBelow(top_widget, in_tree);
  std::erase_if(session.widgets, [&](const Widg* widg) {
    return removed.contains(widg) && !in_tree.contains(widg);
  });
  IndexWidgets(session);
}

// The menus that an object became: the first is the original of the others.
std::vector<Widg*> MenusOf(const Session& session, int object) {
  std::vector<Widg*> menus = OwnWidgets(session, object);
  std::erase_if(menus, [](const Widg* widg) { return !IsInModule(widg); });
  return menus;
}

}  // namespace

void MendMenus(Session& session) {
  const std::vector<PortObject>& objects = session.model.objects;
  std::unordered_set<const Widg*> removed;
  for (std::size_t i = 0; i < objects.size(); ++i) {
    if (objects[i].type != MENU) continue;
    const std::vector<Widg*> menus = MenusOf(session, static_cast<int>(i));
    if (!menus.empty()) MirrorSubMenus(session, menus[0], objects[i]);
  }
  int left = kMostCopies;
  // Copies are made of menus that have their places.
  for (std::size_t i = 0; i < objects.size(); ++i) {
    if (objects[i].type != MENU) continue;
    const std::vector<Widg*> menus = MenusOf(session, static_cast<int>(i));
    for (std::size_t k = 1; k < menus.size() && HasSubMenus(menus[0]); ++k) {
      MendCopy(menus[0], menus[k], removed, left);
    }
    if (menus.size() > 1 && HasSubMenus(menus[0])) {
      session.model.mends.push_back("every copy of menu " + objects[i].name + " has its sub-menus");
    }
  }
  if (!removed.empty()) Forget(session, removed);
}

}  // namespace port
