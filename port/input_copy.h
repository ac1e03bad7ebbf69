// SPDX-License-Identifier: MIT
// A copy of the input's folder to work in: the converter writes the bitmaps of glyphs into its
// working folder, and the user's folders must not change.
#ifndef PANDREL_PORT_INPUT_COPY_H
#define PANDREL_PORT_INPUT_COPY_H

#include <filesystem>
#include <string>
#include <vector>

#include "port/conversion.h"

namespace port {

struct Shadow {
  std::string error;                 // empty if all is well
  std::filesystem::path folder;      // the files of the input's folder, one level of folders deep
  std::vector<std::string> options;  // the input's, the glyphs' folder being one of the shadow
};

Shadow MakeShadow(const Input& input);

}  // namespace port

#endif
