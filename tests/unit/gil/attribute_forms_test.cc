// SPDX-License-Identifier: MIT
#include "gil/attribute_forms.h"

#include <gtest/gtest.h>

#include <set>

#include "gil/tokens.h"

static std::set<int32_t> WordsOf(ValueForm enumeration) {
  std::set<int32_t> words;
  for (int32_t token = 0; token <= kLastToken + 1; ++token) {
    if (IsWordOf(enumeration, token)) words.insert(token);
  }
  return words;
}

using Set = std::set<int32_t>;

TEST(AttributeFormsTest, EnumerationsHaveTheirWordsOnly) {
  EXPECT_EQ(WordsOf(kBoolean), (Set{T, NIL}));
  EXPECT_EQ(WordsOf(kState), (Set{OPEN, ICONIC, VISIBLE, INVISIBLE, ACTIVE, INACTIVE}));
  EXPECT_EQ(WordsOf(kColumnAlignment), (Set{LEFT_EDGES, LABELS, VERTICAL_CENTERS, RIGHT_EDGES}));
  EXPECT_EQ(WordsOf(kRowAlignment), (Set{TOP_EDGES, HORIZONTAL_CENTERS, BOTTOM_EDGES}));
  EXPECT_EQ(WordsOf(kCompassPoint), (Set{NORTH_WEST, NORTH, NORTH_EAST, WEST, EAST, CENTER,
                                         SOUTH_WEST, SOUTH, SOUTH_EAST}));
  EXPECT_EQ(WordsOf(kButtonType), (Set{NORMAL, ABBREVIATED}));
  EXPECT_EQ(WordsOf(kDrawingModel), (Set{XVIEW, XWINDOWS, POSTSCRIPT}));
  EXPECT_EQ(WordsOf(kEventType), (Set{KEYBOARD, KEYBOARD_LEFT, KEYBOARD_RIGHT, KEYBOARD_TOP, MOUSE,
                                      MOUSE_DRAG, MOUSE_ENTER, MOUSE_EXIT, MOUSE_MOVE}));
  EXPECT_EQ(WordsOf(kGroupType), (Set{ROW, COLUMN, ROW_COLUMN, NIL}));
  EXPECT_EQ(WordsOf(kLabelType), (Set{STRING, GLYPH}));
  EXPECT_EQ(WordsOf(kOrientation), (Set{HORIZONTAL, VERTICAL}));
  EXPECT_EQ(WordsOf(kMenuType), (Set{COMMAND, EXCLUSIVE, NONEXCLUSIVE}));
  EXPECT_EQ(WordsOf(kSettingType), (Set{EXCLUSIVE, NONEXCLUSIVE, CHECK, STACK}));
  EXPECT_EQ(WordsOf(kTextType), (Set{ALPHANUMERIC, NUMERIC, MULTILINE}));
  EXPECT_EQ(WordsOf(kArgType), (Set{VOID_TOK, INTEGER, STRING}));
}

TEST(AttributeFormsTest, ElementTypesAreTheSeventeen) {
  Set types;
  for (int32_t token = 0; token <= kLastToken + 1; ++token) {
    if (IsElementType(token)) types.insert(token);
  }
  EXPECT_EQ(types, (Set{BASE_WINDOW, BUTTON, CANVAS_PANE, CONTROL_AREA, DROP_TARGET, GAUGE, GROUP,
                        MENU, MESSAGE, POPUP_WINDOW, SCROLLING_LIST, SETTING, SLIDER, STACK,
                        TERM_PANE, TEXT_FIELD, TEXT_PANE}));
}

TEST(AttributeFormsTest, HowManyAttributesOfEachForm) {
  std::multiset<int32_t> forms;
  for (int32_t token = kFirstToken; token <= kLastToken; ++token)
    forms.insert(AttributeForm(token));
  EXPECT_EQ(forms.count(kInteger), 25U);
  EXPECT_EQ(forms.count(kString), 17U);
  EXPECT_EQ(forms.count(kIntegerOrString), 1U);
  EXPECT_EQ(forms.count(kName), 9U);
  EXPECT_EQ(forms.count(kBoolean), 19U);
  EXPECT_EQ(forms.count(kStringList), 6U);
  EXPECT_EQ(forms.count(kBooleanList), 3U);
  EXPECT_EQ(forms.count(kLabelTypeList), 2U);
  EXPECT_EQ(forms.count(kNameList), 3U);
  EXPECT_EQ(forms.count(kEmptyList), 1U);
  EXPECT_EQ(forms.count(kOrientation), 2U);
}

TEST(AttributeFormsTest, OtherTokensAreNoAttributes) {
  for (int32_t token : {0, 256, 453, -1, +TYPE, +ACTIONS, +INTERFACES, +ROOT_WINDOW, +BUTTON,
                        +LPAREN, +IDENTIFIER, +STRING_VALUE, +STRING, +FROM}) {
    EXPECT_EQ(AttributeForm(token), kNoForm) << token;
  }
}

TEST(AttributeFormsTest, ListsKnowTheirElements) {
  EXPECT_EQ(ElementForm(kBooleanList), kBoolean);
  EXPECT_EQ(ElementForm(kLabelTypeList), kLabelType);
  EXPECT_EQ(ElementForm(kStateList), kState);
  EXPECT_EQ(ElementForm(kEventTypeList), kEventType);
  EXPECT_EQ(ElementForm(kBoolean), kNoForm);
  EXPECT_EQ(ElementForm(kNameList), kNoForm);
}
