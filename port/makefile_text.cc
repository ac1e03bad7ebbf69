// SPDX-License-Identifier: MIT
#include <set>

#include "port/escape.h"
#include "port/generate.h"

namespace port {

std::string MakefileText(const Model& model, const Templates& templates) {
  Data data;
  data.set("title", Title(model));
  data.set("name", model.name);
  data.set("class", ClassName(model));
  Data bitmaps{kainjow::mustache::list{}};
  std::set<std::string> folders;
  for (const PortBitmap& bitmap : model.bitmaps) {
    bitmaps.push_back(Data(bitmap.path));
    const std::size_t slash = bitmap.path.rfind('/');
    if (slash != std::string::npos) folders.insert(bitmap.path.substr(0, slash));
  }
  Data folder_names{kainjow::mustache::list{}};
  for (const std::string& folder : folders) folder_names.push_back(Data(folder));
  data.set("bitmaps", bitmaps);
  data.set("bitmap_folders", folder_names);
  return templates.Fill("Makefile", data, RecipeText);
}

}  // namespace port
