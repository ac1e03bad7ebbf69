// SPDX-License-Identifier: MIT
// The table of words against two lists: the tokens in the order of their numbers, and the keywords.
// A keyword's token is its text in capitals with "_" for "-".
#include "gil/words.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "gil/tokens.h"

// clang-format off
static const char kTokenNames[] =
    "A ABBREVIATED ACTION ACTIONS ACTIVE ALPHANUMERIC ANCHOR_OBJECT ANCHOR_POINT "
    "BACKGROUND_COLOR BASE_WINDOW BOTTOM_EDGES BUSY_DROP_GLYPH BUTTON BUTTON_TYPE CANVAS_PANE "
    "CENTER CHECK CHOICES CHOICE_COLORS CHOICE_DEFAULTS CHOICE_LABEL_TYPES COLUMN COLUMNS "
    "COLUMN_ALIGNMENT COMMAND CONSTANT_WIDTH CONTROL_AREA DEFAULT_DROP_SITE DND_ACCEPT_CURSOR "
    "DND_ACCEPT_CURSOR_XHOT DND_ACCEPT_CURSOR_YHOT DND_CURSOR DND_CURSOR_XHOT DND_CURSOR_YHOT "
    "DONE_HANDLER DRAGGABLE DRAWING_MODEL DROPPABLE DROP_TARGET DROP_TARGET_WIDTH EAST EVENTS "
    "EVENT_HANDLER EXCLUSIVE FOREGROUND_COLOR FROM GAUGE GIL GLYPH GROUP GROUP_TYPE HEIGHT HELP "
    "HORIZONTAL HORIZONTAL_CENTERS HORIZONTAL_OFFSET HORIZONTAL_SCROLLBAR HORIZONTAL_SPACING "
    "ICONIC ICON_FILE ICON_LABEL ICON_MASK_FILE INACTIVE INITIAL_LIST_GLYPHS "
    "INITIAL_LIST_VALUES INITIAL_SELECTIONS INITIAL_STATE INITIAL_VALUE INTEGER INVISIBLE "
    "KEYBOARD KEYBOARD_LEFT KEYBOARD_RIGHT KEYBOARD_TOP LABEL LABELS LABEL_BOLD LABEL_TYPE "
    "LAYOUT_TYPE LEFT_EDGES LPAREN MAPPED MAX_VALUE MEMBERS MENU MENU_HANDLER MENU_ITEM_COLORS "
    "MENU_ITEM_DEFAULTS MENU_ITEM_HANDLERS MENU_ITEM_LABELS MENU_ITEM_LABEL_TYPES "
    "MENU_ITEM_MENUS MENU_ITEM_STATES MENU_TITLE MENU_TYPE MESSAGE MIN_VALUE MOUSE MOUSE_DRAG "
    "MOUSE_ENTER MOUSE_EXIT MOUSE_MOVE MULTILINE MULTIPLE_SELECTIONS NAME NONEXCLUSIVE NORMAL "
    "NORMAL_DROP_GLYPH NORTH NORTH_EAST NORTH_WEST NOTIFY_HANDLER NUMERIC OPEN ORIENTATION "
    "OWNER PINNABLE PINNED POPUP_WINDOW POSTSCRIPT READ_ONLY REFERENCE_POINT REPAINT_PROC "
    "RESIZABLE RIGHT_EDGES ROW ROWS ROW_ALIGNMENT ROW_COLUMN RPAREN SCROLLABLE_HEIGHT "
    "SCROLLABLE_WIDTH SCROLLING_LIST SELECTION_REQUIRED SETTING SETTING_TYPE SHOW_BORDER "
    "SHOW_ENDBOXES SHOW_FOOTER SHOW_RANGE SHOW_VALUE SLIDER SLIDER_WIDTH SOUTH SOUTH_EAST "
    "SOUTH_WEST STACK STORED_LENGTH STRING TERM_PANE TEXT_FIELD TEXT_PANE TEXT_TYPE TICKS TITLE "
    "TO TOP_EDGES TYPE USER_DATA USER_DEFINED VALUE_LENGTH VALUE_UNDERLINED VALUE_X VALUE_Y "
    "VERTICAL VERTICAL_CENTERS VERTICAL_OFFSET VERTICAL_SCROLLBAR VERTICAL_SPACING VISIBLE "
    "VOID_TOK WEST WHEN WIDTH X XVIEW XWINDOWS Y FUNCTION_TYPE ARG_TYPE NIL T CHARACTER "
    "MIN_VALUE_STRING MAX_VALUE_STRING MIN_TICK_STRING MAX_TICK_STRING INTERFACES ROOT_WINDOW "
    "PROJECT CALL_FUNCTION GIL_VERSION_2 GIL_VERSION_3 STRING_VALUE IDENTIFIER INTEGER_VALUE";

static const char kKeywordTexts[] =
    "a abbreviated action actions active alphanumeric anchor-object anchor-point arg_type "
    "background-color base-window bottom-edges busy-drop-glyph button button-type CallFunction "
    "canvas-pane center character check choices choice-colors choice-defaults "
    "choice-label-types column columns column-alignment command constant-width control-area "
    "default-drop-site dnd-accept-cursor dnd-accept-cursor-xhot dnd-accept-cursor-yhot "
    "dnd-cursor dnd-cursor-xhot dnd-cursor-yhot done-handler draggable drawing-model droppable "
    "drop-target drop-target_width east events event-handler exclusive foreground-color from "
    "function_type gauge gil glyph group group-type height help horizontal horizontal-centers "
    "horizontal-offset horizontal-scrollbar horizontal-spacing iconic icon-file icon-label "
    "icon-mask-file inactive initial-list-glyphs initial-list-values initial-selections "
    "initial-state initial-value integer interfaces invisible keyboard keyboard-left "
    "keyboard-right keyboard-top label labels label-bold label-type layout-type left-edges "
    "mapped max-value members menu menu-handler menu-item-colors menu-item-defaults "
    "menu-item-handlers menu-item-labels menu-item-label-types menu-item-menus menu-item-states "
    "menu-title menu-type message min-value min-value-string max-value-string min-tick-string "
    "max-tick-string mouse mouse-drag mouse-enter mouse-exit mouse-move multiline "
    "multiple-selections name nonexclusive normal normal-drop-glyph north north-east north-west "
    "notify-handler numeric open orientation owner pinnable pinned popup-window postscript "
    "read-only reference-point repaint-proc resizable right-edges root_window row rows "
    "row-alignment row-column scrollable-height scrollable-width scrolling-list "
    "selection-required setting setting-type show-border show-endboxes show-footer show-range "
    "show-value slider slider-width south south-east south-west stack stored-length string "
    "string-value term-pane text-field text-pane text-type ticks title to top-edges type "
    "user-data user_defined value-length value-underlined value-x value-y vertical "
    "vertical-centers vertical-offset vertical-scrollbar vertical-spacing visible void west "
    "when width x xview xwindows y";
// clang-format on

static std::vector<std::string> Words(const char* text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

static std::map<std::string, int32_t> NumbersByName() {
  std::map<std::string, int32_t> numbers;
  int32_t number = 257;
  for (const std::string& name : Words(kTokenNames)) numbers[name] = number++;
  return numbers;
}

static std::string TokenNameOf(std::string text) {
  if (text == "CallFunction") return "CALL_FUNCTION";
  if (text == "void") return "VOID_TOK";
  for (char& c : text) c = c == '-' ? '_' : static_cast<char>(std::toupper(c));
  return text;
}

static std::vector<Word> Keywords() {
  std::vector<Word> keywords;
  for (const Word* word = kFirstWord; word <= kLastWord; ++word) {
    if (word->text) keywords.push_back(*word);
  }
  return keywords;
}

TEST(TokensTest, AreNumberedInOrder) {
  const auto numbers = NumbersByName();
  EXPECT_EQ(numbers.size(), 196U);
  EXPECT_EQ(kFirstToken, 257);
  EXPECT_EQ(kLastToken, 452);
  EXPECT_EQ(numbers.at("GROUP"), GROUP);
  EXPECT_EQ(numbers.at("INTEGER_VALUE"), INTEGER_VALUE);
}

TEST(KeywordsTest, AreThoseOfTheFormat) {
  std::multiset<std::string> texts;
  for (const Word& keyword : Keywords()) texts.insert(keyword.text);
  const std::vector<std::string> wanted = Words(kKeywordTexts);
  EXPECT_EQ(wanted.size(), 187U);
  EXPECT_EQ(texts, std::multiset<std::string>(wanted.begin(), wanted.end()));
}

TEST(WordsTest, StandAtTheirTokens) {
  for (int32_t token = kFirstToken; token <= kLastToken; ++token) {
    EXPECT_EQ(WordOfToken(token)->token, token);
  }
  EXPECT_EQ(kFirstWord->token, kFirstToken);
  EXPECT_EQ(kLastWord->token, kLastToken);
  EXPECT_EQ(WordOfToken(kFirstToken - 1), nullptr);
  EXPECT_EQ(WordOfToken(kLastToken + 1), nullptr);
  EXPECT_EQ(WordOfToken(END_OF_INPUT), nullptr);
}

TEST(KeywordsTest, NameTheTokenOfTheirText) {
  const auto numbers = NumbersByName();
  for (const Word& keyword : Keywords()) {
    const auto number = numbers.find(TokenNameOf(keyword.text));
    ASSERT_NE(number, numbers.end()) << keyword.text;
    EXPECT_EQ(keyword.token, number->second) << keyword.text;
  }
}

TEST(KeywordsTest, NeitherTextsNorTokensRepeat) {
  std::set<std::string> texts;
  std::set<int32_t> tokens;
  for (const Word& keyword : Keywords()) {
    EXPECT_TRUE(texts.insert(keyword.text).second) << keyword.text;
    EXPECT_TRUE(tokens.insert(keyword.token).second) << keyword.text;
  }
}

TEST(KeywordsTest, LackOnlyWhatTheScannerMakesOtherwise) {
  std::set<int32_t> without;
  for (int32_t token = kFirstToken; token <= kLastToken; ++token) {
    if (!KeywordText(token)) without.insert(token);
  }
  EXPECT_EQ(without, (std::set<int32_t>{LPAREN, RPAREN, NIL, T, PROJECT, GIL_VERSION_2,
                                        GIL_VERSION_3, IDENTIFIER, INTEGER_VALUE}));
}

// The token of the keyword that these bytes are, or 0.
static int32_t TokenOf(const char* text, std::size_t length) {
  const Word* keyword = FindKeyword(text, length);
  return keyword ? keyword->token : 0;
}

TEST(KeywordsTest, AreFoundByTextAndByToken) {
  for (const Word& keyword : Keywords()) {
    EXPECT_EQ(TokenOf(keyword.text, std::strlen(keyword.text)), keyword.token);
    EXPECT_STREQ(KeywordText(keyword.token), keyword.text);
  }
}

TEST(KeywordsTest, AreComparedWholeAndCaseSensitively) {
  EXPECT_EQ(TokenOf("name", 3), 0);
  EXPECT_EQ(TokenOf("names", 5), 0);
  EXPECT_EQ(TokenOf("Name", 4), 0);
  EXPECT_EQ(TokenOf("", 0), 0);
  EXPECT_EQ(TokenOf("namesake", 4), NAME);
}

TEST(KeywordsTest, KeepTheSpellingsOfTheFormat) {
  EXPECT_EQ(TokenOf("drop-target_width", 17), DROP_TARGET_WIDTH);
  EXPECT_EQ(TokenOf("drop-target-width", 17), 0);
  EXPECT_EQ(TokenOf("user-defined", 12), 0);
}

TEST(KeywordsTest, HaveNoTextForOtherNumbers) {
  EXPECT_EQ(KeywordText(0), nullptr);
  EXPECT_EQ(KeywordText(256), nullptr);
  EXPECT_EQ(KeywordText(453), nullptr);
}
