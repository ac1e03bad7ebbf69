// SPDX-License-Identifier: MIT
#include "convert/menus.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "convert/objects.h"
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

// Every search also goes through the tree and must find the same.
class Menus : public SessionFixture {
 protected:
  Menus() {
    reposition = 0;
    CheckSearches(true);
  }
  ~Menus() override { CheckSearches(false); }
};

Obj* Menu(const char* name, int32_t type, std::initializer_list<std::string_view> labels,
          std::initializer_list<Attr*> others = {}) {
  Obj* obj = Object(MENU, name, {Strs(MENU_ITEM_LABELS, labels), Tok(MENU_TYPE, type)});
  Attr** end = &obj->attrs;
  while (*end) end = &(*end)->next;
  for (Attr* attr : others) {
    *end = attr;
    end = &attr->next;
  }
  return obj;
}

Obj* Command(const char* name) { return Menu(name, COMMAND, {"A"}); }
Obj* MenuButton(const char* name, const char* menu) {
  return Object(BUTTON, name, {Int(X, 1), Int(Y, 2), Int(WIDTH, 3), Id(MENU, menu)});
}
Obj* MenuCanvas(const char* name, const char* menu) {
  return Object(CANVAS_PANE, name, {Id(MENU, menu)});
}

std::string Labels(const Widg* menu) {
  std::string text;
  for (const Widg* item = menu->child; item; item = item->next) {
    text += GetResourceValue(item, "XmNlabelString");
  }
  return text;
}

TEST_F(Menus, CommandMenuHasPushButtonsInFileOrder) {
  const Widg* menu = Convert(Menu("Edit", COMMAND, {"A", "B", "C"}));
  EXPECT_EQ(ClassTree(menu), "XmUnknownMenu(XmPushButton XmPushButton XmPushButton)");
  EXPECT_EQ(Labels(menu), "\"A\"\"B\"\"C\"");
  EXPECT_EQ(NameTree(menu), "Edit(Editchoice Editchoice Editchoice)");
  EXPECT_EQ(InstanceTree(menu), "edit(editchoice2 editchoice1 editchoice)");
  EXPECT_EQ(Resources(menu), "");
}

TEST_F(Menus, ExclusiveMenuHasRadioToggles) {
  const Widg* menu =
      Convert(Menu("m", EXCLUSIVE, {"A", "B"}, {Toks(INITIAL_SELECTIONS, {NIL, T})}));
  EXPECT_EQ(ClassTree(menu), "XmUnknownMenu(XmToggleButton XmToggleButton)");
  EXPECT_EQ(Resources(menu), "XmNradioBehavior=true");
  EXPECT_EQ(Resources(menu->child), "XmNlabelString=\"A\"");
  EXPECT_EQ(Resources(menu->child->next), "XmNlabelString=\"B\" XmNset=true");
}

TEST_F(Menus, NonexclusiveMenuHasPlainToggles) {
  const Widg* menu = Convert(Menu("m", NONEXCLUSIVE, {"A"}, {Toks(INITIAL_SELECTIONS, {T})}));
  EXPECT_EQ(ClassTree(menu), "XmUnknownMenu(XmToggleButton)");
  EXPECT_EQ(Resources(menu), "");
  EXPECT_EQ(Resources(menu->child), "XmNlabelString=\"A\" XmNset=true");
}

TEST_F(Menus, CommandsAreNotSelected) {
  const Widg* menu = Convert(Menu("m", COMMAND, {"A"}, {Toks(INITIAL_SELECTIONS, {T})}));
  EXPECT_EQ(Resources(menu->child), "XmNlabelString=\"A\"");
}

TEST_F(Menus, ItemsHaveStatesColorsAndGlyphs) {
  verbose = 0;
  const Widg* menu = Convert(
      Menu("m", COMMAND, {"a.icon", "B"},
           {Toks(MENU_ITEM_LABEL_TYPES, {GLYPH, STRING}),
            Toks(MENU_ITEM_STATES, {ACTIVE, INACTIVE}), Strs(MENU_ITEM_COLORS, {"", "red"})}));
  EXPECT_EQ(Resources(menu->child),
            "XmNoriginalPixmapName=\"a.icon\" XmNlabelType=XmPIXMAP "
            "XmNlabelPixmap=xbitmapfile(\"a.xbm\")");
  EXPECT_EQ(Resources(menu->child->next),
            "XmNlabelString=\"B\" XmNsensitive=false XmNforeground=color(\"red\")");
}

TEST_F(Menus, MissingElementsAreActiveTexts) {
  const Widg* menu = Convert(Menu("m", COMMAND, {"A", "B"}, {Toks(MENU_ITEM_STATES, {INACTIVE})}));
  EXPECT_EQ(Resources(menu->child), "XmNlabelString=\"A\"");
  EXPECT_EQ(Resources(menu->child->next), "XmNlabelString=\"B\" XmNsensitive=false");
}

TEST_F(Menus, EmptyListOfLabelsIsAMenuWithoutItems) {
  EXPECT_EQ(ClassTree(Convert(Menu("m", COMMAND, {}))), "XmUnknownMenu");
}

TEST_F(Menus, MenuWithoutLabelsIsFatal) {
  ExpectError(Run([] { Convert(Object(MENU, "m", {Tok(MENU_TYPE, COMMAND)})); }),
              "Menu doesn't have any labels");
}

TEST_F(Menus, MenuWithoutATypeIsFatal) {
  ExpectError(Run([] { Convert(Object(MENU, "m", {Strs(MENU_ITEM_LABELS, {"A"})})); }),
              "Menu doesn't have a type");
}

TEST_F(Menus, ItemsOfAnUnknownTypeAreReportedAndSkipped) {
  const Outcome outcome = Run([] { Convert(Menu("m", T, {"A", "B"})); });
  EXPECT_EQ(outcome.err, "***Unknown menu type: 438\n***Unknown menu type: 438\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(ClassTree(top_widget), "XmUnknownMenu");
}

TEST_F(Menus, ItemOfASubMenuIsACascadeButton) {
  Convert({Command("sub"), Menu("m", COMMAND, {"A"}, {Ids(MENU_ITEM_MENUS, {"sub"})})});
  const Widg* item = Find("m")->child;
  EXPECT_STREQ(item->class_name, "XmCascadeButton");
  EXPECT_EQ(item->child, Find("sub"));
  EXPECT_STREQ(Find("sub")->class_name, "XmPulldownMenu");
}

TEST_F(Menus, SelectedToggleOfASubMenuIsACascadeButton) {
  Convert({Command("sub"), Menu("m", EXCLUSIVE, {"A"},
                                {Toks(INITIAL_SELECTIONS, {T}), Ids(MENU_ITEM_MENUS, {"sub"})})});
  const Widg* item = Find("m")->child;
  EXPECT_STREQ(item->class_name, "XmCascadeButton");
  EXPECT_EQ(item->child, Find("sub"));
  EXPECT_STREQ(Find("sub")->class_name, "XmPulldownMenu");
  EXPECT_EQ(Resources(item), "XmNlabelString=\"A\" XmNset=true");
  EXPECT_STREQ(item->name, "mchoice");
}

TEST_F(Menus, TitleDefaultsAndHandlersHaveNoEffect) {
  const Widg* menu = Convert(Menu("m", NONEXCLUSIVE, {"A", "B"},
                                  {Str(MENU_TITLE, "Choose"), Toks(MENU_ITEM_DEFAULTS, {T, NIL}),
                                   Ids(MENU_ITEM_HANDLERS, {"first", "second"})}));
  EXPECT_EQ(ClassTree(menu), "XmUnknownMenu(XmToggleButton XmToggleButton)");
  EXPECT_EQ(Resources(menu), "");
  for (const Widg* item = menu->child; item; item = item->next) EXPECT_EQ(item->callbacks, nullptr);
  EXPECT_EQ(Resources(menu->child), "XmNlabelString=\"A\"");
  EXPECT_EQ(Resources(menu->child->next), "XmNlabelString=\"B\"");
  EXPECT_EQ(Procedures(), "");
}

TEST_F(Menus, SubMenusAreGivenFromTheLastItemOn) {
  // The names stand in file order, the labels in reverse: the first name meets the last label.
  Run([] {
    Convert({Command("sub"), Menu("m", COMMAND, {"A", "B"}, {Ids(MENU_ITEM_MENUS, {"sub"})})});
  });
  const Widg* menu = Find("m");
  EXPECT_EQ(menu->child->child, nullptr);
  EXPECT_EQ(menu->child->next->child, Find("sub"));
}

TEST_F(Menus, MissingSubMenuIsReported) {
  const Outcome outcome =
      Run([] { Convert(Menu("m", COMMAND, {"A"}, {Ids(MENU_ITEM_MENUS, {"nowhere"})})); });
  EXPECT_EQ(outcome.out, "Cannot find pullright menu nowhere, ignoring...\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(ClassTree(top_widget), "XmUnknownMenu(XmPushButton)");
}

TEST_F(Menus, MenuIsNotItsOwnSubMenu) {
  // While it is converted it is not in the tree yet.
  const Outcome outcome =
      Run([] { Convert(Menu("m", COMMAND, {"A"}, {Ids(MENU_ITEM_MENUS, {"m"})})); });
  EXPECT_EQ(outcome.out, "Cannot find pullright menu m, ignoring...\n");
}

TEST_F(Menus, SubMenuThatIsAPopupElsewhereIsCopied) {
  Convert({Command("sub"), MenuCanvas("canvas", "sub"),
           Menu("m", COMMAND, {"A"}, {Ids(MENU_ITEM_MENUS, {"sub"})})});
  EXPECT_STREQ(Find("sub")->class_name, "XmPopupMenu");
  EXPECT_EQ(ClassTreeOf(Find("m")->child), "XmCascadeButton(XmPulldownMenu(XmPushButton))");
}

TEST_F(Menus, ButtonWithAMenuIsAMenuBar) {
  Convert({Command("menu"), MenuButton("button", "menu")});
  top_widget = CleanUpTopLevelHierarchy(&top_widget);
  EXPECT_EQ(ClassTree(top_widget), "XmMenuBar(XmCascadeButton(XmPulldownMenu(XmPushButton)))");
  EXPECT_EQ(InstanceTree(top_widget), "menubar(button(menu(menuchoice)))");
  EXPECT_EQ(Resources(top_widget), "XmNx=1 XmNy=2");
  EXPECT_EQ(Resources(top_widget->child), "XmNwidth=3");
  EXPECT_EQ(top_widget->x, 1);
  EXPECT_EQ(top_widget->y, 2);
  EXPECT_EQ(top_widget->width, 3);
  EXPECT_EQ(CheckWidgTree(top_widget), "");
}

TEST_F(Menus, ButtonOfAMissingMenuStaysAPushButton) {
  const Outcome outcome = Run([] { Convert(MenuButton("button", "nowhere")); });
  EXPECT_EQ(outcome.out, "Cannot find menu nowhere, ignoring...\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(ClassTree(top_widget), "XmPushButton");
  EXPECT_EQ(Resources(top_widget), "XmNx=1 XmNy=2 XmNwidth=3");
}

TEST_F(Menus, NameOfADroppedMenuBarStaysTaken) {
  Run([] { Convert({Command("menu"), MenuButton("a", "nowhere"), MenuButton("b", "menu")}); });
  EXPECT_STREQ(FindParentOfWidg(top_widget, Find("b"))->name, "menubar1");
}

TEST_F(Menus, ButtonsShareAPulldown) {
  Convert({Command("menu"), MenuButton("a", "menu"), MenuButton("b", "menu")});
  EXPECT_EQ(Find("a")->child, Find("b")->child);
}

TEST_F(Menus, CanvasGetsThePopupMenuItself) {
  Convert({Command("menu"), MenuCanvas("canvas", "menu")});
  top_widget = CleanUpTopLevelHierarchy(&top_widget);
  EXPECT_EQ(ClassTree(top_widget), "XmDrawingArea(XmPopupMenu(XmPushButton))");
  EXPECT_STREQ(top_widget->child->name, "menu");
  EXPECT_EQ(CheckWidgTree(top_widget), "");
}

TEST_F(Menus, ButtonAfterACanvasGetsAPulldownCopy) {
  Convert({Command("menu"), MenuCanvas("canvas", "menu"), MenuButton("button", "menu")});
  const Widg* pulldown = Find("button")->child;
  EXPECT_EQ(ClassTreeOf(pulldown), "XmPulldownMenu(XmPushButton)");
  EXPECT_STREQ(pulldown->name, "menu1");
  EXPECT_STREQ(Find("menu")->class_name, "XmPopupMenu");
}

TEST_F(Menus, CanvasAfterAButtonGetsAPopupCopy) {
  Convert({Command("menu"), MenuButton("button", "menu"), MenuCanvas("canvas", "menu")});
  EXPECT_STREQ(Find("button")->child->class_name, "XmPulldownMenu");
  EXPECT_STREQ(Find("button")->child->name, "menu");
  EXPECT_EQ(ClassTree(Find("canvas")->child), "XmPopupMenu(XmPushButton)");
  EXPECT_STREQ(Find("canvas")->child->name, "menu1");
}

TEST_F(Menus, TwoPopupUsersOfAPulldownHaveACopyEach) {
  Convert({Command("menu"), MenuButton("button", "menu"), MenuCanvas("c1", "menu"),
           MenuCanvas("c2", "menu")});
  EXPECT_STREQ(Find("c1")->child->name, "menu1");
  EXPECT_STREQ(Find("c2")->child->name, "menu2");
}

TEST_F(Menus, MissingPopupMenuIsReported) {
  const Outcome outcome = Run([] { Convert(MenuCanvas("canvas", "nowhere")); });
  EXPECT_EQ(outcome.out, "Cannot find menu nowhere, ignoring it\n");
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(ClassTree(top_widget), "XmDrawingArea");
}

TEST_F(Menus, MenuAttributeThatIsNoTextIsIgnored) {
  ExpectQuiet(Run([] { Convert(Object(CANVAS_PANE, "canvas", {Tok(MENU, NIL)})); }));
  ExpectQuiet(Run([] { Convert(Object(BUTTON, "button", {Tok(MENU, NIL)})); }));
  EXPECT_STREQ(Find("button")->class_name, "XmPushButton");
}

// The classes at the top level once an object with a popup menu is converted and menus are gone.
std::string WithPopup(int32_t type, std::initializer_list<Attr*> attrs) {
  Obj* obj = Object(type, "owner", attrs);
  Attr** end = &obj->attrs;
  while (*end) end = &(*end)->next;
  *end = Id(MENU, "menu");
  Convert({Command("menu"), obj});
  zo25 = 0;  // where popup menus stay
  top_widget = CleanUpTopLevelHierarchy(&top_widget);
  EXPECT_EQ(CheckWidgTree(top_widget), "");
  return ClassTree(top_widget);
}

TEST_F(Menus, PopupMenuOfAMessage) {
  EXPECT_EQ(WithPopup(MESSAGE, {}), "XmLabel(XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, PopupMenuOfASliderIsNotItsLabels) {
  EXPECT_EQ(WithPopup(SLIDER, {Str(LABEL, "A:")}), "XmScale(XmPopupMenu(XmPushButton)) XmLabel");
}

TEST_F(Menus, PopupMenuOfAGaugeIsNotItsLabels) {
  EXPECT_EQ(WithPopup(GAUGE, {Str(LABEL, "A:")}), "XmScale(XmPopupMenu(XmPushButton)) XmLabel");
}

TEST_F(Menus, PopupMenuOfATextField) {
  EXPECT_EQ(WithPopup(TEXT_FIELD, {}), "XmTextField(XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, PopupMenuOfALabelledTextFieldGoesToTheRowColumn) {
  EXPECT_EQ(WithPopup(TEXT_FIELD, {Str(LABEL, "A:")}),
            "XmRowColumn(XmLabel XmTextField XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, PopupMenuOfAStackSettingGoesToTheOptionMenu) {
  EXPECT_EQ(WithPopup(SETTING, {Tok(SETTING_TYPE, STACK), Strs(CHOICES, {"A"})}),
            "XmOptionMenu(XmPulldownMenu(XmPushButton) XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, PopupMenuOfATitledListGoesToTheForm) {
  EXPECT_EQ(WithPopup(SCROLLING_LIST, {Str(TITLE, "Files")}),
            "XmForm(XmLabel XmScrolledWindow(XmList) XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, ObjectsWithoutAWidgetHaveAPopupMenuAllTheSame) {
  EXPECT_EQ(WithPopup(TERM_PANE, {}), "(XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, DropTargetHasAPopupMenuToo) {
  EXPECT_EQ(WithPopup(DROP_TARGET, {}), "(XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, PopupMenuOfAMenuStandsBehindItsItems) {
  Convert({Command("menu"), Menu("outer", COMMAND, {"A"}, {Id(MENU, "menu")}),
           MenuCanvas("canvas", "outer")});
  zo25 = 0;  // where popup menus stay
  top_widget = CleanUpTopLevelHierarchy(&top_widget);
  EXPECT_EQ(NameTree(top_widget), "canvas(outer(outerchoice menu(menuchoice)))");
  EXPECT_EQ(ClassTree(top_widget),
            "XmDrawingArea(XmPopupMenu(XmPushButton XmPopupMenu(XmPushButton)))");
}

TEST_F(Menus, SecondMenuOfAButtonIsNoPopup) {
  Convert({Command("one"), Command("two"),
           Object(BUTTON, "button", {Id(MENU, "one"), Id(MENU, "two")})});
  EXPECT_STREQ(Find("one")->class_name, "XmPulldownMenu");
  EXPECT_STREQ(Find("two")->class_name, "XmUnknownMenu");
  top_widget = CleanUpTopLevelHierarchy(&top_widget);
  EXPECT_EQ(NameTree(top_widget), "menubar(button(one(onechoice)))");
}

TEST_F(Menus, ButtonWithAMenuConsumesTheNameOfIt) {
  Obj* button = MenuButton("button", "menu");
  Convert({Command("menu"), button});
  EXPECT_STREQ(GilObjToMotifClassName(button), "XmPushButton");
}

TEST_F(Menus, OwnerOfAPopupMenuConsumesTheNameOfIt) {
  Obj* canvas = MenuCanvas("canvas", "menu");
  Convert({Command("menu"), canvas});
  Value* menu = nullptr;
  EXPECT_EQ(GetAttrValue(canvas, MENU, &menu, 0), 0);
}

TEST_F(Menus, PopupMenuGoesToWhatStandsForTheObject) {
  Convert({Command("menu"),
           Object(CANVAS_PANE, "canvas",
                  {Tok(HORIZONTAL_SCROLLBAR, T), Tok(VERTICAL_SCROLLBAR, T), Id(MENU, "menu")})});
  top_widget = CleanUpTopLevelHierarchy(&top_widget);
  EXPECT_EQ(ClassTree(top_widget), "XmScrolledWindow(XmDrawingArea XmPopupMenu(XmPushButton))");
}

TEST_F(Menus, DroppedGroupClaimsItsMenuAllTheSame) {
  Run([] { Convert({Command("menu"), Object(GROUP, "group", {Id(MENU, "menu")})}); });
  EXPECT_STREQ(Find("menu")->class_name, "XmPopupMenu");
}

}  // namespace
