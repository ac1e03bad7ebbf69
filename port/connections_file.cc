// SPDX-License-Identifier: MIT
#include <algorithm>

#include "port/escape.h"
#include "port/generate.h"

namespace port {
namespace {

using kainjow::mustache::list;

std::string ConditionWord(const std::string& condition) {
  if (condition == "set") return "WHEN_SET";
  return condition == "unset" ? "WHEN_UNSET" : "ALWAYS";
}

// The argument of the connection's procedure. One that is no single text is a record of its own.
std::string ArgumentText(const Connection& connection, Data& settings, int index) {
  if (!connection.function.empty()) return "&no_argument";
  if (connection.procedure_widget.empty()) return "\"" + CText(connection.argument) + "\"";
  Data setting;
  setting.set("index", std::to_string(index));
  setting.set("widget", connection.procedure_widget);
  setting.set("text", connection.argument);
  settings.push_back(setting);
  return "&setting_" + std::to_string(index);
}

}  // namespace

std::string OriginText(const Model& model, const Connection& connection) {
  std::string text = connection.from_object >= 0 ? model.objects[connection.from_object].name
                                                 : PathText(connection.from);
  if (!connection.from_item.empty()) text += " \"" + connection.from_item + "\"";
  if (model.files.size() > 1) text += " (" + model.files[connection.file].name + ")";
  if (!connection.when.empty()) text += ", " + connection.when[0];
  return text;
}

std::string ConnectionsFile(const Model& model, const Templates& templates) {
  Data data;
  data.set("title", Title(model));
  Data settings{list{}};
  Data rows{list{}};
  std::vector<const Connection*> connections;
  for (const Connection& connection : model.connections) {
    if (!connection.in_module && !connection.sources.empty()) connections.push_back(&connection);
  }
  std::sort(connections.begin(), connections.end(),
            [](const Connection* a, const Connection* b) { return a->IsBefore(*b); });
  for (const Connection* connection : connections) {
    const std::string argument = ArgumentText(*connection, settings, connection->number);
    for (const Source& source : connection->sources) {
      Data row;
      row.set("comment", CComment(OriginText(model, *connection)));
      row.set("widget", source.widget);
      row.set("event", source.event);
      row.set("condition", ConditionWord(source.condition));
      row.set("procedure",
              connection->function.empty() ? connection->procedure : connection->function);
      row.set("argument", argument);
      rows.push_back(row);
    }
  }
  data.set("settings", settings);
  data.set("rows", rows);
  return templates.Fill("connections.c", data, CText);
}

}  // namespace port
