// SPDX-License-Identifier: MIT
// Icons as rows of bits, read for the pictures of the report.
#ifndef PANDREL_PORT_BITMAP_H
#define PANDREL_PORT_BITMAP_H

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace port {

struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<bool> bits;  // row by row, from the left; set where the icon is dark
};

// Reads an icon (format version 1, depth 1) or an X bitmap. Nothing when the file is not there, is
// no plain file, or is neither, and for one of more than 1024 pixels a side.
std::optional<Bitmap> ReadBitmap(const std::filesystem::path& file);

// Looks for the glyph that a GIL file names: an absolute name first, then in the folders in their
// order, in each one the X bitmap of a conversion before the file itself.
std::optional<Bitmap> FindBitmap(const std::string& glyph,
                                 const std::vector<std::filesystem::path>& folders);

}  // namespace port

#endif
