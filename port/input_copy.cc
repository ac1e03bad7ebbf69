// SPDX-License-Identifier: MIT
#include "port/input_copy.h"

#include <unistd.h>

namespace port {
namespace {

namespace fs = std::filesystem;

// Folders, `depth` levels of them, are made anew; files are links to the user's. A file that cannot
// be read is left out, and so is one that the converter might take for its own: it would write
// through the link.
void Mirror(const fs::path& original, const fs::path& shadow, int depth) {
  std::error_code error;
  fs::create_directories(shadow, error);
  for (const auto& entry : fs::directory_iterator(original, error)) {
    const fs::path target = shadow / entry.path().filename();
    if (entry.is_directory(error)) {
      if (depth > 0 && !entry.is_symlink(error)) Mirror(entry.path(), target, depth - 1);
    } else if (entry.path().extension() != ".tmp" && access(entry.path().c_str(), R_OK) == 0) {
      fs::create_symlink(entry.path(), target, error);
    }
  }
}

// Where the files of a project lie that its folder does not hold itself: "-Dicons" is looked up
// beside the input, then in the working folder.
fs::path IconFolder(const fs::path& name, const fs::path& input_folder) {
  std::error_code error;
  if (name.is_absolute()) return name;
  if (fs::is_directory(input_folder / name, error)) return input_folder / name;
  return fs::absolute(name);
}

}  // namespace

Shadow MakeShadow(const Input& input) {
  Shadow shadow;
  std::error_code error;
  const fs::path file = fs::absolute(input.file);
  shadow.folder = input.scratch / "files";
  fs::create_directories(shadow.folder, error);
  if (error) {
    shadow.error = shadow.folder.string() + ": " + error.message();
    return shadow;
  }
  Mirror(file.parent_path(), shadow.folder, 1);
  for (const std::string& option : input.options) {
    if (!option.starts_with("-D") || option == "-D") {
      shadow.options.push_back(option);
      continue;
    }
    const fs::path icons = IconFolder(option.substr(2), file.parent_path());
    Mirror(icons, shadow.folder / "bitmaps", 0);
    shadow.options.emplace_back("-Dbitmaps");
  }
  return shadow;
}

}  // namespace port
