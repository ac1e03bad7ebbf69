// SPDX-License-Identifier: MIT
#include "port/escape.h"
#include "port/generate.h"

namespace port {
namespace {

using kainjow::mustache::list;

Data Strings(const std::vector<std::string>& texts) {
  Data strings{list{}};
  for (const std::string& text : texts) strings.push_back(Data(text));
  return strings;
}

std::string Flag(bool set) { return set ? "1" : "0"; }

Data WindowData(const PortWindow& window, std::size_t index) {
  Data data;
  data.set("index", std::to_string(index));
  data.set("shell", window.shell);
  data.set("owner", window.owner);
  data.set("window_title", window.title);
  data.set("work", Strings(window.work));
  data.set("popups", Strings(window.popups));
  Data resources{list{}};
  for (const auto& [name, value] : window.resources) {
    Data resource;
    resource.set("resource", name);
    resource.set("value", value);
    resources.push_back(resource);
  }
  data.set("resources", resources);
  data.set("dialog", Flag(window.dialog));
  data.set("hidden", Flag(window.hidden));
  data.set("iconic", Flag(window.iconic));
  data.set("insensitive", Flag(window.insensitive));
  return data;
}

}  // namespace

std::string ClassName(const Model& model) {
  std::string name = model.name;
  if (!name.empty() && name[0] >= 'a' && name[0] <= 'z') name[0] += 'A' - 'a';
  return name;
}

std::string Title(const Model& model) {
  return CComment(model.files.empty() ? model.name : model.files[0].name);
}

std::string MainFile(const Model& model, const Templates& templates) {
  Data data;
  data.set("title", Title(model));
  data.set("name", model.name);
  data.set("class", ClassName(model));
  Data windows{list{}};
  for (std::size_t i = 0; i < model.windows.size(); ++i) {
    windows.push_back(WindowData(model.windows[i], i));
  }
  data.set("windows", windows);
  Data procedures{list{}};
  for (const PortProcedure& procedure : model.procedures) {
    Data row;
    row.set("module_name", procedure.module_name);
    row.set("function", procedure.function);
    procedures.push_back(row);
  }
  data.set("procedures", procedures);
  data.set("has_procedures", Data(!model.procedures.empty()));
  return templates.Fill("main.c", data, CText);
}

}  // namespace port
