// SPDX-License-Identifier: MIT
#include "convert/groups.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "flags/flags.h"
#include "passes/clean_up.h"
#include "unit/support/check_widg_tree.h"
#include "unit/support/checked_searches.h"
#include "unit/support/fatal_end.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/search.h"
#include "widget/tree.h"

namespace {

// Every search also goes through the tree and must find the same. Layout leaves positions alone.
class Groups : public SessionFixture {
 protected:
  Groups() {
    reposition = 0;
    CheckSearches(true);
  }
  ~Groups() override { CheckSearches(false); }
};

// A group at (10, 20).
Obj* Group(std::initializer_list<std::string_view> members) {
  return Object(GROUP, "group", {Int(X, 10), Int(Y, 20), Ids(MEMBERS, members)});
}

Obj* Button(const char* name, int32_t x, int32_t y) {
  return Object(BUTTON, name, {Int(X, x), Int(Y, y)});
}

Obj* Area(std::initializer_list<Obj*> children) {
  return Owning(Object(CONTROL_AREA, "area"), children);
}

Obj* Window(std::initializer_list<Obj*> controls) {
  return Owning(Object(BASE_WINDOW, "window"), {Area(controls)});
}

TEST_F(Groups, MembersBecomeChildrenAtPositionsOfTheGroup) {
  Convert(
      {Window({Button("a", 30, 50), Button("b", 30, 80), Button("c", 0, 0)}), Group({"a", "b"})});
  EXPECT_EQ(NameTree(top_widget), "window(area(c group(a b)))");
  EXPECT_EQ(Resources(Find("group")), "XmNx=10 XmNy=20 XmNmarginWidth=0 XmNmarginHeight=0");
  EXPECT_EQ(Resources(Find("a")), "XmNx=20 XmNy=30");
  EXPECT_EQ(Resources(Find("b")), "XmNx=20 XmNy=60");
  EXPECT_EQ(CheckWidgTree(top_widget), "");
}

TEST_F(Groups, UnsetPositionsCountAsZero) {
  Convert(
      {Window({Object(BUTTON, "a")}), Object(GROUP, "group", {Int(Y, 5), Ids(MEMBERS, {"a"})})});
  EXPECT_EQ(Resources(Find("a")), "XmNx=0 XmNy=-5");
}

TEST_F(Groups, PositionsWrapTo32Bits) {
  Convert({Window({Button("a", -2147483647 - 1, 0)}), Group({"a"})});
  EXPECT_EQ(Resources(Find("a")), "XmNx=2147483638 XmNy=-20");
}

TEST_F(Groups, LabelledFieldMovesWithItsRowColumn) {
  Convert({Window({Object(TEXT_FIELD, "field", {Int(X, 30), Int(Y, 50), Str(LABEL, "Name:")})}),
           Group({"field"})});
  EXPECT_EQ(ClassTree(top_widget),
            "TopLevelShell(XmBulletinBoard(XmBulletinBoard(XmRowColumn(XmLabel XmTextField))))");
  EXPECT_EQ(Resources(Find("group")->child), "XmNorientation=XmHORIZONTAL XmNx=20 XmNy=30");
}

TEST_F(Groups, ButtonMovesWithItsMenuBar) {
  Convert({Object(MENU, "menu", {Strs(MENU_ITEM_LABELS, {"A"}), Tok(MENU_TYPE, COMMAND)}),
           Window({Object(BUTTON, "button", {Id(MENU, "menu")})}), Group({"button"})});
  EXPECT_EQ(ClassTreeOf(Find("group")->child).rfind("XmMenuBar(XmCascadeButton(", 0), 0u);
}

TEST_F(Groups, ListMovesWithItsWindowAndTitle) {
  Convert({Window({Object(SCROLLING_LIST, "list1", {Str(TITLE, "Files")})}), Group({"list1"})});
  EXPECT_EQ(ClassTreeOf(Find("group")),
            "XmBulletinBoard(XmForm(XmLabel XmScrolledWindow(XmList)))");
}

TEST_F(Groups, TitleMovesWithItsFormAndList) {
  Convert({Window({Object(SCROLLING_LIST, "l", {Str(TITLE, "Files")})}), Group({"l_title"})});
  EXPECT_EQ(NameTree(top_widget), "window(area(group(l_form(l_title l_sw(l)))))");
  EXPECT_STREQ(Find("l_form")->class_name, "XmForm");
}

TEST_F(Groups, TitleMovesWithItsFrameAndList) {
  motif12 = 1;
  Convert({Window({Object(SCROLLING_LIST, "l", {Str(TITLE, "Files")})}), Group({"l_title"})});
  EXPECT_EQ(NameTree(top_widget), "window(area(group(l_frame(l_title l_sw(l)))))");
  EXPECT_STREQ(Find("l_frame")->class_name, "XmFrame");
}

TEST_F(Groups, LabelMovesWithoutItsControl) {
  Convert({Window({Object(TEXT_FIELD, "f", {Str(LABEL, "Name:")})}), Group({"f_label"})});
  EXPECT_EQ(NameTree(top_widget), "window(area(f_rc(f group(f_label))))");
}

// What is left at the top level once a control with a popup menu stands in a window and the menu is
// a member of a group.
std::string GroupedByPopup(int32_t type, std::initializer_list<Attr*> attrs) {
  Obj* owner = Object(type, "owner", attrs);
  Attr** end = &owner->attrs;
  while (*end) end = &(*end)->next;
  *end = Id(MENU, "menu");
  Convert({Object(MENU, "menu", {Strs(MENU_ITEM_LABELS, {"A"}), Tok(MENU_TYPE, COMMAND)}),
           Window({owner}), Group({"menu"})});
  zo25 = 0;  // where popup menus stay
  top_widget = CleanUpTopLevelHierarchy(&top_widget);
  return NameTree(top_widget);
}

TEST_F(Groups, PopupMenuOfAListMovesWithItsScrolledWindow) {
  EXPECT_EQ(GroupedByPopup(SCROLLING_LIST, {}),
            "window(area(group(owner_sw(owner menu(menuchoice)))))");
}

TEST_F(Groups, PopupMenuOfATitledListMovesWithItsForm) {
  EXPECT_EQ(GroupedByPopup(SCROLLING_LIST, {Str(TITLE, "Files")}),
            "window(area(group(owner_form(owner_title owner_sw(owner) menu(menuchoice)))))");
}

TEST_F(Groups, PopupMenuOfATitledListMovesWithItsFrame) {
  motif12 = 1;
  EXPECT_EQ(GroupedByPopup(SCROLLING_LIST, {Str(TITLE, "Files")}),
            "window(area(group(owner_frame(owner_title owner_sw(owner) menu(menuchoice)))))");
}

TEST_F(Groups, PopupMenuOfACanvasMovesWithItsScrollBars) {
  EXPECT_EQ(GroupedByPopup(CANVAS_PANE, {Tok(HORIZONTAL_SCROLLBAR, T), Tok(VERTICAL_SCROLLBAR, T)}),
            "window(area(group(owner_sw(owner menu(menuchoice)))))");
}

TEST_F(Groups, CanvasMovesWithItsScrollBars) {
  Convert({Owning(Object(BASE_WINDOW, "window"),
                  {Object(CANVAS_PANE, "canvas",
                          {Tok(HORIZONTAL_SCROLLBAR, T), Tok(VERTICAL_SCROLLBAR, T)}),
                   Area({})}),
           Group({"canvas"})});
  EXPECT_EQ(ClassTreeOf(Find("group")), "XmBulletinBoard(XmScrolledWindow(XmDrawingArea))");
}

TEST_F(Groups, GroupOfAGroupMovesAsAWhole) {
  Convert({Window({Button("a", 0, 0), Button("b", 0, 0)}), Group({"a"}),
           Object(GROUP, "outer", {Ids(MEMBERS, {"group", "b"})})});
  EXPECT_EQ(NameTree(top_widget), "window(area(outer(group(a) b)))");
}

TEST_F(Groups, GroupGoesWhereTheFirstMemberWas) {
  Convert({Window({Button("a", 0, 0)}),
           Owning(Object(POPUP_WINDOW, "popup"),
                  {Owning(Object(CONTROL_AREA, "area2"), {Button("b", 0, 0)})}),
           Group({"b", "a"})});
  EXPECT_EQ(NameTree(top_widget), "window(area) popup(area2(group(b a)))");
}

TEST_F(Groups, MissingMemberIsReported) {
  const Outcome outcome = Run([] {
    Convert({Window({Button("a", 0, 0)}), Group({"missing", "a"})});
  });
  EXPECT_EQ(outcome.out, "Cannot find group member: missing, ignoring...\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(NameTree(top_widget), "window(area(group(a)))");
}

TEST_F(Groups, GroupWithoutAnyMemberFoundIsDropped) {
  const Outcome outcome = Run([] { Convert({Window({Button("a", 0, 0)}), Group({"x", "y"})}); });
  EXPECT_EQ(outcome.out,
            "Cannot find group member: x, ignoring...\n"
            "Cannot find group member: y, ignoring...\n");
  EXPECT_EQ(NameTree(top_widget), "window(area(a))");
}

TEST_F(Groups, GroupWithoutAListOfMembersIsDropped) {
  ExpectQuiet(Run([] { Convert({Window({Button("a", 0, 0)}), Object(GROUP, "group")}); }));
  EXPECT_EQ(NameTree(top_widget), "window(area(a))");
}

TEST_F(Groups, GroupWhoseFirstMemberHasNoParentIsDropped) {
  const Outcome outcome = Run([] {
    Convert({Window({Button("a", 3, 4)}), Group({"window", "a", "missing"})});
  });
  EXPECT_EQ(outcome.out, "Cannot find group member: missing, ignoring...\n");
  EXPECT_EQ(NameTree(top_widget), "window(area(a))");
  EXPECT_EQ(Resources(Find("a")), "XmNx=3 XmNy=4");
}

TEST_F(Groups, DroppedGroupOfAnOwnerIsNoChild) {
  Run([] {
    Convert(Owning(Object(CONTROL_AREA, "area"), {Group({"missing"}), Button("a", 0, 0)}));
  });
  EXPECT_EQ(NameTree(top_widget), "area(a)");
}

TEST_F(Groups, MemberInsideAMovedOneIsNotFoundAnyMore) {
  const Outcome outcome = Run([] {
    Convert(
        {Owning(Object(BASE_WINDOW, "window"), {Area({Button("a", 0, 0)})}), Group({"area", "a"})});
  });
  EXPECT_EQ(outcome.out, "Cannot find group member: a, ignoring...\n");
  EXPECT_EQ(NameTree(top_widget), "window(group(area(a)))");
}

TEST_F(Groups, IgnoredGroupMovesNothing) {
  ignore_groups = 1;
  Obj* group = Group({"a"});
  Convert({Window({Button("a", 3, 4)}), group});
  EXPECT_EQ(NameTree(top_widget), "window(area(a))");
  EXPECT_EQ(Resources(Find("a")), "XmNx=3 XmNy=4");
}

TEST_F(Groups, IgnoredGroupOfAnOwnerIsAChildThatIsNeverWritten) {
  ignore_groups = 1;
  Convert(Owning(Object(CONTROL_AREA, "area"), {Button("a", 0, 0), Group({"a"})}));
  EXPECT_EQ(NameTree(top_widget), "area(a group)");
  EXPECT_STREQ(Find("group")->class_name, "");
}

TEST_F(Groups, IgnoredGroupOfAWindowCountsAsAChild) {
  ignore_groups = 1;
  Convert(Owning(Object(BASE_WINDOW, "window"), {Area({}), Group({})}));
  EXPECT_EQ(NameTree(top_widget), "window(bboard(area group))");
}

TEST_F(Groups, IgnoredGroupTakesRoom) {
  ignore_groups = reposition = 1;
  Convert(Owning(Object(CONTROL_AREA, "area"),
                 {Object(GROUP, "group", {Int(X, 10), Int(Y, 20), Int(HEIGHT, 100)})}));
  EXPECT_STREQ(GetResourceValue(Find("area"), "XmNheight"), "120");
}

TEST_F(Groups, GroupThatOwnsObjectsIsFatal) {
  ExpectError(Run([] { Convert(Owning(Group({}), {Button("a", 0, 0)})); }),
              "Group has non-null children");
}

}  // namespace
