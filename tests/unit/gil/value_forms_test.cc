// SPDX-License-Identifier: MIT
// What follows each attribute, and which words make up each enumeration.
#include "gil/words.h"

#include <gtest/gtest.h>

#include <set>

#include "gil/tokens.h"

static std::set<int32_t> WordsOf(Enumeration enumeration) {
  std::set<int32_t> words;
  for (int32_t token = 0; token <= kLastToken + 1; ++token) {
    if (IsWordOf(enumeration, token)) words.insert(token);
  }
  return words;
}

using Set = std::set<int32_t>;

TEST(ValueFormsTest, EnumerationsHaveTheirWordsOnly) {
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

TEST(ValueFormsTest, ElementTypesAreTheSeventeen) {
  EXPECT_EQ(WordsOf(kElementType), (Set{BASE_WINDOW, BUTTON, CANVAS_PANE, CONTROL_AREA, DROP_TARGET,
                                        GAUGE, GROUP, MENU, MESSAGE, POPUP_WINDOW, SCROLLING_LIST,
                                        SETTING, SLIDER, STACK, TERM_PANE, TEXT_FIELD, TEXT_PANE}));
}

// How many attributes have that shape (and, for words, that enumeration).
static int Count(ValueShape shape, uint32_t enumeration = 0) {
  int count = 0;
  for (const Word* word = kFirstWord; word <= kLastWord; ++word) {
    count += word->value.shape == shape && word->value.words == enumeration;
  }
  return count;
}

TEST(ValueFormsTest, HowManyAttributesOfEachForm) {
  EXPECT_EQ(Count(kIntegerShape), 25);
  EXPECT_EQ(Count(kStringShape), 17);
  EXPECT_EQ(Count(kIntegerOrStringShape), 1);
  EXPECT_EQ(Count(kNameShape), 9);
  EXPECT_EQ(Count(kStringListShape), 6);
  EXPECT_EQ(Count(kNameListShape), 3);
  EXPECT_EQ(Count(kEmptyListShape), 1);
  EXPECT_EQ(Count(kWordShape, kBoolean), 19);
  EXPECT_EQ(Count(kWordShape, kOrientation), 2);
  EXPECT_EQ(Count(kWordShape, kCompassPoint), 2);
  EXPECT_EQ(Count(kWordListShape, kBoolean), 3);
  EXPECT_EQ(Count(kWordListShape, kLabelType), 2);
  EXPECT_EQ(Count(kWordListShape, kState), 1);
  EXPECT_EQ(Count(kWordListShape, kEventType), 1);
}

TEST(ValueFormsTest, OtherTokensAreNoAttributes) {
  for (int32_t token : {+TYPE, +ACTIONS, +INTERFACES, +ROOT_WINDOW, +BUTTON, +LPAREN, +IDENTIFIER,
                        +STRING_VALUE, +STRING, +FROM}) {
    EXPECT_EQ(WordOfToken(token)->value.shape, kNothing) << token;
  }
}
