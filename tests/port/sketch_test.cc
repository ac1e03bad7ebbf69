// SPDX-License-Identifier: MIT
#include "port/sketch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "gil/tokens.h"
#include "model_builder.h"

namespace port {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

static std::string RectStart(int x, int y, int width, int height) {
  return "<rect x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" width=\"" +
         std::to_string(width) + "\" height=\"" + std::to_string(height) + "\"";
}

static auto HasRect(int x, int y, int width, int height, const std::string& rest = "") {
  return HasSubstr(RectStart(x, y, width, height) + rest);
}

static auto HasText(int x, int y, const std::string& text) {
  return HasSubstr("<text x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\">" + text +
                   "</text>");
}

static auto HasBold(int x, int y, const std::string& text) {
  return HasSubstr("<text x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) +
                   "\" font-weight=\"bold\">" + text + "</text>");
}

static const char kRaised[] = " style=\"fill:#ddd;stroke:#333\"";
static const char kField[] = " style=\"fill:#fff;stroke:#333\"";
static const char kChosen[] = " style=\"fill:#bbb;stroke:#333;stroke-width:2\"";

static std::vector<Sketch> Draw(const Model& model) { return DrawSketches(model, {}); }

// The sketch of a window, 400 x 200, that holds one object.
static std::string DrawOne(int32_t type, const std::vector<GilAttribute>& attributes) {
  Model model = EmptyModel();
  const int window =
      AddObject(&model, BASE_WINDOW, "w", -1, {Number(WIDTH, 400), Number(HEIGHT, 200)});
  AddObject(&model, type, "o", window, attributes);
  return Draw(model)[0].svg;
}

// -- windows --

TEST(SketchTest, DrawsAWindowWithItsTitleInTheMiddle) {
  Model model = EmptyModel();
  AddObject(&model, BASE_WINDOW, "w", -1,
            {Number(WIDTH, 200), Number(HEIGHT, 100), Text(LABEL, "Tool")});
  const std::vector<Sketch> sketches = Draw(model);
  ASSERT_EQ(sketches.size(), 1u);
  EXPECT_EQ(sketches[0].kind, SketchKind::kWindow);
  EXPECT_EQ(sketches[0].object, 0);
  EXPECT_EQ(sketches[0].name, "w");
  EXPECT_EQ(sketches[0].title, "Tool");
  EXPECT_FALSE(sketches[0].hidden);
  EXPECT_EQ(sketches[0].width, 200);
  EXPECT_EQ(sketches[0].height, 126);
  EXPECT_THAT(sketches[0].svg, AllOf(HasRect(0, 0, 200, 126), HasRect(0, 26, 200, 100),
                                     HasBold(85, 17, "Tool"), HasRect(5, 5, 16, 16, kRaised),
                                     HasSubstr("aria-label=\"Sketch of w: base-window\"")));
  EXPECT_THAT(sketches[0].svg, Not(HasSubstr("stroke-width:3")));
}

TEST(SketchTest, DrawsFootersAndCornersAndColours) {
  Model model = EmptyModel();
  AddObject(&model, BASE_WINDOW, "w", -1,
            {Number(WIDTH, 200), Number(HEIGHT, 100), Word(SHOW_FOOTER, T), Word(RESIZABLE, T),
             Text(BACKGROUND_COLOR, "Light Blue")});
  const Sketch sketch = Draw(model)[0];
  EXPECT_EQ(sketch.height, 146);
  EXPECT_THAT(sketch.svg,
              AllOf(HasRect(0, 126, 200, 20, " style=\"fill:#ccc;stroke:#333;fill:lightblue\""),
                    HasSubstr("M0 10V0H10 M200 10v-10h-10 M0 136V146H10 M200 136v10h-10")));
}

TEST(SketchTest, MakesRoomForTheContentsOfAWindowWithoutASize) {
  Model model = EmptyModel();
  const int window = AddObject(&model, BASE_WINDOW, "w", -1);
  AddObject(&model, CONTROL_AREA, "c", window, At(10, 20, 300, 150));
  const Sketch sketch = Draw(model)[0];
  EXPECT_EQ(sketch.width, 310);
  EXPECT_EQ(sketch.height, 170 + 26);
}

TEST(SketchTest, TellsDialogsAndTheirPins) {
  Model model = EmptyModel();
  AddObject(&model, POPUP_WINDOW, "d", -1, {Word(INITIAL_STATE, INVISIBLE)});
  AddObject(&model, POPUP_WINDOW, "p", -1, {Word(PINNED, T)});
  const std::vector<Sketch> sketches = Draw(model);
  EXPECT_EQ(sketches[0].kind, SketchKind::kDialog);
  EXPECT_TRUE(sketches[0].hidden);
  EXPECT_THAT(sketches[0].svg, AllOf(HasSubstr("M10 13h6"), Not(HasSubstr("a5 5"))));
  EXPECT_FALSE(sketches[1].hidden);
  EXPECT_THAT(sketches[1].svg, AllOf(HasSubstr("M13 12a5 5"), Not(HasSubstr("M10 13h6"))));
}

// -- panes --

TEST(SketchTest, DrawsAControlAreaAndWhatItHoldsAtItsPlace) {
  Model model = EmptyModel();
  const int window = AddObject(&model, BASE_WINDOW, "w", -1);
  const int area =
      AddObject(&model, CONTROL_AREA, "c", window,
                At(10, 20, 100, 50, {Word(SHOW_BORDER, T), Text(BACKGROUND_COLOR, "red")}));
  AddObject(&model, MESSAGE, "m", area, At(3, 4, 20, 13, {Text(LABEL, "Hi")}));
  const std::string svg = Draw(model)[0].svg;
  EXPECT_THAT(svg, HasRect(10, 20, 100, 50, " style=\"fill:#ccc;stroke:#333;fill:red\""));
  EXPECT_THAT(svg, HasSubstr("<g transform=\"translate(10 20)\">\n<g><title>m: message</title>\n"
                             "<text x=\"3\" y=\"15\">Hi</text>"));
}

TEST(SketchTest, LeavesOutTheBorderThatIsNotShown) {
  EXPECT_THAT(DrawOne(CONTROL_AREA, At(10, 20, 100, 50)),
              HasRect(10, 20, 100, 50, " style=\"fill:#ccc\""));
}

TEST(SketchTest, DrawsACanvasWithTheScrollbarsThatItHas) {
  const std::string plain = DrawOne(CANVAS_PANE, At(10, 20, 100, 150));
  EXPECT_THAT(plain, AllOf(HasRect(10, 20, 100, 150, kField), Not(HasRect(95, 20, 12, 6)),
                           Not(HasRect(10, 155, 6, 12))));
  const std::string both =
      DrawOne(CANVAS_PANE,
              At(10, 20, 100, 150, {Word(VERTICAL_SCROLLBAR, T), Word(HORIZONTAL_SCROLLBAR, T)}));
  EXPECT_THAT(both, AllOf(HasRect(95, 20, 12, 6, kRaised), HasRect(10, 155, 6, 12, kRaised)));
}

TEST(SketchTest, DrawsATextPaneWithACaretUnlessItIsReadOnly) {
  const std::string svg = DrawOne(TEXT_PANE, At(10, 20, 100, 150));
  EXPECT_THAT(svg, AllOf(HasRect(10, 20, 100, 150, kField), HasRect(95, 20, 12, 6, kRaised),
                         HasSubstr("M14 37l4 -5l4 5z")));
  EXPECT_THAT(DrawOne(TEXT_PANE, At(10, 20, 100, 150, {Word(READ_ONLY, T)})),
              Not(HasSubstr("M14 37l4 -5l4 5z")));
}

TEST(SketchTest, DrawsATerminalWithAPromptAndACursor) {
  EXPECT_THAT(
      DrawOne(TERM_PANE, At(10, 20, 100, 150)),
      AllOf(HasRect(10, 20, 100, 150, kField), HasText(14, 34, "%"), HasRect(30, 24, 7, 12)));
}

// -- controls --

TEST(SketchTest, DrawsAButtonWithItsLabelInTheMiddle) {
  const std::string svg = DrawOne(BUTTON, At(10, 20, 60, 19, {Text(LABEL, "OK")}));
  EXPECT_THAT(svg, AllOf(HasRect(10, 20, 60, 20, std::string(" rx=\"10\"") + kRaised),
                         HasText(32, 34, "OK"), Not(HasSubstr("M50 27h9"))));
}

TEST(SketchTest, MarksAMenuButton) {
  EXPECT_THAT(DrawOne(BUTTON, At(10, 20, 60, 19, {Text(LABEL, "OK"), Text(MENU, "m")})),
              AllOf(HasText(24, 34, "OK"), HasSubstr("M50 27h9")));
}

TEST(SketchTest, DrawsAnAbbreviatedButtonAsASquareBehindItsLabel) {
  EXPECT_THAT(
      DrawOne(BUTTON, At(10, 20, 60, 19, {Text(LABEL, "OK"), Word(BUTTON_TYPE, ABBREVIATED)})),
      AllOf(HasBold(10, 34, "OK"), HasRect(52, 20, 18, 18, kRaised)));
}

TEST(SketchTest, DrawsMessagesInTheirWeight) {
  EXPECT_THAT(DrawOne(MESSAGE, At(10, 20, 90, 13, {Text(LABEL, "Hi")})), HasText(10, 31, "Hi"));
  EXPECT_THAT(DrawOne(MESSAGE, At(10, 20, 90, 13, {Text(LABEL, "Hi"), Word(LABEL_BOLD, T)})),
              HasBold(10, 31, "Hi"));
}

static std::vector<GilAttribute> FieldAt(std::initializer_list<GilAttribute> others) {
  std::vector<GilAttribute> all = At(
      10, 20, 150, 15,
      {Text(LABEL, "Name:"), Number(VALUE_X, 60), Number(VALUE_Y, 20), Text(INITIAL_VALUE, "Bob")});
  all.insert(all.begin(), others);
  return all;
}

TEST(SketchTest, DrawsATextFieldUnderlinedWhenItCanBeChanged) {
  EXPECT_THAT(DrawOne(TEXT_FIELD, FieldAt({})),
              AllOf(HasBold(10, 32, "Name:"), HasText(62, 32, "Bob"), HasSubstr("\"M60 35h100\"")));
  EXPECT_THAT(DrawOne(TEXT_FIELD, FieldAt({Word(READ_ONLY, T)})),
              AllOf(HasText(62, 32, "Bob"), Not(HasSubstr("M60 35h100"))));
  EXPECT_THAT(DrawOne(TEXT_FIELD, FieldAt({Word(VALUE_UNDERLINED, NIL)})),
              Not(HasSubstr("M60 35h100")));
}

TEST(SketchTest, CutsAValueThatIsLongerThanItsField) {
  EXPECT_THAT(DrawOne(TEXT_FIELD, FieldAt({Text(INITIAL_VALUE, std::string(50, 'a'))})),
              HasText(62, 32, std::string(13, 'a') + "\u2026"));
}

TEST(SketchTest, DrawsTwoButtonsBehindANumber) {
  EXPECT_THAT(DrawOne(TEXT_FIELD, FieldAt({Word(TEXT_TYPE, NUMERIC), Number(INITIAL_VALUE, 42)})),
              AllOf(HasText(62, 32, "42"), HasSubstr("\"M60 35h60\""),
                    HasRect(124, 20, 18, 15, kRaised), HasRect(142, 20, 18, 15, kRaised),
                    HasSubstr("\"M129 30h8l-4 -6z\""), HasSubstr("\"M147 25h8l-4 6z\"")));
}

TEST(SketchTest, DrawsAFieldOfManyLinesAsABox) {
  EXPECT_THAT(
      DrawOne(TEXT_FIELD, FieldAt({Word(TEXT_TYPE, MULTILINE), Number(ROWS, 3),
                                   Text(INITIAL_VALUE, "one\ntwo")})),
      AllOf(HasRect(60, 20, 100, 51, kField), HasText(64, 34, "one"), HasText(64, 49, "two")));
}

static std::vector<GilAttribute> BarAt(std::initializer_list<GilAttribute> others) {
  std::vector<GilAttribute> all =
      At(10, 20, 200, 20,
         {Number(VALUE_X, 10), Number(VALUE_Y, 20), Number(SLIDER_WIDTH, 100), Number(MIN_VALUE, 0),
          Number(MAX_VALUE, 50), Number(INITIAL_VALUE, 25)});
  all.insert(all.end(), others);
  return all;
}

TEST(SketchTest, DrawsASliderFilledUpToItsValue) {
  EXPECT_THAT(DrawOne(SLIDER, BarAt({})),
              AllOf(HasRect(10, 28, 100, 4, std::string(" rx=\"2\"") + kField),
                    HasRect(10, 28, 50, 4), HasRect(54, 22, 12, 16)));
}

TEST(SketchTest, DrawsAnUprightSliderFromTheFoot) {
  EXPECT_THAT(DrawOne(SLIDER, BarAt({Word(ORIENTATION, VERTICAL)})),
              AllOf(HasRect(18, 20, 4, 100), HasRect(18, 70, 4, 50), HasRect(12, 64, 16, 12)));
}

TEST(SketchTest, PutsAValueWithoutARangeAtTheBeginning) {
  EXPECT_THAT(
      DrawOne(SLIDER, At(10, 20, 200, 20,
                         {Number(SLIDER_WIDTH, 100), Number(MIN_VALUE, 5), Number(MAX_VALUE, 5)})),
      AllOf(HasRect(10, 28, 0, 4), HasRect(10, 22, 12, 16)));
}

TEST(SketchTest, DrawsWhatASliderShowsBesides) {
  const std::string svg =
      DrawOne(SLIDER, BarAt({Word(SHOW_VALUE, T), Word(SHOW_RANGE, T), Word(SHOW_ENDBOXES, T),
                             Number(TICKS, 3), Text(MAX_VALUE_STRING, "full")}));
  // The value fills 27 pixels and a gap of 8, the least value 7 and 6, an end box 9.
  EXPECT_THAT(svg, AllOf(HasText(12, 32, "25"), HasText(45, 33, "0"), HasRect(67, 28, 100, 4),
                         HasText(182, 33, "full"), HasRect(59, 23, 6, 14, kRaised),
                         HasRect(169, 23, 6, 14, kRaised)));
  EXPECT_THAT(svg, AllOf(HasRect(67, 40, 1, 4), HasRect(116, 40, 1, 4), HasRect(166, 40, 1, 4)));
}

TEST(SketchTest, DrawsAGauge) {
  EXPECT_THAT(
      DrawOne(GAUGE, BarAt({Word(SHOW_RANGE, T), Number(TICKS, 1)})),
      AllOf(HasRect(10, 24, 100, 10, std::string(" rx=\"5\"") + kField), HasRect(13, 27, 44, 4),
            HasText(10, 50, "0"), HasText(103, 50, "50"), HasRect(10, 36, 1, 4)));
}

TEST(SketchTest, DrawsTheTitleAndTheItemsOfAList) {
  const std::string svg =
      DrawOne(SCROLLING_LIST,
              At(10, 20, 200, 100,
                 {Number(VALUE_X, 10), Number(VALUE_Y, 40), Number(ROWS, 4), Text(TITLE, "T"),
                  Texts(INITIAL_LIST_VALUES, {"a", "b"}), Words(INITIAL_SELECTIONS, {NIL, T})}));
  EXPECT_THAT(svg,
              AllOf(HasRect(10, 40, 182, 80), HasBold(96, 55, "T"), HasSubstr("\"M10 62h182\""),
                    HasText(16, 74, "a"), HasRect(12, 77, 178, 15, kChosen), HasText(16, 89, "b"),
                    Not(HasRect(12, 62, 178, 15))));
}

TEST(SketchTest, DrawsTheGlyphsOfItemsAndCutsTheirTexts) {
  const std::string svg =
      DrawOne(SCROLLING_LIST, At(10, 20, 118, 100,
                                 {Number(ROWS, 5), Texts(INITIAL_LIST_GLYPHS, {"", "g"}),
                                  Texts(INITIAL_LIST_VALUES, {std::string(50, 'a'), "b"})}));
  // 100 pixels without the scrollbar, 4 and 2 of them before the text: 12 letters and the dots.
  EXPECT_THAT(svg, AllOf(HasText(16, 34, std::string(12, 'a') + "\u2026"),
                         // The name of a missing glyph, 7 pixels, in a box with 4 on each side.
                         HasText(18, 54, "g"), HasText(35, 53, "b")));
}

static std::vector<GilAttribute> ChoicesAt(int32_t type,
                                           std::initializer_list<GilAttribute> others = {}) {
  std::vector<GilAttribute> all =
      At(10, 20, 200, 22,
         {Number(VALUE_X, 50), Number(VALUE_Y, 20), Text(LABEL, "L:"), Texts(CHOICES, {"a", "b"}),
          Words(INITIAL_SELECTIONS, {NIL, T}), Word(SETTING_TYPE, type)});
  all.insert(all.end(), others);
  return all;
}

TEST(SketchTest, DrawsTheChoicesOfASetting) {
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(EXCLUSIVE)),
              AllOf(HasBold(10, 35, "L:"), HasRect(50, 20, 23, 22, kRaised), HasText(58, 35, "a"),
                    HasRect(73, 20, 23, 22, kChosen)));
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(NONEXCLUSIVE)),
              AllOf(HasRect(50, 20, 23, 22, kRaised), HasRect(81, 20, 23, 22, kChosen)));
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(CHECK)),
              AllOf(HasRect(50, 24, 13, 13, kField), HasRect(88, 24, 13, 13, kField),
                    HasSubstr("\"M90 30l4 5"), Not(HasSubstr("\"M52 30l4 5"))));
}

TEST(SketchTest, DrawsChoicesInTheirColours) {
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(EXCLUSIVE, {Texts(CHOICE_COLORS, {"", "red"})})),
              HasSubstr("<g style=\"color:red\">\n" + RectStart(73, 20, 23, 22)));
}

TEST(SketchTest, PutsChoicesIntoColumnsOrRows) {
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(EXCLUSIVE, {Number(COLUMNS, 1)})),
              HasRect(50, 42, 23, 22, kChosen));
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(EXCLUSIVE, {Number(COLUMNS, 0), Number(ROWS, 2)})),
              HasRect(50, 42, 23, 22, kChosen));
}

TEST(SketchTest, ShowsTheDefaultOfAStackSetting) {
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(STACK, {Words(CHOICE_DEFAULTS, {NIL, T})})),
              AllOf(HasRect(50, 20, 18, 18, kRaised), HasText(76, 33, "b"), Not(HasSubstr(">a<"))));
  EXPECT_THAT(DrawOne(SETTING, ChoicesAt(STACK, {Words(CHOICE_DEFAULTS, {NIL, NIL})})),
              HasText(76, 33, "a"));
}

TEST(SketchTest, DrawsADropTarget) {
  EXPECT_THAT(DrawOne(DROP_TARGET, At(10, 20, 18, 16)), HasRect(10, 20, 18, 16, kField));
}

TEST(SketchTest, PutsTheLabelBeforeADropTarget) {
  EXPECT_THAT(
      DrawOne(DROP_TARGET, At(10, 20, 60, 16, {Text(LABEL, "a:"), Number(DROP_TARGET_WIDTH, 12)})),
      AllOf(HasBold(10, 32, "a:"), HasRect(31, 20, 39, 16, kField)));
}

TEST(SketchTest, PutsALabelAboveWhereTheFileSaysSo) {
  EXPECT_THAT(DrawOne(TEXT_FIELD, At(10, 20, 150, 35,
                                     {Text(LABEL, "Name:"), Number(VALUE_X, 10),
                                      Number(VALUE_Y, 40), Word(LAYOUT_TYPE, VERTICAL)})),
              AllOf(HasBold(10, 32, "Name:"), HasSubstr("\"M10 55h150\"")));
}

TEST(SketchTest, PaintsInTheColourAndStateOfTheObject) {
  EXPECT_THAT(DrawOne(MESSAGE, At(0, 0, 9, 9,
                                  {Text(LABEL, "a"), Text(FOREGROUND_COLOR, "red"),
                                   Word(INITIAL_STATE, INACTIVE)})),
              HasSubstr("<g style=\"color:red;opacity:.5\"><title>o: message</title>"));
  EXPECT_THAT(DrawOne(MESSAGE, At(0, 0, 9, 9, {Text(LABEL, "a"), Word(INITIAL_STATE, INVISIBLE)})),
              HasSubstr("<g style=\"opacity:.35\"><title>o: message, hidden at first</title>"));
}

// -- what stands elsewhere --

TEST(SketchTest, GivesAHiddenPaneASketchOfItsOwn) {
  Model model = EmptyModel();
  const int window = AddObject(&model, BASE_WINDOW, "w", -1);
  const int area = AddObject(&model, CONTROL_AREA, "c", window,
                             At(10, 20, 100, 50, {Word(INITIAL_STATE, INVISIBLE)}));
  AddObject(&model, MESSAGE, "m", area, At(3, 4, 20, 13, {Text(LABEL, "Hi")}));
  const std::vector<Sketch> sketches = Draw(model);
  ASSERT_EQ(sketches.size(), 2u);
  EXPECT_THAT(
      sketches[0].svg,
      AllOf(HasRect(10, 20, 100, 50, " style=\"fill:none;stroke:#666;stroke-dasharray:4 3\""),
            Not(HasSubstr(">Hi<"))));
  EXPECT_EQ(sketches[1].kind, SketchKind::kPart);
  EXPECT_EQ(sketches[1].object, area);
  EXPECT_TRUE(sketches[1].hidden);
  EXPECT_EQ(sketches[1].width, 108);
  EXPECT_EQ(sketches[1].height, 58);
  EXPECT_THAT(sketches[1].svg, AllOf(HasSubstr("translate(-6 -16)"), HasSubstr("translate(10 20)"),
                                     HasText(3, 15, "Hi")));
}

TEST(SketchTest, GivesWhatNoWindowHoldsASketch) {
  Model model = EmptyModel();
  AddObject(&model, BUTTON, "lost", -1, At(10, 20, 60, 20, {Text(LABEL, "OK")}));
  AddObject(&model, GROUP, "g", -1);
  AddObject(&model, STACK, "s", -1);
  const std::vector<Sketch> sketches = Draw(model);
  ASSERT_EQ(sketches.size(), 1u);
  EXPECT_EQ(sketches[0].name, "lost");
  EXPECT_THAT(sketches[0].svg, HasText(32, 34, "OK"));
}

TEST(SketchTest, OutlinesGroupsAroundTheirMembers) {
  Model model = EmptyModel();
  const int window = AddObject(&model, BASE_WINDOW, "w", -1);
  AddObject(&model, MESSAGE, "a", window, At(10, 20, 30, 13));
  AddObject(&model, MESSAGE, "b", window, At(50, 60, 30, 13));
  AddObject(&model, GROUP, "inner", -1, {Texts(MEMBERS, {"b", "outer", "nobody"})});
  AddObject(&model, GROUP, "outer", -1, {Texts(MEMBERS, {"a", "inner"})});
  const std::string svg = Draw(model)[0].svg;
  EXPECT_THAT(svg, HasSubstr("<title>inner: group</title>\n" + RectStart(8, 18, 74, 57)));
  EXPECT_THAT(svg, HasSubstr("<title>outer: group</title>\n" + RectStart(8, 18, 74, 57)));
}

TEST(SketchTest, DrawsMenus) {
  Model model = EmptyModel();
  AddObject(&model, MENU, "m", -1,
            {Texts(MENU_ITEM_LABELS, {"Open", "Sub", "Quit"}),
             Words(MENU_ITEM_STATES, {ACTIVE, ACTIVE, INACTIVE}),
             Words(MENU_ITEM_DEFAULTS, {T, NIL, NIL}), Texts(MENU_ITEM_MENUS, {"", "s", ""}),
             Texts(MENU_ITEM_COLORS, {"", "red", ""}), Text(MENU_TITLE, "M"), Word(PINNABLE, T)});
  const Sketch sketch = Draw(model)[0];
  EXPECT_EQ(sketch.kind, SketchKind::kMenu);
  EXPECT_EQ(sketch.title, "M");
  // An item is as wide as the title and its pin, (12 + 40), or "Sub" with its mark, 22 + 36.
  EXPECT_EQ(sketch.width, 58 + 8);
  EXPECT_EQ(sketch.height, 3 * 22 + 8 + 26);
  EXPECT_THAT(sketch.svg,
              AllOf(HasSubstr("M10 13h6"), HasBold(30, 17, "M"),
                    HasRect(4, 30, 58, 22, " rx=\"11\" style=\"fill:none;stroke:#333\""),
                    HasText(14, 45, "Open"), HasText(14, 67, "Sub"), HasSubstr("\"M46 59v9"),
                    HasSubstr("<g style=\"color:red\">"), HasSubstr("opacity:.5"),
                    HasText(14, 89, "Quit")));
}

TEST(SketchTest, DrawsTheChoicesOfAMenuInItsColumns) {
  Model model = EmptyModel();
  AddObject(&model, MENU, "m", -1,
            {Texts(MENU_ITEM_LABELS, {"a", "b"}), Word(MENU_TYPE, EXCLUSIVE), Number(COLUMNS, 2),
             Words(INITIAL_SELECTIONS, {NIL, T})});
  EXPECT_THAT(Draw(model)[0].svg,
              AllOf(HasRect(4, 4, 40, 22, kRaised), HasRect(44, 4, 40, 22, kChosen)));
}

// -- glyphs --

TEST(SketchTest, DrawsGlyphsAndTellsMissingOnes) {
  const fs::path folder = fs::path(testing::TempDir()) / "sketch-glyphs";
  fs::create_directories(folder);
  std::ofstream(folder / "a.icon") << "/* Width=16, Height=1, Valid_bits_per_item=16 */ 0xF000";
  Model model = EmptyModel();
  const int window = AddObject(&model, BASE_WINDOW, "w", -1);
  AddObject(&model, MESSAGE, "a", window,
            At(10, 20, 16, 1, {Text(LABEL, "a.icon"), Word(LABEL_TYPE, GLYPH)}));
  AddObject(&model, MESSAGE, "b", window,
            At(10, 30, 16, 1, {Text(LABEL, "b.icon"), Word(LABEL_TYPE, GLYPH)}));
  const Sketch sketch = DrawSketches(model, {folder})[0];
  EXPECT_THAT(sketch.svg, AllOf(HasSubstr("d=\"M10 20h4v1h-4z\""), HasSubstr(">b.icon<")));
  EXPECT_THAT(sketch.missing_glyphs, ElementsAre("b.icon"));
  fs::remove_all(folder);
}

// -- hostile files --

TEST(SketchTest, EscapesNamesAndTexts) {
  Model model = EmptyModel();
  AddObject(&model, BASE_WINDOW, "</title></svg><script>", -1,
            {Number(WIDTH, 300), Text(LABEL, "\"><b>&\x01\xE9")});
  const Sketch sketch = Draw(model)[0];
  EXPECT_THAT(sketch.svg, AllOf(Not(HasSubstr("<script")), Not(HasSubstr("<b>")),
                                HasSubstr("&quot;&gt;&lt;b&gt;&amp;\u2401\u00e9")));
  EXPECT_EQ(sketch.title, "\"><b>&\u2401\u00e9");
}

TEST(SketchTest, SurvivesHugeNumbersAndDeepOwners) {
  Model model = EmptyModel();
  int owner = AddObject(&model, BASE_WINDOW, "w", -1);
  for (int i = 0; i < 20000; ++i) {
    owner = AddObject(&model, CONTROL_AREA, "c", owner, At(2147483647, -2147483647, 2147483647, 1));
  }
  AddObject(&model, SLIDER, "s", 0,
            BarAt({Number(TICKS, 2147483647), Number(COLUMNS, -2147483647)}));
  AddObject(&model, SLIDER, "t", 0,
            {Number(SLIDER_WIDTH, 2147483647), Number(MIN_VALUE, -2147483647),
             Number(MAX_VALUE, 2147483647), Number(INITIAL_VALUE, 2147483647)});
  EXPECT_LT(Draw(model)[0].svg.size(), 100000u);
}

TEST(SketchTest, DrawsObjectsWithoutAnyAttribute) {
  for (int32_t type :
       {BASE_WINDOW, BUTTON, CANVAS_PANE, CONTROL_AREA, DROP_TARGET, GAUGE, GROUP, MENU, MESSAGE,
        POPUP_WINDOW, SCROLLING_LIST, SETTING, SLIDER, STACK, TERM_PANE, TEXT_FIELD, TEXT_PANE}) {
    EXPECT_THAT(DrawOne(type, {}), HasSubstr("</svg>"));
  }
  EXPECT_THAT(Draw(EmptyModel()), IsEmpty());
}

}  // namespace port
