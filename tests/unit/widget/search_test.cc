// SPDX-License-Identifier: MIT
#include "widget/search.h"
#include "unit/support/checked_searches.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/gil_name.h"
#include "widget/known_names.h"
#include "widget/links.h"
#include "widget/nesting.h"
#include "widget/tree.h"

namespace {

// Every search of these tests also goes through the tree and must find the same.
class WidgSearch : public SessionFixture {
 protected:
  WidgSearch() { CheckSearches(true); }
  ~WidgSearch() override { CheckSearches(false); }
};

TEST_F(WidgSearch, LaterTopLevelWidgetWinsOverAChildOfTheFirst) {
  Widg* wanted = Leaf("item");
  Widg* tree = TopLevel({NewWidg("TopLevelShell", "shell", {Leaf("item")}), wanted});
  EXPECT_EQ(FindWidg(tree, "item"), wanted);
}

TEST_F(WidgSearch, WidgetItselfWinsOverItsSiblings) {
  Widg* first = Leaf("item");
  EXPECT_EQ(FindWidg(TopLevel({first, Leaf("item")}), "item"), first);
}

TEST_F(WidgSearch, WhatHangsBelowALaterSiblingWinsOverTheFirstOnesChildren) {
  Widg* wanted = Leaf("item");
  Widg* tree = TopLevel({NewWidg("XmForm", "a", {Leaf("item")}), NewWidg("XmForm", "b", {wanted})});
  EXPECT_EQ(FindWidg(tree, "item"), wanted);
}

TEST_F(WidgSearch, SiblingsOfAChildComeBeforeTheChildrenOfTheFirstChild) {
  Widg* wanted = Leaf("item");
  Widg* tree = TopLevel(
      {NewWidg("XmForm", "top", {NewWidg("XmForm", "a", {Leaf("item")}), Leaf("b"), wanted})});
  EXPECT_EQ(FindWidg(tree, "item"), wanted);
}

TEST_F(WidgSearch, TreeThatIsNotTheTopLevelIsSearchedByItself) {
  Widg* wanted = Leaf("item");
  TopLevel({Leaf("item")});
  EXPECT_EQ(FindWidg(Siblings({Leaf("a"), wanted}), "item"), wanted);
}

TEST_F(WidgSearch, NamesAreComparedExactly) {
  Widg* tree = TopLevel({Leaf("Item")});
  EXPECT_EQ(FindWidg(tree, "item"), nullptr);
  EXPECT_EQ(FindWidg(tree, "Ite"), nullptr);
  EXPECT_EQ(FindWidg(tree, "Item"), tree);
}

TEST_F(WidgSearch, InstanceNamesAreNotLookedAt) {
  Widg* tree = TopLevel({Leaf("item"), Leaf("item")});  // item and item1
  EXPECT_EQ(FindWidg(tree, "item1"), nullptr);
}

TEST_F(WidgSearch, WidgetIsFoundByTheNameItWasGivenLast) {
  Widg* widg = Leaf("item");
  Widg* tree = TopLevel({Leaf("a"), widg});
  SetGilName(widg, Writable("setting"));
  EXPECT_EQ(FindWidg(tree, "setting"), widg);
  EXPECT_EQ(FindWidg(tree, "item"), nullptr);
}

TEST_F(WidgSearch, EveryChangeOfANameIsSeen) {
  Widg* widg = NewWidg("XmForm", "itemb", {Leaf("b")});
  Widg* tree = TopLevel({Leaf("a"), widg});
  EXPECT_EQ(FindWidg(tree, "itemb"), widg);
  EXPECT_EQ(FindWidgWithChild(tree, "itemb"), widg);
  // The names before and behind it in the alphabet, and those further off.
  for (const char* name : {"itema", "itemb", "itemc", "item", "zoo", "item"}) {
    const std::string former = widg->gil_name;
    SetGilName(widg, Writable(name));
    EXPECT_EQ(FindWidg(tree, name), widg) << name;
    EXPECT_EQ(FindWidgWithChild(tree, name), widg) << name;
    EXPECT_EQ(FindWidg(tree, former.c_str()), former == name ? widg : nullptr) << former;
  }
}

// Of so many namesakes the search remembers which one it found.
TEST_F(WidgSearch, OneOfManyNamesakesIsFoundAsTheTreeStands) {
  constexpr int kMany = 40;
  Widg* first = NewWidg("XmForm", "form");
  Widg* second = NewWidg("XmForm", "form");
  for (int i = 0; i < kMany; ++i) AddChildWidg(first, Leaf("item"));
  Widg* tree = TopLevel({first, second});
  EXPECT_EQ(FindWidg(tree, "item"), first->child);
  EXPECT_EQ(FindWidg(tree, "item"), first->child);
  EXPECT_EQ(FindWidgWithChild(tree, "item"), nullptr);
  EXPECT_EQ(FindWidgWithChild(tree, "item"), nullptr);

  // Below the form further right, where a search comes first.
  Widg* moved = LastSibling(first->child);
  MoveWidgetInHierarchy(moved, first, second);
  EXPECT_EQ(FindWidg(tree, "item"), moved);
  EXPECT_EQ(FindWidg(tree, "item"), moved);
  AddChildWidg(first->child, Leaf("text"));
  EXPECT_EQ(FindWidgWithChild(tree, "item"), first->child);
  EXPECT_EQ(FindWidgWithChild(tree, "item"), first->child);

  EXPECT_EQ(FindWidg(tree, "item"), moved);
  SetGilName(moved, Writable("other"));
  EXPECT_EQ(FindWidg(tree, "item"), first->child);
  EXPECT_EQ(FindWidg(tree, "item"), first->child);
}

TEST_F(WidgSearch, NullNameCountsAsEmpty) {
  Widg* nameless = Leaf("");
  EXPECT_EQ(FindWidg(TopLevel({Leaf("a"), nameless}), nullptr), nameless);
}

TEST_F(WidgSearch, EmptyTreeHoldsNothing) {
  EXPECT_EQ(FindWidg(nullptr, "item"), nullptr);
  EXPECT_EQ(FindWidgWithChild(nullptr, "item"), nullptr);
  EXPECT_EQ(FindParentOfWidg(nullptr, Leaf("a")), nullptr);
}

TEST_F(WidgSearch, LeafIsSkippedWhereAChildIsAskedFor) {
  Widg* wanted = NewWidg("XmForm", "item", {Leaf("a")});
  Widg* tree = TopLevel({Leaf("item"), wanted});
  EXPECT_EQ(FindWidgWithChild(tree, "item"), wanted);
  EXPECT_EQ(FindWidgWithChild(tree, "a"), nullptr);
}

TEST_F(WidgSearch, WidgetWithChildIsFoundDeepDown) {
  Widg* wanted = NewWidg("XmForm", "item", {Leaf("a")});
  Widg* tree = TopLevel(
      {NewWidg("TopLevelShell", "shell", {Leaf("item"), NewWidg("XmForm", "b", {wanted})})});
  EXPECT_EQ(FindWidgWithChild(tree, "item"), wanted);
}

TEST_F(WidgSearch, ParentIsFoundByIdentity) {
  Widg* first = Leaf("item");
  Widg* second = Leaf("item");
  Widg* a = NewWidg("XmForm", "a", {first});
  Widg* b = NewWidg("XmForm", "b", {Leaf("c"), second});
  Widg* tree = TopLevel({a, b});
  EXPECT_EQ(FindParentOfWidg(tree, first), a);
  EXPECT_EQ(FindParentOfWidg(tree, second), b);
}

TEST_F(WidgSearch, TopLevelAndAbsentWidgetsHaveNoParent) {
  Widg* tree = TopLevel({NewWidg("XmForm", "a", {Leaf("b")}), Leaf("c")});
  EXPECT_EQ(FindParentOfWidg(tree, tree->next), nullptr);
  EXPECT_EQ(FindParentOfWidg(tree, Leaf("d")), nullptr);
}

TEST_F(WidgSearch, OfTwoParentsTheOneFurtherRightWinsOverTheOneBelow) {
  Widg* shared = Leaf("menu");
  Widg* below = NewWidg("XmForm", "below", {shared});
  Widg* right = NewWidg("XmForm", "right");
  SetChildren(right, shared);
  Widg* tree = TopLevel({NewWidg("TopLevelShell", "shell", {below}), right});
  EXPECT_EQ(FindParentOfWidg(tree, shared), right);
}

TEST_F(WidgSearch, ClaimedMenuOfTheTopLevelHasItsUserForAParent) {
  Widg* menu = Leaf("menu");
  Widg* button = NewWidg("XmCascadeButton", "button");
  Widg* tree = TopLevel({menu});
  SetChildren(button, menu);
  TopLevel({NewWidg("TopLevelShell", "shell", {button})});
  EXPECT_EQ(FindParentOfWidg(tree, menu), button);
  EXPECT_EQ(FindWidg(tree, "menu"), menu);
}

TEST_F(WidgSearch, ItemOfADroppedMenuIsFoundWhereItIsLinkedNext) {
  Widg* button = NewWidg("XmCascadeButton", "button");
  Widg* window = NewWidg("TopLevelShell", "window", {NewWidg("XmForm", "form", {Leaf("item")})});
  Widg* tree = TopLevel({NewWidg("TopLevelShell", "first", {button}), window});
  // The next file: a menu that an earlier window claims.
  Widg* item = Leaf("item");
  Widg* menu = NewWidg("XmPulldownMenu", "menu", {item});
  TopLevel({menu});
  SetChildren(button, menu);
  EXPECT_EQ(FindWidg(tree, "item"), item);
  DropTopLevel(menu);
  MenusAreDropped();
  RelinkTopLevel(&window->next, nullptr);
  EXPECT_EQ(FindWidg(tree, "item"), window->child->child);
  AddChildWidg(window, NewWidg("XmForm", "other"));
  SetChildren(LastSibling(window->child), item);
  EXPECT_EQ(FindWidg(tree, "item"), item);
}

TEST_F(WidgSearch, WhatANewEndOfTheTopLevelReplacesIsNotFound) {
  Widg* tree = TopLevel({Leaf("first"), Leaf("former")});
  EXPECT_EQ(FindWidg(tree, "former"), tree->next);
  EXPECT_TRUE(NamesAreKnown());  // else every search would go through the tree
  Widg* other = Leaf("other");
  LinkTopLevel(&tree->next, other);
  EXPECT_EQ(FindWidg(tree, "former"), nullptr);
  EXPECT_EQ(FindWidg(tree, "other"), other);
}

TEST_F(WidgSearch, IsChildLooksAtTheDirectChildrenOnly) {
  Widg* leaf = Leaf("c");
  Widg* middle = NewWidg("XmForm", "b", {leaf});
  Widg* top = NewWidg("XmForm", "a", {Leaf("x"), middle});
  EXPECT_EQ(IsChild(top, middle), 1);
  EXPECT_EQ(IsChild(top, leaf), 0);
  EXPECT_EQ(IsChild(middle, leaf), 1);
}

TEST_F(WidgSearch, NullIsNobodysChildAndNobodysParent) {
  Widg* widg = NewWidg("XmForm", "a", {Leaf("b")});
  EXPECT_EQ(IsChild(nullptr, widg), 0);
  EXPECT_EQ(IsChild(widg, nullptr), 0);
  EXPECT_EQ(IsChild(nullptr, nullptr), 0);
}

TEST_F(WidgSearch, WidgetBelowItselfDoesNotStopASearch) {
  Widg* wanted = Leaf("item");
  Widg* loop = NewWidg("XmForm", "loop", {wanted});
  Widg* tree = TopLevel({loop, Leaf("a")});
  AddChildWidg(wanted, loop);
  EXPECT_EQ(FindWidg(tree, "item"), wanted);
  EXPECT_EQ(FindWidg(tree, "absent"), nullptr);
  EXPECT_EQ(FindWidgWithChild(tree, "absent"), nullptr);
  EXPECT_EQ(FindParentOfWidg(tree, Leaf("stranger")), nullptr);
  EXPECT_EQ(FindParentOfWidg(tree, wanted), loop);
}

TEST_F(WidgSearch, WidgetBelowItselfIsFoundOnceItIsLinked) {
  Widg* wanted = Leaf("item");
  Widg* loop = NewWidg("XmForm", "loop", {wanted});
  Widg* tree = TopLevel({NewWidg("XmForm", "window")});
  EXPECT_EQ(FindWidg(tree, "item"), nullptr);
  AddChildWidg(wanted, loop);
  AddChildWidg(tree, wanted);
  EXPECT_EQ(FindWidg(tree, "item"), wanted);
  EXPECT_EQ(FindWidg(tree, "loop"), loop);
}

TEST_F(WidgSearch, WidgetsSharedLevelByLevelAreSearchedInReasonableTime) {
  // Two parents for every widget: a search along each path would take 2 to the 60th steps.
  Widg* below = Leaf("deepest");
  for (int level = 0; level < 60; ++level) {
    Widg* left = Leaf("left");
    Widg* right = Leaf("right");
    SetChildren(left, below);
    SetChildren(right, below);
    below = Siblings({left, right});
  }
  Widg* tree = TopLevel({below});
  EXPECT_EQ(FindWidg(tree, "absent"), nullptr);
  EXPECT_STREQ(FindWidg(tree, "deepest")->gil_name, "deepest");
  EXPECT_EQ(FindParentOfWidg(tree, Leaf("stranger")), nullptr);
}

TEST_F(WidgSearch, DeepTreeDoesNotExhaustTheStack) {
  Widg* deepest = Leaf("deepest");
  Widg* tree = deepest;
  for (int level = 0; level < 20000; ++level) tree = NewWidg("XmForm", "level", {tree});
  TopLevel({tree});
  EXPECT_EQ(FindWidg(tree, "deepest"), deepest);
  EXPECT_EQ(FindWidg(tree, "absent"), nullptr);
}

}  // namespace
