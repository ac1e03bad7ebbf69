// SPDX-License-Identifier: MIT
// Names, texts and code of an interface through pandrel-port's writers. The input is the texts,
// with 0x1C between them; a first byte tells how many objects and actions share them.
//
// What comes out is made twice, of these texts and of harmless ones in their places: it must have
// the same shape (text_shapes.h), as no text may leave the comment, string, rule or element that it
// stands in. A second run adds nothing to callbacks.c and keeps what is there.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "gil/tokens.h"
#include "port/code.h"
#include "port/functions.h"
#include "port/generate.h"
#include "port/port_report.h"
#include "port/port_session.h"
#include "text_shapes.h"

namespace {

constexpr char kSeparator = 0x1C;

void Fail(const std::string& file, const std::string& what, const std::string& text) {
  std::fprintf(stderr, "%s: %s:\n%s\n", file.c_str(), what.c_str(), text.c_str());
  std::abort();
}

// The texts of an input, or harmless ones that are equal and empty where those are.
class Texts {
 public:
  Texts(std::string_view input, bool harmless) : harmless_(harmless) {
    for (;;) {
      const std::size_t end = std::min(input.find(kSeparator), input.size());
      texts_.emplace_back(input.substr(0, end));
      if (end == input.size()) break;
      input.remove_prefix(end + 1);
    }
  }

  std::string Next() {
    const std::string& text = texts_[next_++ % texts_.size()];
    return harmless_ && !text.empty() ? "text" + std::to_string(Place(text)) : text;
  }

  // What stands for a piece of code must go to the same place.
  std::string NextCode() {
    const std::string& text = texts_[next_++ % texts_.size()];
    if (!harmless_ || text.empty()) return text;
    switch (port::PlaceOfCode(text)) {
      case port::CodePlace::kLive:
        return "exit(0);";
      case port::CodePlace::kDead:
        return "text();";
      case port::CodePlace::kComment:
        break;
    }
    return "#text";
  }

 private:
  std::size_t Place(const std::string& text) {
    return places_.emplace(text, places_.size()).first->second;
  }

  std::vector<std::string> texts_;
  std::size_t next_ = 0;
  bool harmless_;
  std::map<std::string, std::size_t> places_;
};

port::GilAttribute LabelOf(const std::string& text) {
  return {LABEL, {{port::GilValue::Kind::kString, 0, text}}};
}

port::GilAttribute Size(int32_t name, int number) {
  return {name, {{port::GilValue::Kind::kInteger, number, std::to_string(number)}}};
}

// Names of widgets are words: the mender sees to that.
void AddObject(port::Model& model, int32_t type, Texts& texts) {
  port::PortObject object;
  object.file = 0;
  object.type = type;
  object.name = texts.Next();
  object.reason = texts.Next();
  object.fate = object.reason.empty() ? port::ObjectFate::kShown : port::ObjectFate::kLost;
  object.attributes = {LabelOf(texts.Next()), Size(WIDTH, 100), Size(HEIGHT, 30),
                       Size(STORED_LENGTH, 3)};
  object.widgets.push_back({"w" + std::to_string(model.objects.size()), "XmText", texts.Next()});
  const int index = static_cast<int>(model.objects.size());
  object.parent = index > 0 ? 0 : -1;
  model.objects.push_back(object);
  model.files[0].objects.push_back(index);
  if (index > 0) model.objects[0].children.push_back(index);
}

void AddConnection(port::Model& model, const char* type, Texts& texts) {
  port::Connection connection;
  connection.file = 0;
  connection.object = connection.from_object = 0;
  connection.number = static_cast<int>(model.connections.size());
  connection.function_type = type;
  connection.from = {texts.Next()};
  connection.from_item = texts.Next();
  connection.to = {texts.Next()};
  connection.when = {texts.Next()};
  const bool code = connection.function_type == "ExecuteCode";
  connection.action = code ? texts.NextCode() : texts.Next();
  connection.arguments = {texts.Next()};
  connection.reason = texts.Next();
  if (connection.reason.empty()) {
    connection.fate = port::ConnectionFate::kConnections;
    connection.sources.push_back({texts.Next(), texts.Next(), ""});
  }
  if (connection.function_type == "user_defined") {
    connection.procedure = "SetLabel";
    connection.procedure_widget = "label";
    connection.argument = texts.Next();
    connection.call = "SetLabel(" + connection.argument + ")";
  }
  model.connections.push_back(connection);
}

void AddWindow(port::Model& model, Texts& texts) {
  port::PortWindow window;
  window.object = 0;
  window.shell = texts.Next();
  window.owner = texts.Next();
  window.title = texts.Next();
  window.work = {texts.Next()};
  window.popups = {texts.Next()};
  window.resources = {{texts.Next(), texts.Next()}};
  model.windows.push_back(window);
}

port::Model MakeModel(Texts texts, unsigned counts) {
  port::Session session;
  port::Model& model = session.model;
  model.name = "app";
  model.files.push_back({texts.Next(), false, true, {}});
  AddObject(model, BASE_WINDOW, texts);
  for (unsigned i = 0; i < counts % 4; ++i) AddObject(model, TEXT_FIELD, texts);
  for (unsigned i = 0; i < counts / 4 % 4; ++i) AddConnection(model, "CallFunction", texts);
  for (unsigned i = 0; i < counts / 16 % 4; ++i) AddConnection(model, "ExecuteCode", texts);
  for (unsigned i = 0; i < counts / 64 % 4; ++i) AddConnection(model, "user_defined", texts);
  AddWindow(model, texts);
  port::NameFunctions(session);
  for (port::Connection& connection : model.connections) {
    if (!connection.function.empty()) connection.call = connection.function + "()";
    if (!connection.function.empty())
      model.procedures.push_back({texts.Next(), connection.function});
  }
  model.messages = {texts.Next()};
  model.mends = {texts.Next()};
  model.missing_bitmaps = {texts.Next()};
  // A file without a folder, which would get a recipe of its own.
  std::string bitmap = texts.Next();
  std::replace(bitmap.begin(), bitmap.end(), '/', '_');
  model.bitmaps.push_back({bitmap, ""});
  model.button_glyphs.push_back({"button", texts.Next()});
  return std::move(session.model);
}

// The functions of both are called the same: names are the one thing that stands among the tokens.
void TakeNames(const port::Model& from, port::Model& to) {
  if (from.functions.size() != to.functions.size()) Fail("functions", "not as many", "");
  for (std::size_t i = 0; i < from.functions.size(); ++i) {
    to.functions[i].name = from.functions[i].name;
  }
  for (std::size_t i = 0; i < from.connections.size(); ++i) {
    to.connections[i].function = from.connections[i].function;
  }
  for (std::size_t i = 0; i < from.procedures.size(); ++i) {
    to.procedures[i].function = from.procedures[i].function;
  }
}

struct Written {
  std::string text;
  Shape shape;
};

// The report, whose template is long, is left out of most runs.
std::map<std::string, Written> Write(const port::Model& model, const port::Templates& templates,
                                     bool report_too) {
  std::map<std::string, Written> files;
  const auto add = [&](const std::string& name, std::string text,
                       Shape (*shape_of)(std::string_view)) {
    Shape shape = shape_of(text);
    files[name] = {std::move(text), std::move(shape)};
  };
  std::vector<std::string> added;
  add("main.c", port::MainFile(model, templates), ShapeOfC);
  add("connections.c", port::ConnectionsFile(model, templates), ShapeOfC);
  add("callbacks.c", port::CallbacksFile(model, "", templates, &added), ShapeOfC);
  add("callbacks.h", port::CallbacksHeader(model, {}, templates), ShapeOfC);

  port::ReportInput report;
  report.model = &model;
  report.version = "1";
  report.page_template = templates.Plain("report.html.mustache");
  if (report_too) add("report.html", port::MakeReport(report), ShapeOfPage);
  add("table", port::ReportText(report), ShapeOfLines);
  add("README", port::ReadmeText(model, templates), ShapeOfLines);
  add("Makefile", port::MakefileText(model, templates), ShapeOfMakefile);
  add("App.ad", port::ResourceFile(model, templates), ShapeOfResources);
  return files;
}

void CheckSketches(const port::Model& model) {
  for (const port::Sketch& sketch : port::DrawSketches(model, {})) {
    const Shape shape = ShapeOfPage(sketch.svg);
    if (!shape.error.empty()) Fail("sketch", shape.error, sketch.svg);
  }
}

// callbacks.c is the user's: it only grows, and only by what is not there.
void CheckSecondRun(const port::Model& model, const port::Templates& templates,
                    const std::string& former, std::string_view edited) {
  std::vector<std::string> added;
  const std::string again = port::CallbacksFile(model, former, templates, &added);
  if (again != former || !added.empty()) Fail("callbacks.c", "a second run changes it", again);
  const std::string user(edited);
  const std::string grown = port::CallbacksFile(model, user, templates, &added);
  if (!user.empty() && !grown.starts_with(user)) Fail("callbacks.c", "text was lost", grown);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static const port::Templates templates(PORT_TEMPLATES);
  const std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
  const port::Model model = MakeModel(Texts(input, false), data[0]);
  const bool report_too = size % 8 == 0;
  const auto written = Write(model, templates, report_too);
  port::Model harmless_model = MakeModel(Texts(input, true), data[0]);
  TakeNames(model, harmless_model);
  const auto expected = Write(harmless_model, templates, report_too);
  for (const auto& [name, file] : written) {
    const Written& harmless = expected.at(name);
    if (!harmless.shape.error.empty()) Fail(name, harmless.shape.error, harmless.text);
    if (!file.shape.error.empty()) Fail(name, file.shape.error, file.text);
    if (file.shape.text != harmless.shape.text) {
      Fail(name, "the text leaves its place",
           file.text + "\n--- as it should be:\n" + harmless.text);
    }
  }
  CheckSketches(model);
  CheckSecondRun(model, templates, written.at("callbacks.c").text, input);
  return 0;
}
