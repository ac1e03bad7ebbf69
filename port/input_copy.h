// SPDX-License-Identifier: MIT
// A stand-in for the input's folder. The converter writes the bitmaps of glyphs into its working
// folder, and nothing of the user's is to be written to.
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
