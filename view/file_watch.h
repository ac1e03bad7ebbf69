// SPDX-License-Identifier: MIT
// Tells when a file was saved, by an editor that writes into it or one that puts another file in
// its place.
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

  // A descriptor that is ready for reading after a change; -1 when nothing can be watched.
  int Descriptor() const { return descriptor_; }

  // Reads the changes so far. Returns whether one of them was in a watched file.
  bool TakeNews();

 private:
  std::string name_;
  bool project_ = false;
  int descriptor_ = -1;
};

}  // namespace view

#endif
