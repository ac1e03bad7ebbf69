// SPDX-License-Identifier: MIT
#include "port/port_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "gil/tokens.h"
#include "model_builder.h"

namespace port {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

static std::string Template() {
  std::ifstream stream(PANDREL_PORT_TEMPLATES "/report.html.mustache");
  return {std::istreambuf_iterator<char>(stream), {}};
}

// What is in texts of hostile files.
static const char kHostile[] = "</script>\"'&<b>\x01\xE9";
static const char kEscaped[] = "&lt;/script&gt;&quot;&#39;&amp;&lt;b&gt;\u2401\u00e9";

class ReportTest : public testing::Test {
 protected:
  ReportTest() : model_(EmptyModel()) {
    input_.model = &model_;
    input_.version = "1.2";
    input_.page_template = Template();
  }

  Connection* AddAction(ConnectionFate fate) {
    Connection connection;
    connection.file = 0;
    connection.from = {"w", "ok"};
    connection.when = {"Notify"};
    connection.fate = fate;
    model_.connections.push_back(connection);
    return &model_.connections.back();
  }

  Model model_;
  ReportInput input_;
};

TEST_F(ReportTest, CountsEverything) {
  AddAction(ConnectionFate::kModule);
  AddAction(ConnectionFate::kConnections);
  AddAction(ConnectionFate::kConnections);
  AddAction(ConnectionFate::kFunction);
  AddAction(ConnectionFate::kLost);
  for (ObjectFate fate :
       {ObjectFate::kShown, ObjectFate::kShown, ObjectFate::kReplaced, ObjectFate::kLost}) {
    model_.objects[AddObject(&model_, BUTTON, "b", -1)].fate = fate;
  }
  input_.faults = ParseLayoutFaults(
      "overlap\tw\na\ncut\tw\ncut\tw\noutside\tw\nicon\tx\t\t\t\t\t\t\tice.xbm\n"
      "color\tx\t\t\t\t\t\t\tBG7\ncolor\tx\t\t\t\t\t\t\tBG8\n");
  input_.missing_colors = {"BG7"};
  model_.missing_bitmaps = {"sun.xbm", "rain.xbm"};
  model_.messages = {"one", "", "two"};
  input_.sketches = {Sketch{}};
  input_.sketches[0].missing_glyphs = {"icons/sun.icon", "fog.icon"};
  EXPECT_EQ(TotalsLine(CountAll(input_)),
            "5 actions: 1 in the module, 2 in connections.c, 1 call of your functions, 1 lost; "
            "4 objects: 2 shown, 1 replaced, 1 lost; 1 overlap; 2 cut texts; "
            "1 control outside its container; 4 missing icons; 2 unknown colours; "
            "2 lines of messages");
}

TEST_F(ReportTest, AddsTotals) {
  AddAction(ConnectionFate::kModule);
  ReportTotals totals = CountAll(input_);
  totals += CountAll(input_);
  EXPECT_EQ(TotalsLine(totals),
            "2 actions: 2 in the module, 0 in connections.c, 0 calls of your functions, 0 lost; "
            "0 objects: 0 shown, 0 replaced, 0 lost");
}

TEST_F(ReportTest, WritesEachActionOnceAsText) {
  Connection* show = AddAction(ConnectionFate::kModule);
  show->function_type = "user_defined";
  show->action = "Show";
  show->to = {"dialog"};
  show->call = "ZoManageCB(\"dialog\")";
  Connection* call = AddAction(ConnectionFate::kFunction);
  call->function_type = "CallFunction";
  call->action = "exit";
  call->call = "exit_()";
  call->reason = "renamed";
  Connection* code = AddAction(ConnectionFate::kFunction);
  code->function_type = "ExecuteCode";
  code->action = "a = 1;\nb();";
  code->function = "w_ok_Notify";
  Connection* lost = AddAction(ConnectionFate::kLost);
  lost->function_type = "user_defined";
  lost->action = "SetLabel";
  lost->arguments = {"x", "y"};
  lost->reason = "no such object";
  EXPECT_EQ(ReportText(input_),
            "FROM    EVENT   ACTION             BECOMES        AS\n"
            "w / ok  Notify  Show dialog        in the module  ZoManageCB(\"dialog\")\n"
            "w / ok  Notify  exit()             your function  exit_(); renamed\n"
            "w / ok  Notify  code: a = 1; b();  your function  w_ok_Notify()\n"
            "w / ok  Notify  SetLabel: x, y     lost           no such object\n"
            "4 actions: 1 in the module, 0 in connections.c, 2 calls of your functions, 1 lost; "
            "0 objects: 0 shown, 0 replaced, 0 lost\n");
}

TEST_F(ReportTest, KeepsControlCharactersFromTheTerminal) {
  AddAction(ConnectionFate::kModule)->action = "\x1B[2J\ta";
  EXPECT_THAT(ReportText(input_), AllOf(HasSubstr("\u241b[2J a"), Not(HasSubstr("\x1B"))));
}

TEST_F(ReportTest, LinesUpWithLettersNotBytes) {
  AddAction(ConnectionFate::kModule)->from = {"\u00e9\u00e9"};
  EXPECT_THAT(ReportText(input_), HasSubstr("\u00e9\u00e9    Notify"));
}

TEST_F(ReportTest, ShowsConnectionsOnThePage) {
  Connection* code = AddAction(ConnectionFate::kFunction);
  code->function_type = "ExecuteCode";
  code->action = "if (a < b) c();";
  code->call = "w_ok_Notify()";
  code->sources = {{"ok", "XmNactivateCallback", ""}, {"toggle", "XmNvalueChangedCallback", "set"}};
  Connection* lost = AddAction(ConnectionFate::kLost);
  lost->reason = "no widget";
  const std::string page = MakeReport(input_);
  EXPECT_THAT(page, HasSubstr("<tr><th scope=\"row\">w / ok</th><td>Notify</td>"
                              "<td>code<pre>if (a &lt; b) c();</pre></td><td>your function</td>"
                              "<td><code>w_ok_Notify()</code></td><td>ok.activateCallback, "
                              "toggle.valueChangedCallback when set</td><td></td></tr>"));
  EXPECT_THAT(page, HasSubstr("<td class=\"lost\">lost</td><td></td><td></td><td>no widget</td>"));
}

TEST_F(ReportTest, NamesTheFileOnlyWhereThereAreSeveral) {
  AddAction(ConnectionFate::kModule);
  AddObject(&model_, BUTTON, "b", -1);
  EXPECT_THAT(MakeReport(input_), Not(HasSubstr("<td>app.G</td>")));
  model_.files.push_back({"other.G", false, false, {}});
  const std::string page = MakeReport(input_);
  EXPECT_THAT(page, HasSubstr("<td></td><td></td><td></td><td>app.G</td></tr>"));
  EXPECT_THAT(page, HasSubstr("<th scope=\"row\">other.G</th><td>not read</td><td>0</td>"));
}

TEST_F(ReportTest, ShowsWhatBecameOfObjects) {
  PortObject& list =
      model_.objects[AddObject(&model_, SCROLLING_LIST, "l", -1, {Text(TITLE, "T")})];
  list.fate = ObjectFate::kShown;
  list.widgets = {{"list", "XmList", ""}, {"l_sw", "XmScrolledWindow", ""}};
  for (int i = 1; i <= 7; ++i) list.widgets.push_back({"x" + std::to_string(i), "XmLabel", ""});
  model_.objects[AddObject(&model_, GROUP, "g", -1)].reason = "no member";
  const std::string page = MakeReport(input_);
  EXPECT_THAT(
      page, HasSubstr("<tr><th scope=\"row\">l</th><td>scrolling-list</td><td>T</td><td>shown</td>"
                      "<td>list (XmList)</td><td>l_sw (XmScrolledWindow), x1 (XmLabel), "
                      "x2 (XmLabel), x3 (XmLabel), x4 (XmLabel), x5 (XmLabel) and 2 more</td>"
                      "<td></td></tr>"));
  EXPECT_THAT(page, HasSubstr("<tr><th scope=\"row\">g</th><td>group</td><td></td>"
                              "<td class=\"lost\">lost</td><td></td><td></td><td>no member</td>"));
}

TEST_F(ReportTest, ShowsPicturesBesideSketches) {
  AddObject(&model_, BASE_WINDOW, "w", -1, {Text(LABEL, "Tool")});
  AddObject(&model_, POPUP_WINDOW, "d", -1, {Word(INITIAL_STATE, INVISIBLE)});
  AddObject(&model_, MENU, "m", -1);
  input_.sketches = DrawSketches(model_, {});
  const std::string file = testing::TempDir() + "report-picture.png";
  std::ofstream(file, std::ios::binary) << "\x89PNG\r\n";
  input_.pictures = {{0, file}, {1, "no-such-file.png"}};
  const std::string page = MakeReport(input_);
  EXPECT_THAT(page, HasSubstr("<h3>w <small>window, \u201cTool\u201d</small></h3>"));
  EXPECT_THAT(page, HasSubstr("<h3>d <small>dialog, hidden at first</small></h3>"));
  EXPECT_THAT(page, HasSubstr(input_.sketches[0].svg + "<figcaption>OPEN LOOK, sketch"));
  EXPECT_THAT(page, HasSubstr(input_.sketches[2].svg + "<figcaption>m</figcaption>"));
  EXPECT_THAT(page, HasSubstr("<img src=\"data:image/png;base64,iVBORw0K\" "
                              "alt=\"Picture of the Motif window for w\">"));
  EXPECT_THAT(page, Not(HasSubstr("window for d")));
  EXPECT_THAT(page, Not(HasSubstr("There are no pictures")));
}

TEST_F(ReportTest, SaysWhyThereAreNoPictures) {
  AddObject(&model_, BASE_WINDOW, "w", -1);
  input_.sketches = DrawSketches(model_, {});
  input_.no_pictures = "Xvfb is not installed";
  EXPECT_THAT(MakeReport(input_),
              HasSubstr("no pictures of the Motif windows: Xvfb is not installed."));
}

TEST_F(ReportTest, ShowsFaultsAndWhatIsMissing) {
  input_.faults = ParseLayoutFaults(
      "overlap\ta\taa\tw\t1\t2\t3\t4\tb\tbb\t5\t6\nicon\tx\t\t\t\t\t\t\tsun.xbm\n");
  input_.missing_colors = {"BG7"};
  model_.missing_bitmaps = {"sun.xbm"};
  input_.sketches = {Sketch{}};
  input_.sketches[0].name = "w";
  input_.sketches[0].missing_glyphs = {"sun.icon", "sun.icon"};
  const std::string page = MakeReport(input_);
  EXPECT_THAT(
      page, HasSubstr("<tr><th scope=\"row\">a (aa)</th><td>overlap</td><td>b (bb)</td><td>5x6</td>"
                      "<td>3x4+1+2</td><td>w</td></tr>"));
  EXPECT_THAT(page, HasSubstr("<tr><td>sun.icon, sun.xbm</td><td>w, the module, x</td></tr>"));
  EXPECT_THAT(page, HasSubstr("<li>BG7</li>"));
}

TEST_F(ReportTest, TellsACleanLayoutFromAnUnmeasuredOne) {
  EXPECT_THAT(MakeReport(input_), HasSubstr("<p>Not measured"));
  input_.checked = true;
  EXPECT_THAT(MakeReport(input_),
              AllOf(HasSubstr("<p>No overlap"), Not(HasSubstr("Not measured"))));
}

TEST_F(ReportTest, ShowsMessagesMendsAndErrors) {
  model_.messages = {"Cannot find a", "", "  b"};
  model_.mends = {"line 3: renamed"};
  model_.error = "syntax error";
  const std::string page = MakeReport(input_);
  EXPECT_THAT(page, HasSubstr("<pre>Cannot find a\n\n  b</pre>"));
  EXPECT_THAT(page, HasSubstr("<pre>line 3: renamed</pre>"));
  EXPECT_THAT(page, HasSubstr("<p class=\"lost\">syntax error</p>"));
}

TEST_F(ReportTest, RefersToNothingOutside) {
  AddObject(&model_, BASE_WINDOW, "w", -1);
  input_.sketches = DrawSketches(model_, {});
  std::string page = MakeReport(input_);
  const std::string name_space = "xmlns=\"http://www.w3.org/2000/svg\"";
  page.erase(page.find(name_space), name_space.size());
  EXPECT_THAT(page, AllOf(Not(HasSubstr("http")), Not(HasSubstr("src=")), Not(HasSubstr("<link")),
                          Not(HasSubstr("@import")), Not(HasSubstr("url("))));
}

TEST_F(ReportTest, RefusesABrokenTemplate) {
  input_.page_template = "{{#open}}";
  try {
    MakeReport(input_);
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_THAT(error.what(), StartsWith("report.html.mustache: "));
  }
}

// A model with hostile text wherever there is text.
class HostileReportTest : public ReportTest {
 protected:
  HostileReportTest() {
    model_.name = kHostile;
    model_.error = kHostile;
    model_.files[0].name = kHostile;
    model_.files.push_back(model_.files[0]);
    model_.messages = {kHostile};
    model_.mends = {kHostile};
    model_.missing_bitmaps = {kHostile};
    for (int32_t type : {BASE_WINDOW, MENU, BUTTON}) {
      const int index = AddObject(&model_, type, kHostile, type == BUTTON ? 0 : -1,
                                  {Text(LABEL, kHostile), Text(FOREGROUND_COLOR, kHostile),
                                   Texts(MENU_ITEM_LABELS, {kHostile})});
      model_.objects[index].reason = kHostile;
      model_.objects[index].widgets = {{kHostile, kHostile, ""}, {kHostile, kHostile, ""}};
    }
    Connection* action = AddAction(ConnectionFate::kFunction);
    action->from = action->to = action->when = action->arguments = {kHostile};
    action->action = action->call = action->function = action->reason = kHostile;
    action->sources = {{kHostile, kHostile, ""}};
    action->function_type = "ExecuteCode";
    model_.connections.push_back(model_.connections[0]);
    model_.connections[1].function_type = "CallFunction";
    input_.sketches = DrawSketches(model_, {});
    input_.no_pictures = kHostile;
    std::string line = "overlap";
    for (int i = 0; i < 11; ++i) line += std::string("\t") + kHostile;
    input_.faults = ParseLayoutFaults(line);
    input_.missing_colors = {kHostile};
    input_.version = kHostile;
  }
};

TEST_F(HostileReportTest, EscapesWhateverComesFromFiles) {
  const std::string page = MakeReport(input_);
  EXPECT_THAT(page, AllOf(Not(HasSubstr("</script>")), Not(HasSubstr("<b>")),
                          Not(HasSubstr("\x01")), Not(HasSubstr("\xE9&"))));
  EXPECT_THAT(page, HasSubstr(std::string("<title>") + kEscaped + ": report"));
  EXPECT_THAT(page, HasSubstr(std::string("<pre>") + kEscaped + "</pre>"));
  EXPECT_THAT(page, HasSubstr(std::string("<li>") + kEscaped + "</li>"));
}

TEST_F(HostileReportTest, IsValidForTidy) {
  const std::string file = testing::TempDir() + "report.html";
  std::ofstream(file) << MakeReport(input_);
  if (std::system("command -v tidy > /dev/null") != 0) GTEST_SKIP() << "tidy is not installed";
  EXPECT_EQ(std::system(("tidy -quiet -errors " + file).c_str()), 0);
}

}  // namespace port
