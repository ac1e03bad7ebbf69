// SPDX-License-Identifier: MIT
#include "convert/settings.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "flags/flags.h"
#include "gil/tokens.h"
#include "gil/value.h"
#include "unit/support/check_widg_tree.h"
#include "unit/support/fatal_end.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

// Settings without a position of their own.
class Settings : public SessionFixture {
 protected:
  Settings() { reposition = 0; }
};

Widg* Setting(std::initializer_list<Attr*> attrs) { return Convert(Object(SETTING, "hue", attrs)); }

// The resources of each child in turn.
std::string OfChildren(const Widg* widg) {
  std::string text;
  for (const Widg* child = widg->child; child; child = child->next) {
    text.append("[").append(Resources(child)).append("]");
  }
  return text;
}

TEST_F(Settings, ExclusiveSettingIsARadioBox) {
  const Widg* box = Setting({Tok(SETTING_TYPE, EXCLUSIVE), Tok(LAYOUT_TYPE, HORIZONTAL),
                             Strs(CHOICES, {"Red", "Green", "Blue"}),
                             Toks(CHOICE_LABEL_TYPES, {STRING, STRING, STRING}),
                             Toks(INITIAL_SELECTIONS, {NIL, T, NIL})});
  EXPECT_EQ(ClassTree(box), "XmRowColumn(XmToggleButton XmToggleButton XmToggleButton)");
  EXPECT_EQ(Resources(box),
            "XmNorientation=XmHORIZONTAL XmNpacking=XmPACK_TIGHT XmNradioBehavior=true "
            "XmNspacing=0");
  EXPECT_EQ(OfChildren(box),
            "[XmNlabelString=\"Red\"][XmNset=true XmNlabelString=\"Green\"]"
            "[XmNlabelString=\"Blue\"]");
  EXPECT_EQ(CheckWidgTree(box), "");
}

TEST_F(Settings, TogglesAreNamedAfterTheSettingFromTheLastOn) {
  EXPECT_EQ(InstanceTree(Setting({Strs(CHOICES, {"A", "B", "C"})})),
            "hue(hue_toggle_b2 hue_toggle_b1 hue_toggle_b)");
}

TEST_F(Settings, SettingWithoutATypeIsExclusive) {
  EXPECT_STREQ(GetResourceValue(Setting({Strs(CHOICES, {"A"})}), "XmNradioBehavior"), "true");
}

TEST_F(Settings, OtherTogglesAreNoRadioBox) {
  EXPECT_EQ(Resources(Setting({Tok(SETTING_TYPE, CHECK), Strs(CHOICES, {"A"})})),
            "XmNorientation=XmVERTICAL XmNpacking=XmPACK_TIGHT");
}

TEST_F(Settings, ColumnsMakeItVertical) {
  EXPECT_EQ(Resources(Setting({Tok(SETTING_TYPE, NONEXCLUSIVE), Tok(LAYOUT_TYPE, HORIZONTAL),
                               Int(COLUMNS, 2), Int(ROWS, 3), Strs(CHOICES, {"A"})})),
            "XmNorientation=XmVERTICAL XmNnumColumns=2 XmNpacking=XmPACK_COLUMN");
}

TEST_F(Settings, RowsCountWhereColumnsDoNot) {
  EXPECT_EQ(Resources(Setting(
                {Tok(SETTING_TYPE, CHECK), Int(COLUMNS, 0), Int(ROWS, 3), Strs(CHOICES, {"A"})})),
            "XmNorientation=XmHORIZONTAL XmNnumColumns=3 XmNpacking=XmPACK_COLUMN");
}

TEST_F(Settings, OneColumnIsACount) {
  EXPECT_EQ(Resources(Setting({Tok(SETTING_TYPE, CHECK), Tok(LAYOUT_TYPE, HORIZONTAL),
                               Int(COLUMNS, 1), Strs(CHOICES, {"A"})})),
            "XmNorientation=XmVERTICAL XmNnumColumns=1 XmNpacking=XmPACK_COLUMN");
}

TEST_F(Settings, OneRowIsACount) {
  EXPECT_EQ(Resources(Setting({Tok(SETTING_TYPE, CHECK), Int(ROWS, 1), Strs(CHOICES, {"A"})})),
            "XmNorientation=XmHORIZONTAL XmNnumColumns=1 XmNpacking=XmPACK_COLUMN");
}

// A project that follows the interface converts the setting once more, then without a count.
TEST_F(Settings, CountIsConsumed) {
  Obj* obj =
      Object(SETTING, "hue",
             {Tok(SETTING_TYPE, CHECK), Int(COLUMNS, 0), Int(ROWS, 2), Strs(CHOICES, {"A"})});
  Convert(obj);
  EXPECT_EQ(PeekValue(obj, COLUMNS), nullptr);
  EXPECT_EQ(PeekValue(obj, ROWS), nullptr);
}

TEST_F(Settings, ZeroAndNegativeCountsAreNone) {
  EXPECT_EQ(Resources(Setting(
                {Tok(SETTING_TYPE, CHECK), Int(COLUMNS, -2), Int(ROWS, 0), Strs(CHOICES, {"A"})})),
            "XmNorientation=XmVERTICAL XmNpacking=XmPACK_TIGHT");
}

TEST_F(Settings, OpenLookTogglesArePressedIn) {
  motif_l_and_f = 0;
  EXPECT_EQ(OfChildren(Setting({Strs(CHOICES, {"A"})})),
            "[XmNindicatorOn=false XmNborderWidth=1 XmNlabelString=\"A\"]");
}

TEST_F(Settings, OpenLookNonexclusiveTogglesArePressedInToo) {
  motif_l_and_f = 0;
  EXPECT_EQ(OfChildren(Setting({Tok(SETTING_TYPE, NONEXCLUSIVE), Strs(CHOICES, {"A"})})),
            "[XmNindicatorOn=false XmNborderWidth=1 XmNlabelString=\"A\"]");
}

TEST_F(Settings, OpenLookCheckBoxesHaveNoBorder) {
  motif_l_and_f = 0;
  EXPECT_EQ(OfChildren(Setting({Tok(SETTING_TYPE, CHECK), Strs(CHOICES, {"A"})})),
            "[XmNborderWidth=0 XmNlabelString=\"A\"]");
}

TEST_F(Settings, ChoicesHaveColorsAndGlyphs) {
  verbose = 0;
  EXPECT_EQ(
      OfChildren(Setting({Strs(CHOICES, {"A", "b.icon"}), Toks(CHOICE_LABEL_TYPES, {STRING, GLYPH}),
                          Strs(CHOICE_COLORS, {"red", ""})})),
      "[XmNlabelString=\"A\" XmNforeground=color(\"red\")]"
      "[XmNoriginalPixmapName=\"b.icon\" XmNlabelType=XmPIXMAP "
      "XmNlabelPixmap=xbitmapfile(\"b.xbm\")]");
}

TEST_F(Settings, ShortListsLeaveTheFirstChoicesPlain) {
  // Lists are walked from the last element on.
  verbose = 0;
  EXPECT_EQ(OfChildren(Setting({Strs(CHOICES, {"A", "B"}), Toks(CHOICE_LABEL_TYPES, {GLYPH}),
                                Toks(INITIAL_SELECTIONS, {T})})),
            "[XmNlabelString=\"A\"]"
            "[XmNset=true XmNoriginalPixmapName=\"B\" XmNlabelType=XmPIXMAP "
            "XmNlabelPixmap=xbitmapfile(\"B.xbm\")]");
}

TEST_F(Settings, EmptyChoicesAreOneEmptyChoice) {
  EXPECT_EQ(OfChildren(Setting({Strs(CHOICES, {}), Toks(CHOICE_LABEL_TYPES, {GLYPH})})),
            "[XmNlabelString=\"\"]");
}

TEST_F(Settings, TogglesWithoutChoicesAreFatal) {
  ExpectError(Run([] { Setting({}); }), "Setting doesn't have choices\n");
}

TEST_F(Settings, LabelSharesARowColumnWithTheBox) {
  EXPECT_EQ(ClassTree(Setting({Str(LABEL, "Color:"), Strs(CHOICES, {"A"})})),
            "XmRowColumn(XmLabel XmRowColumn(XmToggleButton))");
}

TEST_F(Settings, LabelStandsBesideTheBoxWithoutGroupLabels) {
  group_labels = 0;
  EXPECT_EQ(ClassTree(Setting({Str(LABEL, "Color:"), Strs(CHOICES, {"A"})})),
            "XmRowColumn(XmToggleButton) XmLabel");
}

TEST_F(Settings, UnknownTypeIsReported) {
  const Outcome outcome = Run([] { Setting({Tok(SETTING_TYPE, T), Strs(CHOICES, {"A"})}); });
  EXPECT_EQ(outcome.err, "SpecProcSetting: cannot handle SETTING_TYPE: 438\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.status, std::nullopt);
  EXPECT_EQ(ClassTree(top_widget), "XmRowColumn");
}

Widg* Stack() {
  return Setting({Tok(SETTING_TYPE, STACK), Int(X, 1), Int(Y, 2), Int(WIDTH, 30), Int(HEIGHT, 40),
                  Str(FOREGROUND_COLOR, "red"), Tok(INITIAL_STATE, INVISIBLE), Str(LABEL, "Color:"),
                  Strs(CHOICES, {"A", "B"}), Toks(CHOICE_DEFAULTS, {NIL, T}),
                  Strs(CHOICE_COLORS, {"blue", ""})});
}

TEST_F(Settings, StackIsAnOptionMenu) {
  const Widg* menu = Stack();
  EXPECT_EQ(ClassTree(menu), "XmOptionMenu(XmPulldownMenu(XmPushButton XmPushButton))");
  EXPECT_EQ(InstanceTree(menu), "hue_option_menu(hue_option_pulldown(hue_push_b1 hue_push_b))");
  EXPECT_EQ(Resources(menu), "XmNx=1 XmNy=2 XmNmappedWhenManaged=false XmNlabelString=\"Color:\"");
  EXPECT_EQ(OfChildren(menu->child),
            "[XmNlabelString=\"A\" XmNforeground=color(\"blue\")][XmNlabelString=\"B\"]");
  EXPECT_EQ(CheckWidgTree(menu), "");
}

TEST_F(Settings, DefaultChoiceIsThePulldownsHistory) {
  EXPECT_EQ(Resources(Stack()->child), "XmNmenuHistory=hue_push_b");
}

TEST_F(Settings, OptionMenuAnswersToTheSettingsNameAndKeepsItsGeometry) {
  const Widg* menu = Stack();
  EXPECT_STREQ(menu->gil_name, "hue");
  EXPECT_EQ(menu->x, 1);
  EXPECT_EQ(menu->y, 2);
  EXPECT_EQ(menu->width, 30);
  EXPECT_EQ(menu->height, 40);
}

TEST_F(Settings, OptionMenuHasNoActions) {
  Obj* obj = Acting(Object(SETTING, "hue", {Tok(SETTING_TYPE, STACK), Strs(CHOICES, {"A"})}),
                    {Call("hue", "Notify", "changed")});
  EXPECT_EQ(Convert(obj)->actions, nullptr);
}

TEST_F(Settings, ChoiceNearerToTheFrontReplacesALaterDefault) {
  // The choices are walked from the last on.
  const Widg* menu =
      Setting({Tok(SETTING_TYPE, STACK), Strs(CHOICES, {"A", "B"}), Toks(CHOICE_DEFAULTS, {T, T})});
  EXPECT_EQ(Resources(menu->child), "XmNmenuHistory=hue_push_b1");
}

TEST_F(Settings, GlyphChoicesOfAStackShowPixmaps) {
  verbose = 0;
  const Widg* menu = Setting(
      {Tok(SETTING_TYPE, STACK), Strs(CHOICES, {"a.icon"}), Toks(CHOICE_LABEL_TYPES, {GLYPH})});
  EXPECT_EQ(OfChildren(menu->child),
            "[XmNoriginalPixmapName=\"a.icon\" XmNlabelType=XmPIXMAP "
            "XmNlabelPixmap=xbitmapfile(\"a.xbm\")]");
}

TEST_F(Settings, StackWithoutChoicesHasNoPulldown) {
  EXPECT_EQ(ClassTree(Setting({Tok(SETTING_TYPE, STACK)})), "XmOptionMenu");
}

TEST_F(Settings, StackOfAnEmptyListHasNoPulldownEither) {
  EXPECT_EQ(ClassTree(Setting({Tok(SETTING_TYPE, STACK), Strs(CHOICES, {})})), "XmOptionMenu");
}

}  // namespace
