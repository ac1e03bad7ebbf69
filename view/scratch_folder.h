// SPDX-License-Identifier: MIT
#ifndef PANDREL_VIEW_SCRATCH_FOLDER_H
#define PANDREL_VIEW_SCRATCH_FOLDER_H

#include <sys/types.h>

#include <filesystem>

namespace view {

// A new folder that the end of its scope removes, with everything in it. If this program ends
// without getting there, a process that waits for its end, and for that of the programs it started,
// does so.
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
