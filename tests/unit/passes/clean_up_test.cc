// SPDX-License-Identifier: MIT
#include "passes/clean_up.h"

#include <gtest/gtest.h>

#include "flags/flags.h"
#include "unit/support/check_widg_tree.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/links.h"
#include "widget/tree.h"

namespace {

// Without the passes that the clean-up starts.
class CleanUp : public SessionFixture {
 protected:
  CleanUp() { usezo = reposition = 0; }
};

Widg* Shell(const char* name) { return NewWidg("TopLevelShell", name); }
Widg* Pulldown(const char* name) { return NewWidg("XmPulldownMenu", name); }
Widg* Unclaimed(const char* name) { return NewWidg("XmUnknownMenu", name); }

void RunCleanUp() { top_widget = CleanUpTopLevelHierarchy(&top_widget); }

TEST_F(CleanUp, MenuBetweenShellsIsDropped) {
  Widg* menu = Pulldown("menu");
  TopLevel({Shell("a"), menu, Shell("b")});
  RunCleanUp();
  EXPECT_EQ(Names(top_widget), "a b");
  EXPECT_EQ(menu->next, nullptr);
  EXPECT_EQ(CheckWidgTree(top_widget), "");
}

TEST_F(CleanUp, MenusInFrontAreDropped) {
  TopLevel({Pulldown("m"), Popup("n"), Shell("a")});
  RunCleanUp();
  EXPECT_EQ(Names(top_widget), "a");
}

TEST_F(CleanUp, MenuBehindTheLastShellStays) {
  TopLevel({Shell("a"), Pulldown("menu")});
  RunCleanUp();
  EXPECT_EQ(Names(top_widget), "a menu");
}

TEST_F(CleanUp, OnlyTheFirstOfTheTrailingMenusStays) {
  TopLevel({Shell("a"), Popup("m"), Pulldown("n"), Popup("o")});
  RunCleanUp();
  EXPECT_EQ(Names(top_widget), "a m");
}

TEST_F(CleanUp, UnclaimedMenuBecomesAPopupAndIsDropped) {
  Widg* menu = Unclaimed("menu");
  TopLevel({menu, Shell("a")});
  RunCleanUp();
  EXPECT_STREQ(menu->class_name, "XmPopupMenu");
  EXPECT_EQ(Names(top_widget), "a");
}

TEST_F(CleanUp, NothingButMenusLeavesNothing) {
  TopLevel({Unclaimed("m"), Pulldown("n")});
  EXPECT_EQ(CleanUpTopLevelHierarchy(&top_widget), nullptr);
}

TEST_F(CleanUp, NothingStaysNothing) {
  Widg* none = nullptr;
  EXPECT_EQ(CleanUpTopLevelHierarchy(&none), nullptr);
}

TEST_F(CleanUp, ClaimedMenuLivesOnUnderItsUserWithoutTheOthers) {
  Widg* menu = Pulldown("menu");
  TopLevel({menu, Unclaimed("other")});
  Widg* button = NewWidg("XmCascadeButton", "button");
  SetChildren(button, menu);
  TopLevel({NewWidg("TopLevelShell", "shell", {button})});
  RunCleanUp();
  EXPECT_EQ(NameTree(top_widget), "shell(button(menu))");
  EXPECT_EQ(CheckWidgTree(top_widget), "");
}

TEST_F(CleanUp, LinkIsOnlyReadThrough) {
  Widg* menu = Pulldown("menu");
  Widg* first = TopLevel({menu, Shell("a")});
  CleanUpTopLevelHierarchy(&first);
  EXPECT_EQ(first, menu);
}

TEST_F(CleanUp, EmptyNameIsTakenOnEachRun) {
  RunCleanUp();
  // The first holder of the empty name is the clean-up's own.
  EXPECT_STREQ(NewWidg("XmLabel", "")->name, "1");
}

Widg* ShellWithListAndMenu() {
  return NewWidg("TopLevelShell", "shell",
                 {NewWidg("XmForm", "form",
                          {NewWidg("XmPushButton", "button", {Popup("menu")}),
                           NewWidg("XmScrolledList", "list")})});
}

TEST_F(CleanUp, BuildersVersion25GetsItsPasses) {
  usezo = zo25 = 1;
  TopLevel({ShellWithListAndMenu()});
  RunCleanUp();
  EXPECT_EQ(ClassTree(top_widget),
            "TopLevelShell(XmForm(XmPushButton XmScrolledWindow(XmList) XmPopupMenu))");
  EXPECT_EQ(CheckWidgTree(top_widget), "");
}

TEST_F(CleanUp, OtherTargetsKeepConvenienceWidgetsAndMenus) {
  const char* const kept = "TopLevelShell(XmForm(XmPushButton(XmPopupMenu) XmScrolledList))";
  usezo = 1;
  zo25 = 0;
  TopLevel({ShellWithListAndMenu()});
  RunCleanUp();
  EXPECT_EQ(ClassTree(top_widget), kept);
  usezo = 0;
  zo25 = 1;
  RunCleanUp();
  EXPECT_EQ(ClassTree(top_widget), kept);
}

// A board of two boards whose left edges coincided.
Widg* SplitBoards() {
  return NewWidg(
      "TopLevelShell", "shell",
      {NewWidg("XmBulletinBoard", "board",
               {With(NewWidg("XmBulletinBoard", "a", {NewWidg("XmLabel", "l")}), {{"XmNx", "10"}}),
                With(NewWidg("XmBulletinBoard", "b"), {{"XmNx", "14"}})})});
}

TEST_F(CleanUp, BoardsAreAlignedWhenRepositioning) {
  reposition = 1;
  TopLevel({SplitBoards()});
  RunCleanUp();
  EXPECT_STREQ(GetResourceValue(top_widget->child->child, "XmNx"), "14");
}

TEST_F(CleanUp, BoardsStayWithoutRepositioning) {
  TopLevel({SplitBoards()});
  RunCleanUp();
  EXPECT_STREQ(GetResourceValue(top_widget->child->child, "XmNx"), "10");
}

}  // namespace
