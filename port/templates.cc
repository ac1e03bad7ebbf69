// SPDX-License-Identifier: MIT
#include "port/templates.h"

#include <cstdlib>

#include "uilfix/module_files.h"

namespace port {
namespace {

namespace fs = std::filesystem;

fs::path ProgramFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path();
}

}  // namespace

Templates::Templates(const fs::path& own) {
  if (!own.empty()) folders_.push_back(own);
  // As seen from the program, in an installed tree, which may have been moved, and where it was
  // built.
  folders_.push_back(ProgramFolder() / ".." / "share" / "pandrel" / "port");
  folders_.push_back(ProgramFolder() / ".." / "share" / "pandrel");
}

std::string Templates::Read(const std::string& name) const {
  for (const fs::path& folder : folders_) {
    std::error_code error;
    const fs::path file = folder / name;
    if (!fs::is_regular_file(file, error)) continue;
    if (const auto text = uilfix::ReadFile(file.string())) return *text;
  }
  throw TemplateError{"no template " + name};
}

std::string Templates::Plain(const std::string& name) const { return Read(name); }

std::string Templates::Fill(const std::string& name, const Data& data,
                            std::string (*escape)(const std::string& text)) const {
  auto known = parsed_.find(name);
  if (known == parsed_.end()) known = parsed_.emplace(name, Read(name + ".mustache")).first;
  kainjow::mustache::mustache& filled = known->second;
  if (!filled.is_valid()) {
    throw TemplateError{"template " + name + ": " + filled.error_message()};
  }
  filled.set_custom_escape(escape);
  return filled.render(data);
}

}  // namespace port
