// SPDX-License-Identifier: MIT
// From the user's file to a compiled module: converted if it is GIL, mended, compiled.
#ifndef PANDREL_VIEW_INPUT_H
#define PANDREL_VIEW_INPUT_H

#include <filesystem>
#include <string>
#include <vector>

#include "view_options.h"
#include "uilfix/module.h"

namespace view {

// A new folder that is removed, with everything in it, at the end of its scope.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  // Empty when it could not be made.
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

struct Interface {
  std::string error;          // why there is nothing to show, with line ends; empty if all is well
  std::filesystem::path uid;  // the compiled module
  std::filesystem::path folder;  // where its bitmaps are
  bool has_module = false;       // false for a .uid without its .uil beside it
  uilfix::Module module;
};

// Does all that comes before the first window. Notes go to standard error. The user's folders are
// only read: what the converter and the compiler write goes to `scratch`.
Interface PrepareInterface(const Options& options, const ScratchFolder& scratch);

}  // namespace view

#endif
