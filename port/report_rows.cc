// SPDX-License-Identifier: MIT
#include "port/report_rows.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>

#include "gil/tokens.h"
#include "port/model.h"
#include "port/object_attributes.h"
#include "port/page_text.h"
#include "port/port_report.h"

namespace port {

// A setting of many choices has as many widgets; a reader needs the first few.
static const std::size_t kCompanions = 6;

static std::string FileName(const Model& model, int file) {
  return file < 0 ? "" : PageText(model.files[file].name);
}

static void Join(std::string* list, std::string_view separator, std::string_view item) {
  if (!list->empty() && !item.empty()) *list += separator;
  *list += item;
}

static std::string JoinAll(const std::vector<std::string>& items, std::string_view separator) {
  std::string list;
  for (const std::string& item : items) Join(&list, separator, PageText(item));
  return list;
}

static std::string WithoutXmN(const std::string& name) {
  return name.starts_with("XmN") ? name.substr(3) : name;
}

ConnectionRow MakeRow(const Model& model, const Connection& connection) {
  ConnectionRow row;
  row.file = FileName(model, connection.file);
  row.from = PageText(PathText(connection.from));
  row.event = JoinAll(connection.when, ", ");
  if (connection.function_type == "ExecuteCode") {
    row.action = "code";
    row.code = PageText(connection.action);
  } else if (connection.function_type == "CallFunction") {
    row.action = PageText(connection.action) + "()";
  } else {
    row.action = PageText(connection.action);
    Join(&row.action, " ", PageText(PathText(connection.to)));
    if (!connection.arguments.empty()) row.action += ": " + JoinAll(connection.arguments, ", ");
  }
  row.fate = FateName(connection.fate);
  row.call = PageText(connection.call);
  if (!connection.function.empty() &&
      connection.call.find(connection.function) == std::string::npos) {
    Join(&row.call, ": ", PageText(connection.function) + "()");
  }
  for (const Source& source : connection.sources) {
    Join(&row.by, ", ", PageText(source.widget) + "." + PageText(WithoutXmN(source.event)));
    if (!source.condition.empty()) row.by += " when " + source.condition;
  }
  row.reason = PageText(connection.reason);
  return row;
}

static std::string WidgetText(const PortWidget& widget) {
  return PageText(widget.name) + " (" + PageText(widget.class_name) + ")";
}

static std::string LabelOf(const PortObject& object) {
  for (int32_t attribute : {LABEL, MENU_TITLE, TITLE}) {
    const std::string text = TextOf(object, attribute);
    if (!text.empty()) return text;
  }
  return "";
}

ObjectRow MakeRow(const Model& model, const PortObject& object) {
  ObjectRow row;
  row.file = FileName(model, object.file);
  row.name = PageText(object.name);
  row.type = TypeName(object.type);
  row.label = LabelOf(object);
  row.fate = FateName(object.fate);
  for (std::size_t i = 0; i < object.widgets.size(); ++i) {
    if (i == 0) {
      row.widget = WidgetText(object.widgets[i]);
    } else if (i <= kCompanions) {
      Join(&row.companions, ", ", WidgetText(object.widgets[i]));
    }
  }
  if (object.widgets.size() > kCompanions + 1) {
    row.companions += " and " + std::to_string(object.widgets.size() - kCompanions - 1) + " more";
  }
  row.reason = PageText(object.reason);
  return row;
}

// A file names an icon, the module the bitmap made of it; both have one stem.
std::vector<IconRow> MissingIcons(const ReportInput& input) {
  std::map<std::string, std::map<std::string, std::string>> where_by_name_by_stem;
  const auto add = [&](const std::string& name, const std::string& where) {
    std::string& places = where_by_name_by_stem[std::filesystem::path(name).stem().string()][name];
    if (places.find(where) == std::string::npos) Join(&places, ", ", where);
  };
  for (const std::string& name : input.model->missing_bitmaps) add(PageText(name), "the module");
  for (const LayoutFault& fault : input.faults) {
    if (fault.kind == "icon") add(fault.other, fault.widget);
  }
  for (const Sketch& sketch : input.sketches) {
    for (const std::string& name : sketch.missing_glyphs) add(name, sketch.name);
  }
  std::vector<IconRow> rows;
  for (const auto& [stem, where_by_name] : where_by_name_by_stem) {
    IconRow row;
    for (const auto& [name, where] : where_by_name) {
      Join(&row.icon, ", ", name);
      Join(&row.where, ", ", where);
    }
    rows.push_back(row);
  }
  return rows;
}

std::vector<std::string> MissingColors(const ReportInput& input) {
  std::set<std::string> colors;
  for (const std::string& color : input.missing_colors) colors.insert(PageText(color));
  for (const LayoutFault& fault : input.faults) {
    if (fault.kind == "color") colors.insert(fault.other);
  }
  colors.erase("");
  return {colors.begin(), colors.end()};
}

}  // namespace port
