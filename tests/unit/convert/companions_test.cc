// SPDX-License-Identifier: MIT
#include "convert/companions.h"

#include <gtest/gtest.h>

#include <string>

#include "gil/tokens.h"
#include "gil/value.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using Companions = SessionFixture;

TEST_F(Companions, AreNamedAfterTheGilName) {
  const Widg* list = NewWidg("XmList", "Files");
  const Widg* form = MakeNamedAfter("XmForm", list, "_form");
  EXPECT_STREQ(form->gil_name, "Files_form");
  EXPECT_STREQ(form->name, "files_form");
  EXPECT_STREQ(form->class_name, "XmForm");
}

TEST_F(Companions, WrapperTakesThePlaceAndThePosition) {
  Widg* field = At(NewWidg("XmTextField", "field"), 1, 2, 30, 40);
  Siblings({field, NewWidg("XmLabel", "behind")});
  Widg* wrapper = NewWidg("XmForm", "wrapper");
  WrapIn(wrapper, field, nullptr);
  EXPECT_EQ(NameTree(wrapper), "wrapper(field) behind");
  EXPECT_EQ(Resources(wrapper), "XmNx=1 XmNy=2");
  EXPECT_EQ(Resources(field), "XmNwidth=30 XmNheight=40");
}

TEST_F(Companions, LabelComesBeforeWhatIsWrapped) {
  Widg* wrapper = NewWidg("XmRowColumn", "wrapper");
  WrapIn(wrapper, NewWidg("XmTextField", "field"), NewWidg("XmLabel", "label"));
  EXPECT_EQ(NameTree(wrapper), "wrapper(label field)");
}

TEST_F(Companions, GilGeometryIsCopied) {
  const Widg* from = FromGil(NewWidg("XmList", "from"), 1, 2, 30, 40);
  Widg* to = NewWidg("XmForm", "to");
  CopyGilGeometry(from, to);
  EXPECT_EQ(to->x, 1);
  EXPECT_EQ(to->y, 2);
  EXPECT_EQ(to->width, 30);
  EXPECT_EQ(to->height, 40);
}

// The value of the attribute that has this list.
Value* List(Attr* attr) { return attr->value; }

TEST_F(Companions, ItemsComeOutInFileOrderWithTheirValues) {
  Item items;
  items.label = List(Strs(CHOICES, {"a", "b", "c"}));
  items.label_type = List(Toks(CHOICE_LABEL_TYPES, {STRING, STRING, GLYPH}));
  items.color = List(Strs(CHOICE_COLORS, {"red", "green", "blue"}));
  items.selected = List(Toks(INITIAL_SELECTIONS, {NIL, T, NIL}));
  items.state = List(Toks(MENU_ITEM_STATES, {ACTIVE, ACTIVE, INACTIVE}));
  items.submenu = List(Ids(MENU_ITEM_MENUS, {"x", "y", "z"}));
  std::string made;
  Widg* menu = NewWidg("XmPulldownMenu", "menu");
  MakeItems(menu, items, [&made](const Item& item) {
    made.append(ValueText(item.label)).append(ValueText(item.color));
    made.append(ValueText(item.submenu)).append(" ");
    made.append(ValueToken(item.label_type, 0) == GLYPH ? "glyph " : "");
    made.append(ValueToken(item.selected, 0) == T ? "set " : "");
    made.append(ValueToken(item.state, 0) == INACTIVE ? "inactive " : "");
    return NewWidg("XmPushButton", ValueText(item.label));
  });
  // All lists but that of the sub-menus are reversed.
  EXPECT_EQ(made, "\"c\"\"blue\"x glyph inactive \"b\"\"green\"y set \"a\"\"red\"z ");
  EXPECT_EQ(NameTree(menu), "menu(\"a\" \"b\" \"c\")");
}

TEST_F(Companions, OtherListsMayBeShorter) {
  Item items;
  items.label = List(Strs(CHOICES, {"a", "b"}));
  items.color = List(Strs(CHOICE_COLORS, {"red"}));
  std::string colors;
  MakeItems(NewWidg("XmRowColumn", "box"), items, [&colors](const Item& item) -> Widg* {
    colors.append("<").append(ValueText(item.color)).append(">");
    return nullptr;
  });
  EXPECT_EQ(colors, "<\"red\"><>");
}

TEST_F(Companions, ItemsWithoutAWidgetAreLeftOut) {
  Item items;
  items.label = List(Strs(CHOICES, {"a", "b", "c"}));
  int count = 0;
  Widg* box = NewWidg("XmRowColumn", "box");
  MakeItems(box, items, [&count](const Item& item) -> Widg* {
    return ++count == 2 ? nullptr : NewWidg("XmToggleButton", ValueText(item.label));
  });
  EXPECT_EQ(NameTree(box), "box(\"a\" \"c\")");
}

}  // namespace
