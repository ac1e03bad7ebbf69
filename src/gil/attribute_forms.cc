// SPDX-License-Identifier: MIT
#include "gil/attribute_forms.h"

#include <array>
#include <cstddef>

#include "gil/tokens.h"

struct AttributeRow {
  ValueForm form;
  int32_t keyword;
};

// clang-format off
static constexpr AttributeRow kAttributes[] = {
    {kInteger, COLUMNS}, {kInteger, DND_ACCEPT_CURSOR_XHOT}, {kInteger, DND_ACCEPT_CURSOR_YHOT},
    {kInteger, DND_CURSOR_XHOT}, {kInteger, DND_CURSOR_YHOT}, {kInteger, DROP_TARGET_WIDTH},
    {kInteger, HEIGHT}, {kInteger, HORIZONTAL_OFFSET}, {kInteger, HORIZONTAL_SPACING},
    {kInteger, MAX_VALUE}, {kInteger, MIN_VALUE}, {kInteger, ROWS}, {kInteger, SCROLLABLE_HEIGHT},
    {kInteger, SCROLLABLE_WIDTH}, {kInteger, SLIDER_WIDTH}, {kInteger, STORED_LENGTH},
    {kInteger, TICKS}, {kInteger, VALUE_LENGTH}, {kInteger, VALUE_X}, {kInteger, VALUE_Y},
    {kInteger, VERTICAL_OFFSET}, {kInteger, VERTICAL_SPACING}, {kInteger, WIDTH}, {kInteger, X},
    {kInteger, Y},

    {kString, BACKGROUND_COLOR}, {kString, BUSY_DROP_GLYPH}, {kString, DND_ACCEPT_CURSOR},
    {kString, DND_CURSOR}, {kString, FOREGROUND_COLOR}, {kString, HELP}, {kString, ICON_FILE},
    {kString, ICON_LABEL}, {kString, ICON_MASK_FILE}, {kString, LABEL}, {kString, MENU_TITLE},
    {kString, MIN_TICK_STRING}, {kString, MAX_TICK_STRING}, {kString, MIN_VALUE_STRING},
    {kString, MAX_VALUE_STRING}, {kString, NORMAL_DROP_GLYPH}, {kString, TITLE},

    {kIntegerOrString, INITIAL_VALUE},

    {kName, ANCHOR_OBJECT}, {kName, DONE_HANDLER}, {kName, EVENT_HANDLER}, {kName, MENU_HANDLER},
    {kName, MENU}, {kName, NAME}, {kName, NOTIFY_HANDLER}, {kName, OWNER}, {kName, REPAINT_PROC},

    {kBoolean, CONSTANT_WIDTH}, {kBoolean, DEFAULT_DROP_SITE}, {kBoolean, DRAGGABLE},
    {kBoolean, DROPPABLE}, {kBoolean, HORIZONTAL_SCROLLBAR}, {kBoolean, LABEL_BOLD},
    {kBoolean, MULTIPLE_SELECTIONS}, {kBoolean, PINNABLE}, {kBoolean, PINNED},
    {kBoolean, READ_ONLY}, {kBoolean, RESIZABLE}, {kBoolean, SELECTION_REQUIRED},
    {kBoolean, SHOW_BORDER}, {kBoolean, SHOW_ENDBOXES}, {kBoolean, SHOW_FOOTER},
    {kBoolean, SHOW_RANGE}, {kBoolean, SHOW_VALUE}, {kBoolean, VALUE_UNDERLINED},
    {kBoolean, VERTICAL_SCROLLBAR},

    {kStringList, CHOICES}, {kStringList, CHOICE_COLORS}, {kStringList, INITIAL_LIST_VALUES},
    {kStringList, INITIAL_LIST_GLYPHS}, {kStringList, MENU_ITEM_COLORS},
    {kStringList, MENU_ITEM_LABELS},

    {kBooleanList, CHOICE_DEFAULTS}, {kBooleanList, INITIAL_SELECTIONS},
    {kBooleanList, MENU_ITEM_DEFAULTS},

    {kLabelTypeList, CHOICE_LABEL_TYPES}, {kLabelTypeList, MENU_ITEM_LABEL_TYPES},

    {kNameList, MEMBERS}, {kNameList, MENU_ITEM_HANDLERS}, {kNameList, MENU_ITEM_MENUS},

    {kStateList, MENU_ITEM_STATES}, {kEventTypeList, EVENTS},

    {kCompassPoint, ANCHOR_POINT}, {kCompassPoint, REFERENCE_POINT}, {kState, INITIAL_STATE},
    {kButtonType, BUTTON_TYPE}, {kColumnAlignment, COLUMN_ALIGNMENT},
    {kRowAlignment, ROW_ALIGNMENT}, {kDrawingModel, DRAWING_MODEL}, {kGroupType, GROUP_TYPE},
    {kLabelType, LABEL_TYPE}, {kOrientation, LAYOUT_TYPE}, {kMenuType, MENU_TYPE},
    {kOrientation, ORIENTATION}, {kSettingType, SETTING_TYPE}, {kTextType, TEXT_TYPE},

    {kEmptyList, USER_DATA},
};

static constexpr AttributeRow kWords[] = {
    {kBoolean, T}, {kBoolean, NIL},
    {kState, OPEN}, {kState, ICONIC}, {kState, VISIBLE}, {kState, INVISIBLE}, {kState, ACTIVE},
    {kState, INACTIVE},
    {kColumnAlignment, LEFT_EDGES}, {kColumnAlignment, LABELS},
    {kColumnAlignment, VERTICAL_CENTERS}, {kColumnAlignment, RIGHT_EDGES},
    {kRowAlignment, TOP_EDGES}, {kRowAlignment, HORIZONTAL_CENTERS}, {kRowAlignment, BOTTOM_EDGES},
    {kCompassPoint, NORTH_WEST}, {kCompassPoint, NORTH}, {kCompassPoint, NORTH_EAST},
    {kCompassPoint, WEST}, {kCompassPoint, EAST}, {kCompassPoint, CENTER},
    {kCompassPoint, SOUTH_WEST}, {kCompassPoint, SOUTH}, {kCompassPoint, SOUTH_EAST},
    {kButtonType, NORMAL}, {kButtonType, ABBREVIATED},
    {kDrawingModel, XVIEW}, {kDrawingModel, XWINDOWS}, {kDrawingModel, POSTSCRIPT},
    {kEventType, KEYBOARD}, {kEventType, KEYBOARD_LEFT}, {kEventType, KEYBOARD_RIGHT},
    {kEventType, KEYBOARD_TOP}, {kEventType, MOUSE}, {kEventType, MOUSE_DRAG},
    {kEventType, MOUSE_ENTER}, {kEventType, MOUSE_EXIT}, {kEventType, MOUSE_MOVE},
    {kGroupType, ROW}, {kGroupType, COLUMN}, {kGroupType, ROW_COLUMN}, {kGroupType, NIL},
    {kLabelType, STRING}, {kLabelType, GLYPH},
    {kOrientation, HORIZONTAL}, {kOrientation, VERTICAL},
    {kMenuType, COMMAND}, {kMenuType, EXCLUSIVE}, {kMenuType, NONEXCLUSIVE},
    {kSettingType, EXCLUSIVE}, {kSettingType, NONEXCLUSIVE}, {kSettingType, CHECK},
    {kSettingType, STACK},
    {kTextType, ALPHANUMERIC}, {kTextType, NUMERIC}, {kTextType, MULTILINE},
    {kArgType, VOID_TOK}, {kArgType, INTEGER}, {kArgType, STRING},
};
// clang-format on

static constexpr int32_t kElementTypes[] = {
    BASE_WINDOW, BUTTON, CANVAS_PANE, CONTROL_AREA, DROP_TARGET,    GAUGE,
    GROUP,       MENU,   MESSAGE,     POPUP_WINDOW, SCROLLING_LIST, SETTING,
    SLIDER,      STACK,  TERM_PANE,   TEXT_FIELD,   TEXT_PANE};

static constexpr std::size_t kTokens = kLastToken - kFirstToken + 1;

// The rows by token, since every attribute of a file asks.
static constexpr auto kFormOfToken = [] {
  std::array<ValueForm, kTokens> forms{};
  for (const AttributeRow& row : kAttributes) forms[row.keyword - kFirstToken] = row.form;
  return forms;
}();

// By token, one bit for each enumeration that it is a word of.
static_assert(kLastEnumeration - kFirstEnumeration < 32);
static constexpr auto kEnumerationsOfToken = [] {
  std::array<uint32_t, kTokens> enumerations{};
  for (const AttributeRow& row : kWords) {
    enumerations[row.keyword - kFirstToken] |= 1U << (row.form - kFirstEnumeration);
  }
  return enumerations;
}();

static bool IsToken(int32_t token) { return token >= kFirstToken && token <= kLastToken; }

ValueForm AttributeForm(int32_t token) {
  return IsToken(token) ? kFormOfToken[token - kFirstToken] : kNoForm;
}

bool IsWordOf(ValueForm enumeration, int32_t token) {
  return IsToken(token) &&
         (kEnumerationsOfToken[token - kFirstToken] >> (enumeration - kFirstEnumeration) & 1U);
}

ValueForm ElementForm(ValueForm form) {
  switch (form) {
    case kBooleanList:
      return kBoolean;
    case kLabelTypeList:
      return kLabelType;
    case kStateList:
      return kState;
    case kEventTypeList:
      return kEventType;
    default:
      return kNoForm;
  }
}

bool IsElementType(int32_t token) {
  for (int32_t type : kElementTypes) {
    if (type == token) return true;
  }
  return false;
}
