// SPDX-License-Identifier: MIT
#ifndef PANDREL_VIEW_SCRATCH_FOLDER_H
#define PANDREL_VIEW_SCRATCH_FOLDER_H

#include <filesystem>

namespace view {

// A new folder that is removed, with everything in it, at the end of its scope.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  // Removes it now.
  void Remove();

  // Empty when it could not be made; errno tells why.
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace view

#endif
