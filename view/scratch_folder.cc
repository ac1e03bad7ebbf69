// SPDX-License-Identifier: MIT
#include "scratch_folder.h"

#include <stdlib.h>

#include <string>

namespace view {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
  std::error_code error;
  std::string name = (fs::temp_directory_path(error) / "pandrel-view-XXXXXX").string();
  if (mkdtemp(name.data())) path_ = name;
}

ScratchFolder::~ScratchFolder() { Remove(); }

void ScratchFolder::Remove() {
  std::error_code error;
  if (!path_.empty()) fs::remove_all(path_, error);
}

}  // namespace view
