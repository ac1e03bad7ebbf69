// SPDX-License-Identifier: MIT
#ifndef PANDREL_VIEW_SCRATCH_FOLDER_H
#define PANDREL_VIEW_SCRATCH_FOLDER_H

#include <sys/types.h>

#include <filesystem>

namespace view {

// A new folder that is removed, with everything in it, at the end of its scope; by a process that
// waits for it, when this program and those that it started end without getting there.
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
  pid_t cleaner_ = -1;  // that process
};

}  // namespace view

#endif
