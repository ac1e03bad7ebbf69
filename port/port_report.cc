// SPDX-License-Identifier: MIT
#include "port/port_report.h"

#include <algorithm>
#include <kainjow/mustache.hpp>
#include <stdexcept>

#include "port/data_uri.h"
#include "port/model.h"
#include "port/page_text.h"
#include "port/report_rows.h"

namespace port {

using Data = kainjow::mustache::data;

static const char* KindName(SketchKind kind) {
  switch (kind) {
    case SketchKind::kWindow:
      return "window";
    case SketchKind::kDialog:
      return "dialog";
    case SketchKind::kMenu:
      return "menu";
    case SketchKind::kPart:
      break;
  }
  return "part";
}

// Sets what a template asks for with {{#name}} and prints with {{name}}: nothing for an empty text.
static void SetText(Data* data, const std::string& name, const std::string& text) {
  data->set("has_" + name, Data(text.empty() ? Data::type::bool_false : Data::type::bool_true));
  data->set(name, text);
}

static Data Windows(const ReportInput& input) {
  Data list{Data::type::list};
  for (const Sketch& sketch : input.sketches) {
    if (sketch.kind == SketchKind::kMenu) continue;
    Data window;
    SetText(&window, "name", sketch.name);
    SetText(&window, "title", sketch.title);
    SetText(&window, "kind", KindName(sketch.kind));
    SetText(&window, "hidden", sketch.hidden ? "hidden at first" : "");
    SetText(&window, "sketch", sketch.svg);
    const auto picture = input.pictures.find(sketch.object);
    SetText(&window, "picture", picture == input.pictures.end() ? "" : PngDataUri(picture->second));
    list.push_back(window);
  }
  return list;
}

static Data Menus(const ReportInput& input) {
  Data list{Data::type::list};
  for (const Sketch& sketch : input.sketches) {
    if (sketch.kind != SketchKind::kMenu) continue;
    Data menu;
    SetText(&menu, "name", sketch.name);
    SetText(&menu, "sketch", sketch.svg);
    list.push_back(menu);
  }
  return list;
}

static Data Files(const Model& model) {
  Data list{Data::type::list};
  for (const GilFile& file : model.files) {
    Data data;
    SetText(&data, "name", PageText(file.name));
    SetText(&data, "kind", !file.read ? "not read" : file.project ? "project" : "interface");
    SetText(&data, "objects", std::to_string(file.objects.size()));
    list.push_back(data);
  }
  return list;
}

static Data Connections(const Model& model) {
  Data list{Data::type::list};
  for (const Connection& connection : model.connections) {
    const ConnectionRow row = MakeRow(model, connection);
    Data data;
    SetText(&data, "file", row.file);
    SetText(&data, "from", row.from);
    SetText(&data, "event", row.event);
    SetText(&data, "action", row.action);
    SetText(&data, "code", row.code);
    SetText(&data, "fate", row.fate);
    SetText(&data, "call", row.call);
    SetText(&data, "by", row.by);
    SetText(&data, "reason", row.reason);
    SetText(&data, "lost", connection.fate == ConnectionFate::kLost ? "lost" : "");
    list.push_back(data);
  }
  return list;
}

static Data Objects(const Model& model) {
  Data list{Data::type::list};
  for (const PortObject& object : model.objects) {
    const ObjectRow row = MakeRow(model, object);
    Data data;
    SetText(&data, "file", row.file);
    SetText(&data, "name", row.name);
    SetText(&data, "type", row.type);
    SetText(&data, "label", row.label);
    SetText(&data, "fate", row.fate);
    SetText(&data, "widget", row.widget);
    SetText(&data, "companions", row.companions);
    SetText(&data, "reason", row.reason);
    SetText(&data, "lost", object.fate == ObjectFate::kLost ? "lost" : "");
    list.push_back(data);
  }
  return list;
}

static Data Faults(const std::vector<LayoutFault>& faults) {
  Data list{Data::type::list};
  for (const LayoutFault& fault : faults) {
    if (!IsOfLayout(fault)) continue;
    Data data;
    SetText(&data, "kind", fault.kind);
    SetText(&data, "widget", fault.widget);
    SetText(&data, "object", fault.object);
    SetText(&data, "window", fault.window);
    SetText(&data, "place", fault.place);
    SetText(&data, "other", fault.other);
    SetText(&data, "other_object", fault.other_object);
    SetText(&data, "pixels", fault.pixels);
    list.push_back(data);
  }
  return list;
}

static Data Icons(const ReportInput& input) {
  Data list{Data::type::list};
  for (const IconRow& row : MissingIcons(input)) {
    Data data;
    SetText(&data, "icon", row.icon);
    SetText(&data, "where", row.where);
    list.push_back(data);
  }
  return list;
}

static Data Colors(const ReportInput& input) {
  Data list{Data::type::list};
  for (const std::string& color : MissingColors(input)) list.push_back(Data("color", color));
  return list;
}

static std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + PageText(line);
  return text;
}

// A list, and whether there is anything in it.
static void SetList(Data* page, const std::string& name, const Data& list) {
  page->set(name, list);
  page->set("has_" + name,
            Data(list.list_value().empty() ? Data::type::bool_false : Data::type::bool_true));
}

std::string MakeReport(const ReportInput& input) {
  const Model& model = *input.model;
  kainjow::mustache::mustache page(input.page_template);
  if (!page.is_valid()) throw std::runtime_error("report.html.mustache: " + page.error_message());
  page.set_custom_escape(EscapeMarkup);
  Data data;
  SetText(&data, "name", PageText(model.name));
  SetText(&data, "version", PageText(input.version));
  SetText(&data, "totals", TotalsLine(CountAll(input)));
  SetText(&data, "error", PageText(model.error));
  SetText(&data, "no_pictures", PageText(input.no_pictures));
  data.set("checked", Data(input.checked ? Data::type::bool_true : Data::type::bool_false));
  SetList(&data, "files", Files(model));
  data.set("many_files",
           Data(model.files.size() > 1 ? Data::type::bool_true : Data::type::bool_false));
  SetList(&data, "windows", Windows(input));
  SetList(&data, "menus", Menus(input));
  SetList(&data, "connections", Connections(model));
  SetList(&data, "objects", Objects(model));
  SetList(&data, "faults", Faults(input.faults));
  SetList(&data, "icons", Icons(input));
  SetList(&data, "colors", Colors(input));
  SetText(&data, "messages", JoinLines(model.messages));
  SetText(&data, "mends", JoinLines(model.mends));
  return page.render(data);
}

}  // namespace port
