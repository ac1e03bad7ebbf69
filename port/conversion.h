// SPDX-License-Identifier: MIT
// From a GIL file to the model: read, converted, mended, all connections traced.
#ifndef PANDREL_PORT_CONVERSION_H
#define PANDREL_PORT_CONVERSION_H

#include <filesystem>
#include <string>
#include <vector>

#include "port/model.h"

namespace port {

struct Input {
  std::filesystem::path file;
  std::vector<std::string> options;  // the converter's, as on its command line
  std::filesystem::path scratch;     // an empty folder, for files that the conversion makes
};

// Converts one interface or project in this process. It only reads the input's folder: it works in
// scratch/files, which has that folder's files and gets the bitmaps of glyphs. Afterwards standard
// input is at its end; working folder and output streams are as before.
Model ConvertInterface(const Input& input);

// The interface files that a project names; none for anything else. Standard input is at its end
// afterwards.
std::vector<std::string> InterfacesOf(const std::filesystem::path& project_file);

}  // namespace port

#endif
