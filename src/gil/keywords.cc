// SPDX-License-Identifier: MIT
#include "gil/keywords.h"

#include <bit>
#include <string_view>

#include "gil/tokens.h"

// clang-format off
constexpr Keyword keywords[] = {
    {"a", A}, {"abbreviated", ABBREVIATED}, {"action", ACTION}, {"actions", ACTIONS},
    {"active", ACTIVE}, {"alphanumeric", ALPHANUMERIC}, {"anchor-object", ANCHOR_OBJECT},
    {"anchor-point", ANCHOR_POINT}, {"arg_type", ARG_TYPE}, {"background-color", BACKGROUND_COLOR},
    {"base-window", BASE_WINDOW}, {"bottom-edges", BOTTOM_EDGES},
    {"busy-drop-glyph", BUSY_DROP_GLYPH}, {"button", BUTTON}, {"button-type", BUTTON_TYPE},
    {"CallFunction", CALL_FUNCTION}, {"canvas-pane", CANVAS_PANE}, {"center", CENTER},
    {"character", CHARACTER}, {"check", CHECK}, {"choices", CHOICES},
    {"choice-colors", CHOICE_COLORS}, {"choice-defaults", CHOICE_DEFAULTS},
    {"choice-label-types", CHOICE_LABEL_TYPES}, {"column", COLUMN}, {"columns", COLUMNS},
    {"column-alignment", COLUMN_ALIGNMENT}, {"command", COMMAND},
    {"constant-width", CONSTANT_WIDTH}, {"control-area", CONTROL_AREA},
    {"default-drop-site", DEFAULT_DROP_SITE}, {"dnd-accept-cursor", DND_ACCEPT_CURSOR},
    {"dnd-accept-cursor-xhot", DND_ACCEPT_CURSOR_XHOT},
    {"dnd-accept-cursor-yhot", DND_ACCEPT_CURSOR_YHOT}, {"dnd-cursor", DND_CURSOR},
    {"dnd-cursor-xhot", DND_CURSOR_XHOT}, {"dnd-cursor-yhot", DND_CURSOR_YHOT},
    {"done-handler", DONE_HANDLER}, {"draggable", DRAGGABLE}, {"drawing-model", DRAWING_MODEL},
    {"droppable", DROPPABLE}, {"drop-target", DROP_TARGET},
    {"drop-target_width", DROP_TARGET_WIDTH}, {"east", EAST}, {"events", EVENTS},
    {"event-handler", EVENT_HANDLER}, {"exclusive", EXCLUSIVE},
    {"foreground-color", FOREGROUND_COLOR}, {"from", FROM}, {"function_type", FUNCTION_TYPE},
    {"gauge", GAUGE}, {"gil", GIL}, {"glyph", GLYPH}, {"group", GROUP}, {"group-type", GROUP_TYPE},
    {"height", HEIGHT}, {"help", HELP}, {"horizontal", HORIZONTAL},
    {"horizontal-centers", HORIZONTAL_CENTERS}, {"horizontal-offset", HORIZONTAL_OFFSET},
    {"horizontal-scrollbar", HORIZONTAL_SCROLLBAR}, {"horizontal-spacing", HORIZONTAL_SPACING},
    {"iconic", ICONIC}, {"icon-file", ICON_FILE}, {"icon-label", ICON_LABEL},
    {"icon-mask-file", ICON_MASK_FILE}, {"inactive", INACTIVE},
    {"initial-list-glyphs", INITIAL_LIST_GLYPHS}, {"initial-list-values", INITIAL_LIST_VALUES},
    {"initial-selections", INITIAL_SELECTIONS}, {"initial-state", INITIAL_STATE},
    {"initial-value", INITIAL_VALUE}, {"integer", INTEGER}, {"interfaces", INTERFACES},
    {"invisible", INVISIBLE}, {"keyboard", KEYBOARD}, {"keyboard-left", KEYBOARD_LEFT},
    {"keyboard-right", KEYBOARD_RIGHT}, {"keyboard-top", KEYBOARD_TOP}, {"label", LABEL},
    {"labels", LABELS}, {"label-bold", LABEL_BOLD}, {"label-type", LABEL_TYPE},
    {"layout-type", LAYOUT_TYPE}, {"left-edges", LEFT_EDGES}, {"mapped", MAPPED},
    {"max-value", MAX_VALUE}, {"members", MEMBERS}, {"menu", MENU}, {"menu-handler", MENU_HANDLER},
    {"menu-item-colors", MENU_ITEM_COLORS}, {"menu-item-defaults", MENU_ITEM_DEFAULTS},
    {"menu-item-handlers", MENU_ITEM_HANDLERS}, {"menu-item-labels", MENU_ITEM_LABELS},
    {"menu-item-label-types", MENU_ITEM_LABEL_TYPES}, {"menu-item-menus", MENU_ITEM_MENUS},
    {"menu-item-states", MENU_ITEM_STATES}, {"menu-title", MENU_TITLE}, {"menu-type", MENU_TYPE},
    {"message", MESSAGE}, {"min-value", MIN_VALUE}, {"min-value-string", MIN_VALUE_STRING},
    {"max-value-string", MAX_VALUE_STRING}, {"min-tick-string", MIN_TICK_STRING},
    {"max-tick-string", MAX_TICK_STRING}, {"mouse", MOUSE}, {"mouse-drag", MOUSE_DRAG},
    {"mouse-enter", MOUSE_ENTER}, {"mouse-exit", MOUSE_EXIT}, {"mouse-move", MOUSE_MOVE},
    {"multiline", MULTILINE}, {"multiple-selections", MULTIPLE_SELECTIONS}, {"name", NAME},
    {"nonexclusive", NONEXCLUSIVE}, {"normal", NORMAL}, {"normal-drop-glyph", NORMAL_DROP_GLYPH},
    {"north", NORTH}, {"north-east", NORTH_EAST}, {"north-west", NORTH_WEST},
    {"notify-handler", NOTIFY_HANDLER}, {"numeric", NUMERIC}, {"open", OPEN},
    {"orientation", ORIENTATION}, {"owner", OWNER}, {"pinnable", PINNABLE}, {"pinned", PINNED},
    {"popup-window", POPUP_WINDOW}, {"postscript", POSTSCRIPT}, {"read-only", READ_ONLY},
    {"reference-point", REFERENCE_POINT}, {"repaint-proc", REPAINT_PROC}, {"resizable", RESIZABLE},
    {"right-edges", RIGHT_EDGES}, {"root_window", ROOT_WINDOW}, {"row", ROW}, {"rows", ROWS},
    {"row-alignment", ROW_ALIGNMENT}, {"row-column", ROW_COLUMN},
    {"scrollable-height", SCROLLABLE_HEIGHT}, {"scrollable-width", SCROLLABLE_WIDTH},
    {"scrolling-list", SCROLLING_LIST}, {"selection-required", SELECTION_REQUIRED},
    {"setting", SETTING}, {"setting-type", SETTING_TYPE}, {"show-border", SHOW_BORDER},
    {"show-endboxes", SHOW_ENDBOXES}, {"show-footer", SHOW_FOOTER}, {"show-range", SHOW_RANGE},
    {"show-value", SHOW_VALUE}, {"slider", SLIDER}, {"slider-width", SLIDER_WIDTH},
    {"south", SOUTH}, {"south-east", SOUTH_EAST}, {"south-west", SOUTH_WEST}, {"stack", STACK},
    {"stored-length", STORED_LENGTH}, {"string", STRING}, {"string-value", STRING_VALUE},
    {"term-pane", TERM_PANE}, {"text-field", TEXT_FIELD}, {"text-pane", TEXT_PANE},
    {"text-type", TEXT_TYPE}, {"ticks", TICKS}, {"title", TITLE}, {"to", TO},
    {"top-edges", TOP_EDGES}, {"type", TYPE}, {"user-data", USER_DATA},
    {"user_defined", USER_DEFINED}, {"value-length", VALUE_LENGTH},
    {"value-underlined", VALUE_UNDERLINED}, {"value-x", VALUE_X}, {"value-y", VALUE_Y},
    {"vertical", VERTICAL}, {"vertical-centers", VERTICAL_CENTERS},
    {"vertical-offset", VERTICAL_OFFSET}, {"vertical-scrollbar", VERTICAL_SCROLLBAR},
    {"vertical-spacing", VERTICAL_SPACING}, {"visible", VISIBLE}, {"void", VOID_TOK},
    {"west", WEST}, {"when", WHEN}, {"width", WIDTH}, {"x", X}, {"xview", XVIEW},
    {"xwindows", XWINDOWS}, {"y", Y},
    {nullptr, 0}};
// clang-format on

constexpr KeywordPatterns keyword_patterns = [] {
  KeywordPatterns patterns{};
  static_assert(std::size(keywords) == patterns.size() + 1);
  for (std::size_t row = 0; row < patterns.size(); ++row) {
    const std::string_view text = keywords[row].text;
    std::array<char, kKeywordRoom> bytes{};  // a longer text would not compile
    for (std::size_t i = 0; i < text.size(); ++i) bytes[i] = text[i];
    patterns[row] = {std::bit_cast<KeywordWords>(bytes), keywords[row].token,
                     static_cast<int32_t>(text.size())};
  }
  return patterns;
}();

constexpr KeywordMasks keyword_masks = [] {
  KeywordMasks masks{};
  std::array<unsigned char, kKeywordRoom> bytes{};
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    masks[length] = std::bit_cast<KeywordWords>(bytes);
    bytes[length] = 0xff;
  }
  masks[bytes.size()] = std::bit_cast<KeywordWords>(bytes);
  return masks;
}();

// Open addressing over the rows of the table, built by the compiler. A slot holds the number of a
// row plus one, 0 means free. A quarter full, so that most words are found at once.
static constexpr int kSlotBits = 10;
static constexpr std::size_t kSlots = 1U << kSlotBits;

static constexpr std::size_t HashOf(const KeywordWords& words) {
  uint64_t hash = 0;
  for (uint64_t word : words) hash = (hash ^ word) * 0x9e3779b97f4a7c15;
  return hash >> (64 - kSlotBits);
}

static constexpr std::array<uint8_t, kSlots> kSlotTable = [] {
  static_assert(std::size(keywords) <= 256);
  std::array<uint8_t, kSlots> slots{};
  for (std::size_t row = 0; row < keyword_patterns.size(); ++row) {
    std::size_t slot = HashOf(keyword_patterns[row].words);
    while (slots[slot] != 0) slot = (slot + 1) % kSlots;
    slots[slot] = static_cast<uint8_t>(row + 1);
  }
  return slots;
}();

const Keyword* FindKeyword(const char* text, std::size_t length) {
  if (length == 0 || length > kKeywordRoom) return nullptr;
  const KeywordWords words = KeywordWordsAt(text, length);
  for (std::size_t slot = HashOf(words); kSlotTable[slot] != 0; slot = (slot + 1) % kSlots) {
    const std::size_t row = kSlotTable[slot] - 1U;
    if (keyword_patterns[row].words == words) return &keywords[row];
  }
  return nullptr;
}

const char* KeywordText(int32_t token) {
  for (const Keyword* keyword = keywords; keyword->text; ++keyword) {
    if (keyword->token == token) return keyword->text;
  }
  return nullptr;
}
