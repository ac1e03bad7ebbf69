// SPDX-License-Identifier: MIT
#include "file_watch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <climits>

namespace view {

namespace fs = std::filesystem;

FileWatch::FileWatch(const fs::path& file)
    : name_(file.filename().string()),
      project_(file.extension() == ".P"),
      descriptor_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
  if (descriptor_ < 0) return;
  // Watch the folder, not the file: an editor may put a new file in its place.
  const std::string folder = file.parent_path().string();
  if (inotify_add_watch(descriptor_, folder.c_str(), IN_CLOSE_WRITE | IN_MOVED_TO) < 0) {
    close(descriptor_);
    descriptor_ = -1;
  }
}

FileWatch::~FileWatch() {
  if (descriptor_ >= 0) close(descriptor_);
}

bool FileWatch::TakeNews() {
  bool news = false;
  alignas(inotify_event) char buffer[sizeof(inotify_event) + NAME_MAX + 1];
  for (ssize_t size = 0; (size = read(descriptor_, buffer, sizeof buffer)) > 0;) {
    for (ssize_t at = 0; at < size;) {
      const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
      const fs::path name = event->len > 0 ? event->name : "";
      news = news || name == name_ || (project_ && name.extension() == ".G");
      at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
    }
  }
  return news;
}

}  // namespace view
