// SPDX-License-Identifier: MIT
// Tells when a file has been written anew, by an editor that writes into it or one that puts
// another file in its place.
#ifndef PANDREL_VIEW_FILE_WATCH_H
#define PANDREL_VIEW_FILE_WATCH_H

#include <filesystem>
#include <set>
#include <string>

namespace view {

class FileWatch {
 public:
  // Watches the file and, of a project (.P), the interface files (.G) in its folder.
  explicit FileWatch(const std::filesystem::path& file);
  ~FileWatch();
  FileWatch(const FileWatch&) = delete;
  FileWatch& operator=(const FileWatch&) = delete;

  // Is ready for reading when there is news; -1 when nothing can be watched.
  int Descriptor() const { return descriptor_; }

  // Reads the news that has come. Returns whether any was about what is watched.
  bool TakeNews();

 private:
  std::string name_;
  bool project_ = false;
  int descriptor_ = -1;
};

}  // namespace view

#endif
