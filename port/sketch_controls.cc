// SPDX-License-Identifier: MIT
#include "port/sketch_controls.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "gil/tokens.h"
#include "port/model.h"
#include "port/object_attributes.h"

namespace port {

// Sizes of OPEN LOOK's medium scale, in pixels.
static const int kButton = 20;  // height of a button, a choice, a line of a list
static const int kMark = 18;    // the square of an abbreviated menu button
static const int kScrollbar = 18;
static const int kCheck = 13;
static const int kLetter = 8;  // the width that the editor counts for a letter of a field
static const int kLine = 15;   // height of a line of text

// -- labels --

Face MakeFace(Sheet& sheet, const std::string& label, bool is_glyph, bool bold) {
  Face face{label, is_glyph, std::nullopt, TextWidth(label, bold), 13};
  if (!is_glyph) return face;
  face.bitmap = FindBitmap(label, sheet.glyph_folders);
  if (face.bitmap) {
    face.width = face.bitmap->width;
    face.height = face.bitmap->height;
  } else {
    sheet.missing_glyphs.push_back(label);
    face.width += 8;
    face.height = 16;
  }
  return face;
}

void DrawFace(Sheet& sheet, const Face& face, int x, int y, int height, bool bold) {
  const int top = y + (height - face.height) / 2;
  if (face.bitmap) {
    sheet.drawing.Image(x, top, *face.bitmap);
  } else if (face.is_glyph) {
    sheet.drawing.Rect({x, top, face.width, face.height}, paint::kOutline);
    sheet.drawing.Text(x + 4, top + 12, face.text);
  } else {
    sheet.drawing.Text(x, top + 11, face.text, bold);
  }
}

static Face LabelFace(Sheet& sheet, const PortObject& obj, bool bold) {
  return MakeFace(sheet, TextOf(obj, LABEL), TokenOf(obj, LABEL_TYPE, STRING) == GLYPH, bold);
}

// The bold label in front of a control, or above it; `line` is the height of the control's first
// line.
static void DrawLabel(Sheet& sheet, const PortObject& obj, int line) {
  const bool above = TokenOf(obj, LAYOUT_TYPE, HORIZONTAL) == VERTICAL;
  DrawFace(sheet, LabelFace(sheet, obj, true), NumberOf(obj, X, 0), NumberOf(obj, Y, 0),
           above ? kLine : line, true);
}

// -- small parts --

static std::string At(int x, int y) { return std::to_string(x) + " " + std::to_string(y); }

void DrawMarkDown(Sheet& sheet, int x, int y) {
  sheet.drawing.Path("M" + At(x, y - 3) + "h9l-4.5 7z", paint::kMark);
}

void DrawMarkRight(Sheet& sheet, int x, int y) {
  sheet.drawing.Path("M" + At(x, y - 4) + "v9l7 -4.5z", paint::kMark);
}

void DrawPin(Sheet& sheet, int x, int y, bool pinned) {
  if (pinned) {
    sheet.drawing.Path("M" + At(x + 3, y + 8) + "a5 5 0 1 1 10 0a5 5 0 1 1 -10 0", paint::kRaised);
    sheet.drawing.Path("M" + At(x + 6, y + 8) + "a2 2 0 1 1 4 0a2 2 0 1 1 -4 0", paint::kMark);
  } else {
    sheet.drawing.Path("M" + At(x, y + 9) + "h6m0 -5v10m0 -3h9m0 -6v8m0 -2h-9v-5h9", paint::kLine);
    sheet.drawing.Path("M" + At(x - 4, y + 9) + "h2", paint::kLine);
  }
}

static void DrawMenuSquare(Sheet& sheet, int x, int y) {
  sheet.drawing.Rect({x, y, kMark, kMark}, paint::kRaised);
  DrawMarkDown(sheet, x + 5, y + kMark / 2);
}

// A cable with an anchor at each end and an elevator at its beginning.
static void DrawScrollbar(Sheet& sheet, const Box& box) {
  const bool upright = box.height >= box.width;
  const int end = upright ? box.y + box.height : box.x + box.width;
  const auto part = [&](int from, int length, std::string_view style) {
    if (from + length > end) return;
    sheet.drawing.Rect(upright ? Box{box.x + 3, from, box.width - 6, length}
                               : Box{from, box.y + 3, length, box.height - 6},
                       style);
  };
  const int begin = upright ? box.y : box.x;
  part(begin, 6, paint::kRaised);
  part(begin + 9, 36, paint::kRaised);
  part(begin + 48, end - begin - 57, paint::kLine);
  part(end - 6, 6, paint::kRaised);
}

// Lines of text inside of a box, as many as have room and no longer than it is wide.
static void DrawInside(Sheet& sheet, const Box& box, std::string_view text) {
  for (int y = 0; !text.empty() && y + kLine <= box.height; y += kLine) {
    sheet.drawing.Text(box.x + 2, box.y + y + 12, FitText(text, box.width - 2));
    text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
  }
}

// The place of a control's value, with the size that the object leaves for it.
static Box ValuePlace(const PortObject& obj) {
  const int x = NumberOf(obj, X, 0);
  const int y = NumberOf(obj, Y, 0);
  const int value_x = NumberOf(obj, VALUE_X, x);
  const int value_y = NumberOf(obj, VALUE_Y, y);
  return {value_x, value_y, std::max(x + NumberOf(obj, WIDTH, 0) - value_x, 0),
          std::max(y + NumberOf(obj, HEIGHT, 0) - value_y, 0)};
}

// -- panes --

static void DrawPane(Sheet& sheet, const PortObject& obj, std::string_view style) {
  std::string painted(style);
  const std::string color = CssColor(TextOf(obj, BACKGROUND_COLOR));
  if (!color.empty()) painted += ";fill:" + color;
  sheet.drawing.Rect(PlaceOf(obj), painted);
}

static void DrawControlArea(Sheet& sheet, const PortObject& obj) {
  DrawPane(sheet, obj, IsTrue(obj, SHOW_BORDER) ? "fill:#ccc;stroke:#333" : "fill:#ccc");
}

static void DrawCanvas(Sheet& sheet, const PortObject& obj) {
  DrawPane(sheet, obj, paint::kField);
  const Box box = PlaceOf(obj);
  if (IsTrue(obj, VERTICAL_SCROLLBAR)) {
    DrawScrollbar(sheet, {box.x + box.width - kScrollbar, box.y, kScrollbar, box.height});
  }
  if (IsTrue(obj, HORIZONTAL_SCROLLBAR)) {
    DrawScrollbar(sheet,
                  {box.x, box.y + box.height - kScrollbar, box.width - kScrollbar, kScrollbar});
  }
}

static void DrawTextPane(Sheet& sheet, const PortObject& obj) {
  DrawPane(sheet, obj, paint::kField);
  const Box box = PlaceOf(obj);
  DrawScrollbar(sheet, {box.x + box.width - kScrollbar, box.y, kScrollbar, box.height});
  // The caret; a reader of a text that cannot be changed has none.
  if (!IsTrue(obj, READ_ONLY)) {
    sheet.drawing.Path("M" + At(box.x + 4, box.y + 17) + "l4 -5l4 5z", paint::kMark);
  }
}

static void DrawTerminal(Sheet& sheet, const PortObject& obj) {
  DrawTextPane(sheet, obj);
  const Box box = PlaceOf(obj);
  sheet.drawing.Text(box.x + 4, box.y + 14, "%");
  sheet.drawing.Rect({box.x + 20, box.y + 4, 7, 12}, paint::kMark);
}

// -- controls --

static void DrawButton(Sheet& sheet, const PortObject& obj) {
  const Box box = PlaceOf(obj);
  const bool has_menu = !TextOf(obj, MENU).empty();
  if (TokenOf(obj, BUTTON_TYPE, NORMAL) == ABBREVIATED) {
    const Face face = LabelFace(sheet, obj, true);
    DrawFace(sheet, face, box.x, box.y, kButton, true);
    DrawMenuSquare(sheet, box.x + std::max(box.width - kMark, face.width ? face.width + 8 : 0),
                   box.y);
    return;
  }
  const Face face = LabelFace(sheet, obj, false);
  const int height = std::max({box.height, kButton, face.height + 6});
  sheet.drawing.Rect({box.x, box.y, box.width, height}, paint::kRaised,
                     std::min(height, kButton + 6) / 2);
  const int mark = has_menu ? 16 : 0;
  DrawFace(sheet, face, box.x + std::max(box.width - mark - face.width, 8) / 2, box.y, height);
  if (has_menu) DrawMarkDown(sheet, box.x + box.width - 20, box.y + height / 2);
}

static void DrawMessage(Sheet& sheet, const PortObject& obj) {
  const bool bold = IsTrue(obj, LABEL_BOLD);
  const Face face = LabelFace(sheet, obj, bold);
  DrawFace(sheet, face, NumberOf(obj, X, 0), NumberOf(obj, Y, 0), face.height, bold);
}

static void DrawMultiline(Sheet& sheet, const PortObject& obj, Box box) {
  if (box.width <= 0) box.width = NumberOf(obj, VALUE_LENGTH, 0) * kLetter + kScrollbar;
  box.height = std::max(box.height, std::max(NumberOf(obj, ROWS, 1), 1) * kLine + 6);
  sheet.drawing.Rect(box, paint::kField);
  DrawScrollbar(sheet, {box.x + box.width - kScrollbar, box.y, kScrollbar, box.height});
  DrawInside(sheet, {box.x + 2, box.y + 2, box.width - kScrollbar - 4, box.height - 4},
             TextOf(obj, INITIAL_VALUE));
}

// A line under the value; a field for numbers has two small buttons behind it.
static void DrawTextField(Sheet& sheet, const PortObject& obj) {
  DrawLabel(sheet, obj, kLine);
  Box box = ValuePlace(obj);
  if (TokenOf(obj, TEXT_TYPE, ALPHANUMERIC) == MULTILINE) {
    DrawMultiline(sheet, obj, box);
    return;
  }
  if (box.width <= 0) box.width = NumberOf(obj, VALUE_LENGTH, 0) * kLetter;
  box.height = kLine;
  const bool can_change = !IsTrue(obj, READ_ONLY);
  if (can_change && TokenOf(obj, TEXT_TYPE, ALPHANUMERIC) == NUMERIC) {
    box.width = std::max(box.width - 2 * kMark - 4, kLetter);
    for (int i = 0; i < 2; ++i) {
      const int x = box.x + box.width + 4 + i * kMark;
      sheet.drawing.Rect({x, box.y, kMark, kLine}, paint::kRaised);
      sheet.drawing.Path("M" + At(x + 5, box.y + (i ? 5 : 10)) + (i ? "h8l-4 6z" : "h8l-4 -6z"),
                         paint::kMark);
    }
  }
  DrawInside(sheet, box, TextOf(obj, INITIAL_VALUE));
  if (can_change && TokenOf(obj, VALUE_UNDERLINED, T) == T) {
    sheet.drawing.Path("M" + At(box.x, box.y + kLine) + "h" + std::to_string(box.width),
                       paint::kLine);
  }
}

// The bar of a slider or a gauge from (x, y) on, upright or flat, with places along it counted from
// the smallest value's end.
struct Bar {
  int x = 0;
  int y = 0;
  bool upright = false;
  int length = 0;
  int value = 0;  // the place of the initial value
  int ticks = 0;

  Box Part(int from, int size, int across, int thickness) const {
    if (upright) return {x + across, y + length - from - size, thickness, size};
    return {x + from, y + across, size, thickness};
  }
};

static Bar BarOf(const PortObject& obj) {
  const Box place = ValuePlace(obj);
  Bar bar;
  bar.x = place.x;
  bar.y = place.y;
  bar.upright = TokenOf(obj, ORIENTATION, HORIZONTAL) == VERTICAL;
  bar.length = std::max(NumberOf(obj, SLIDER_WIDTH, 100), 10);
  bar.ticks = std::clamp(NumberOf(obj, TICKS, 0), 0, 200);
  const int least = NumberOf(obj, MIN_VALUE, 0);
  const int most = NumberOf(obj, MAX_VALUE, 100);
  const int value =
      std::clamp(NumberOf(obj, INITIAL_VALUE, least), std::min(least, most), std::max(least, most));
  bar.value = most == least ? 0 : bar.length * (value - least) / (most - least);
  return bar;
}

static void DrawTicks(Sheet& sheet, const Bar& bar, int across) {
  for (int i = 0; i < bar.ticks; ++i) {
    const int at = bar.ticks == 1 ? 0 : i * (bar.length - 1) / (bar.ticks - 1);
    sheet.drawing.Rect(bar.Part(at, 1, across, 4), paint::kMark);
  }
}

// The text at an end: the file's own where it has one, else the number.
static std::string RangeText(const PortObject& obj, int32_t text, int32_t number) {
  const std::string own = TextOf(obj, text);
  return own.empty() ? TextOf(obj, number) : own;
}

static void DrawSlider(Sheet& sheet, const PortObject& obj) {
  DrawLabel(sheet, obj, kButton);
  Bar bar = BarOf(obj);
  const bool endboxes = IsTrue(obj, SHOW_ENDBOXES);
  const std::string least =
      IsTrue(obj, SHOW_RANGE) ? RangeText(obj, MIN_VALUE_STRING, MIN_VALUE) : "";
  const std::string most =
      IsTrue(obj, SHOW_RANGE) ? RangeText(obj, MAX_VALUE_STRING, MAX_VALUE) : "";
  const int box = endboxes ? 9 : 0;
  if (IsTrue(obj, SHOW_VALUE)) {
    // A field for the value stands before the bar, or above an upright one.
    const int width = 3 + std::max(TextWidth(TextOf(obj, MAX_VALUE)), 24);
    DrawInside(sheet, {bar.x, bar.y, width, kLine}, TextOf(obj, INITIAL_VALUE));
    sheet.drawing.Path("M" + At(bar.x, bar.y + kLine) + "h" + std::to_string(width), paint::kLine);
    (bar.upright ? bar.y : bar.x) += bar.upright ? kLine + 6 : width + 8;
  }
  if (bar.upright) {
    sheet.drawing.Text(bar.x + 22, bar.y + 10, most);
    sheet.drawing.Text(bar.x + 22, bar.y + bar.length + 2 * box, least);
    bar.y += box;
  } else {
    sheet.drawing.Text(bar.x, bar.y + 13, least);
    if (!least.empty()) bar.x += TextWidth(least) + 6;
    bar.x += box;
    sheet.drawing.Text(bar.x + bar.length + box + 6, bar.y + 13, most);
  }
  if (endboxes) {
    sheet.drawing.Rect(bar.Part(-8, 6, 3, 14), paint::kRaised);
    sheet.drawing.Rect(bar.Part(bar.length + 2, 6, 3, 14), paint::kRaised);
  }
  sheet.drawing.Rect(bar.Part(0, bar.length, 8, 4), paint::kField, 2);
  sheet.drawing.Rect(bar.Part(0, bar.value, 8, 4), paint::kMark, 2);
  const int drag_box = 12;
  sheet.drawing.Rect(bar.Part(bar.value * (bar.length - drag_box) / bar.length, drag_box, 2, 16),
                     paint::kRaised, 3);
  DrawTicks(sheet, bar, 20);
}

static void DrawGauge(Sheet& sheet, const PortObject& obj) {
  DrawLabel(sheet, obj, kButton);
  const Bar bar = BarOf(obj);
  sheet.drawing.Rect(bar.Part(0, bar.length, 4, 10), paint::kField, 5);
  sheet.drawing.Rect(bar.Part(3, std::max(bar.value - 6, 0), 7, 4), paint::kMark, 2);
  DrawTicks(sheet, bar, 16);
  if (!IsTrue(obj, SHOW_RANGE)) return;
  const std::string least = RangeText(obj, MIN_TICK_STRING, MIN_VALUE);
  const std::string most = RangeText(obj, MAX_TICK_STRING, MAX_VALUE);
  if (bar.upright) {
    sheet.drawing.Text(bar.x + 22, bar.y + 10, most);
    sheet.drawing.Text(bar.x + 22, bar.y + bar.length, least);
  } else {
    sheet.drawing.Text(bar.x, bar.y + 30, least);
    sheet.drawing.Text(bar.x + bar.length - TextWidth(most) / 2, bar.y + 30, most);
  }
}

static void DrawList(Sheet& sheet, const PortObject& obj) {
  DrawLabel(sheet, obj, kButton);
  Box box = ValuePlace(obj);
  const int rows = std::clamp(NumberOf(obj, ROWS, 3), 1, 200);
  if (box.width <= kScrollbar) box.width = 150;
  if (box.height < kButton) box.height = rows * kButton;
  box.width -= kScrollbar;
  DrawScrollbar(sheet, {box.x + box.width, box.y, kScrollbar, box.height});
  sheet.drawing.Rect(box, paint::kLine);
  const std::string title = TextOf(obj, TITLE);
  int y = box.y + 2;
  if (!title.empty()) {
    sheet.drawing.Text(box.x + std::max(box.width - TextWidth(title, true), 8) / 2, y + 13, title,
                       true);
    y += kButton;
    sheet.drawing.Path("M" + At(box.x, y) + "h" + std::to_string(box.width), paint::kLine);
  }
  const int line = std::clamp((box.y + box.height - y) / rows, kLine, kButton);
  const std::vector<std::string> items = TextsOf(obj, INITIAL_LIST_VALUES);
  const std::vector<std::string> glyphs = TextsOf(obj, INITIAL_LIST_GLYPHS);
  const std::vector<int32_t> chosen = TokensOf(obj, INITIAL_SELECTIONS);
  for (std::size_t i = 0; i < items.size() && y + line <= box.y + box.height; ++i, y += line) {
    if (i < chosen.size() && chosen[i] == T) {
      sheet.drawing.Rect({box.x + 2, y, box.width - 4, line}, paint::kChosen);
    }
    int x = box.x + 4;
    if (i < glyphs.size() && !glyphs[i].empty()) {
      const Face face = MakeFace(sheet, glyphs[i], true);
      DrawFace(sheet, face, x, y, line);
      x += face.width + 4;
    }
    DrawInside(sheet, {x, y, box.x + box.width - x, line}, items[i]);
  }
}

// -- settings --

// The arrangement and the look of a setting's choices.
struct ChoiceLook {
  int32_t type;
  int gap;     // between two of them
  int before;  // from a choice's left edge to its label
  int after;
};
static const ChoiceLook kChoiceLooks[] = {
    {EXCLUSIVE, 0, 8, 8}, {NONEXCLUSIVE, 8, 8, 8}, {CHECK, 10, kCheck + 8, 0}};

static const ChoiceLook& LookOfChoices(const PortObject& obj) {
  const int32_t type = TokenOf(obj, SETTING_TYPE, EXCLUSIVE);
  for (const ChoiceLook& look : kChoiceLooks) {
    if (look.type == type) return look;
  }
  return kChoiceLooks[0];
}

static std::vector<Face> ChoiceFaces(Sheet& sheet, const PortObject& obj, int32_t labels,
                                     int32_t types) {
  const std::vector<std::string> texts = TextsOf(obj, labels);
  const std::vector<int32_t> kinds = TokensOf(obj, types);
  std::vector<Face> faces;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    faces.push_back(MakeFace(sheet, texts[i], i < kinds.size() && kinds[i] == GLYPH));
  }
  return faces;
}

static void DrawStackSetting(Sheet& sheet, const PortObject& obj) {
  const Box box = ValuePlace(obj);
  DrawMenuSquare(sheet, box.x, box.y);
  const std::vector<Face> faces = ChoiceFaces(sheet, obj, CHOICES, CHOICE_LABEL_TYPES);
  if (faces.empty()) return;
  const std::vector<int32_t> defaults = TokensOf(obj, CHOICE_DEFAULTS);
  const auto found = std::find(defaults.begin(), defaults.end(), T);
  std::size_t shown = static_cast<std::size_t>(found - defaults.begin());
  if (shown >= faces.size()) shown = 0;
  DrawFace(sheet, faces[shown], box.x + kMark + 8, box.y, kMark);
}

static void DrawChoice(Sheet& sheet, const Face& face, const ChoiceLook& look, const Box& box,
                       bool chosen) {
  if (look.type == CHECK) {
    const int y = box.y + (box.height - kCheck) / 2;
    sheet.drawing.Rect({box.x, y, kCheck, kCheck}, paint::kField);
    if (chosen) {
      sheet.drawing.Path("M" + At(box.x + 2, y + 6) + "l4 5l9 -13",
                         "fill:none;stroke:#333;stroke-width:2");
    }
  } else {
    sheet.drawing.Rect(box, chosen ? paint::kChosen : paint::kRaised);
  }
  DrawFace(sheet, face, box.x + look.before, box.y, box.height);
}

// Choices fill rows or columns downwards; a column is as wide as its widest choice.
static void DrawChoices(Sheet& sheet, const PortObject& obj) {
  const std::vector<Face> faces = ChoiceFaces(sheet, obj, CHOICES, CHOICE_LABEL_TYPES);
  if (faces.empty()) return;
  const ChoiceLook& look = LookOfChoices(obj);
  const std::vector<int32_t> selections = TokensOf(obj, INITIAL_SELECTIONS);
  const std::vector<std::string> colors = TextsOf(obj, CHOICE_COLORS);
  const int count = static_cast<int>(faces.size());
  const int columns = NumberOf(obj, COLUMNS, 0);
  const int rows =
      columns > 0 ? (count + columns - 1) / columns : std::clamp(NumberOf(obj, ROWS, 1), 1, count);
  int height = kButton + 2;
  for (const Face& face : faces) height = std::max(height, face.height + 6);
  const Box place = ValuePlace(obj);
  int x = place.x;
  for (int first = 0; first < count; first += rows) {
    const int end = std::min(first + rows, count);
    int width = 0;
    for (int i = first; i < end; ++i) width = std::max(width, faces[i].width);
    width += look.before + look.after;
    for (int i = first; i < end; ++i) {
      const bool chosen = i < static_cast<int>(selections.size()) && selections[i] == T;
      const std::string color = i < static_cast<int>(colors.size()) ? CssColor(colors[i]) : "";
      sheet.drawing.Open(0, 0, "", color.empty() ? "" : "color:" + color);
      DrawChoice(sheet, faces[i], look,
                 {x, place.y + (i - first) * (height + look.gap / 2), width, height}, chosen);
      sheet.drawing.Close();
    }
    x += width + look.gap;
  }
}

static void DrawSetting(Sheet& sheet, const PortObject& obj) {
  DrawLabel(sheet, obj, kButton + 2);
  if (TokenOf(obj, SETTING_TYPE, EXCLUSIVE) == STACK) {
    DrawStackSetting(sheet, obj);
  } else {
    DrawChoices(sheet, obj);
  }
}

static void DrawDropTarget(Sheet& sheet, const PortObject& obj) {
  Box box = PlaceOf(obj);
  const Face label = LabelFace(sheet, obj, true);
  if (!label.text.empty()) {
    DrawFace(sheet, label, box.x, box.y, box.height, true);
    box.x += label.width + 8;
    box.width = std::max(box.width - label.width - 8, NumberOf(obj, DROP_TARGET_WIDTH, 16) + 4);
  }
  sheet.drawing.Rect(box, paint::kField);
  const std::string glyph = TextOf(obj, NORMAL_DROP_GLYPH);
  if (glyph.empty()) return;
  const Face face = MakeFace(sheet, glyph, true);
  if (face.bitmap) DrawFace(sheet, face, box.x + (box.width - face.width) / 2, box.y, box.height);
}

// -- all types --

static void DrawNothing(Sheet& /*sheet*/, const PortObject& /*obj*/) {}

struct Look {
  int32_t type;
  bool is_pane;
  void (*draw)(Sheet& sheet, const PortObject& obj);
};

// Groups and stacks only arrange others; the sketch outlines groups whose members have places.
static const auto kLooks = std::to_array<Look>({
    {BASE_WINDOW, false, DrawNothing},
    {POPUP_WINDOW, false, DrawNothing},
    {MENU, false, DrawNothing},
    {GROUP, false, DrawNothing},
    {STACK, false, DrawNothing},
    {CONTROL_AREA, true, DrawControlArea},
    {CANVAS_PANE, true, DrawCanvas},
    {TEXT_PANE, true, DrawTextPane},
    {TERM_PANE, true, DrawTerminal},
    {BUTTON, false, DrawButton},
    {MESSAGE, false, DrawMessage},
    {TEXT_FIELD, false, DrawTextField},
    {SLIDER, false, DrawSlider},
    {GAUGE, false, DrawGauge},
    {SCROLLING_LIST, false, DrawList},
    {SETTING, false, DrawSetting},
    {DROP_TARGET, false, DrawDropTarget},
});

static const Look* LookOf(const PortObject& obj) {
  const auto* found = std::find_if(kLooks.begin(), kLooks.end(),
                                   [&obj](const Look& look) { return look.type == obj.type; });
  return found == kLooks.end() ? nullptr : found;
}

void DrawLook(Sheet& sheet, const PortObject& obj) {
  if (const Look* look = LookOf(obj)) look->draw(sheet, obj);
}

bool IsPane(const PortObject& obj) {
  const Look* look = LookOf(obj);
  return look && look->is_pane;
}

Box PlaceOf(const PortObject& obj) {
  Box box{NumberOf(obj, X, 0), NumberOf(obj, Y, 0), NumberOf(obj, WIDTH, 0),
          NumberOf(obj, HEIGHT, 0)};
  if (box.width <= 0) {
    const int label = TextWidth(TextOf(obj, LABEL));
    box.width = obj.type == BUTTON ? label + 32 : obj.type == DROP_TARGET ? 20 : label;
  }
  if (box.height <= 0) box.height = kButton;
  return box;
}

}  // namespace port
