// SPDX-License-Identifier: MIT
#include "writable_folder.h"

namespace view {

namespace fs = std::filesystem;

void MakeShadow(const fs::path& original, const fs::path& shadow, int depth) {
  std::error_code error;
  fs::create_directory(shadow, error);
  for (const auto& entry : fs::directory_iterator(original, error)) {
    const fs::path target = shadow / entry.path().filename();
    if (depth > 0 && entry.is_directory(error) && !entry.is_symlink(error)) {
      MakeShadow(entry.path(), target, depth - 1);
    } else {
      fs::create_symlink(entry.path(), target, error);
    }
  }
}

void PutShadow(const fs::path& original, const fs::path& shadow, const fs::path& path) {
  std::error_code error;
  fs::path at = shadow;
  for (const fs::path& part : path) {
    at /= part;
    if (!fs::is_symlink(at, error)) {
      fs::create_directory(at, error);
      continue;
    }
    // A folder of the user's own, which nothing may be put into.
    const fs::path user = fs::read_symlink(at, error);
    fs::remove(at, error);
    MakeShadow(user, at, 0);
  }
  fs::remove_all(at, error);
  MakeShadow(original, at, 0);
}

}  // namespace view
