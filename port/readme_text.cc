// SPDX-License-Identifier: MIT
#include <algorithm>

#include "port/escape.h"
#include "port/generate.h"

namespace port {

std::string ReadmeText(const Model& model, const Templates& templates) {
  Data data;
  data.set("title", Title(model));
  data.set("name", model.name);
  data.set("class", ClassName(model));
  data.set("function_count", std::to_string(model.functions.size()));
  const auto in_file =
      std::count_if(model.connections.begin(), model.connections.end(),
                    [](const Connection& c) { return !c.in_module && !c.sources.empty(); });
  data.set("connection_count", std::to_string(in_file));
  Data lost{kainjow::mustache::list{}};
  for (const Connection& connection : model.connections) {
    if (connection.fate != ConnectionFate::kLost) continue;
    lost.push_back(Data("Not connected: " +
                        OneLine(OriginText(model, connection) + ": " + connection.reason)));
  }
  for (const PortObject& object : model.objects) {
    if (object.fate != ObjectFate::kLost) continue;
    lost.push_back(Data(
        OneLine("Not shown: " + TypeName(object.type) + " " + object.name + ": " + object.reason)));
  }
  for (const std::string& bitmap : model.missing_bitmaps) {
    lost.push_back(Data("Missing bitmap: " + OneLine(bitmap)));
  }
  data.set("lost", lost);
  return templates.Fill("README", data, OneLine);
}

}  // namespace port
