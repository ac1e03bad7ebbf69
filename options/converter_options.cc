// SPDX-License-Identifier: MIT
#include "options/converter_options.h"

namespace options {

void AddConverterOptions(std::vector<Option>& table, std::vector<std::string>& given) {
  constexpr const char* kNames[] = {
      "motif",          "openlook",     "reposition",    "noreposition",   "converticons",
      "noconverticons", "ignoregroups", "convertgroups", "motif11",        "motif12",
      "mapall",         "nomapall",     "nogrouplabels", "group_labels",   "dont_rename",
      "zo25",           "zo30",         "nozo",          "genzocallbacks", "nocomments"};
  const auto take = [&given](const std::string& option) {
    return [&given, option](const std::string& value) {
      given.push_back(option + value);
      return std::string();
    };
  };
  for (const char* name : kNames) {
    table.push_back({name, 0, Value::kNone, take("-" + std::string(name))});
  }
  table.push_back({"", 'D', Value::kNeeded, take("-D")});
}

}  // namespace options
