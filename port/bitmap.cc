// SPDX-License-Identifier: MIT
#include "port/bitmap.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace port {

static const int kLargestSide = 1024;
// An icon of that size as text, with room for comments.
static const std::size_t kLargestFile = 1 << 20;

static bool IsSize(int side) { return side > 0 && side <= kLargestSide; }

static std::optional<Bitmap> ReadXBitmap(const std::filesystem::path& file) {
  unsigned int width = 0;
  unsigned int height = 0;
  unsigned char* data = nullptr;
  int hot_x = 0;
  int hot_y = 0;
  if (XReadBitmapFileData(file.c_str(), &width, &height, &data, &hot_x, &hot_y) != BitmapSuccess) {
    return std::nullopt;
  }
  Bitmap bitmap{static_cast<int>(width), static_cast<int>(height), {}};
  const bool fits = IsSize(bitmap.width) && IsSize(bitmap.height);
  const std::size_t row = (width + 7) / 8;
  for (std::size_t y = 0; fits && y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      bitmap.bits.push_back(data[y * row + x / 8] >> (x % 8) & 1);
    }
  }
  XFree(data);
  return fits ? std::optional(bitmap) : std::nullopt;
}

// The number behind "name=", 0 when there is none.
static int Field(const std::string& text, const std::string& name) {
  const std::size_t at = text.find(name + "=");
  return at == std::string::npos ? 0 : std::atoi(text.c_str() + at + name.size() + 1);
}

// An icon's header is a comment; its items are hexadecimal numbers, the highest bit leftmost.
static std::optional<Bitmap> ReadIcon(const std::string& text) {
  Bitmap bitmap{Field(text, "Width"), Field(text, "Height"), {}};
  const int item = Field(text, "Valid_bits_per_item");
  const std::size_t header_end = text.find("*/");
  if (!IsSize(bitmap.width) || !IsSize(bitmap.height) || (item != 16 && item != 32) ||
      bitmap.width % item != 0 || header_end == std::string::npos) {
    return std::nullopt;
  }
  const std::size_t size = static_cast<std::size_t>(bitmap.width) * bitmap.height;
  for (std::size_t at = header_end; bitmap.bits.size() < size;) {
    at = text.find("0x", at);
    if (at == std::string::npos) return std::nullopt;
    char* end = nullptr;
    const unsigned long bits = std::strtoul(text.c_str() + at, &end, 16);
    at = static_cast<std::size_t>(end - text.c_str());
    for (int bit = item - 1; bit >= 0; --bit) bitmap.bits.push_back(bits >> bit & 1);
  }
  return bitmap;
}

std::optional<Bitmap> ReadBitmap(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error) ||
      std::filesystem::file_size(file, error) > kLargestFile) {
    return std::nullopt;
  }
  std::ifstream stream(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  if (std::optional<Bitmap> icon = ReadIcon(text)) return icon;
  return ReadXBitmap(file);
}

std::optional<Bitmap> FindBitmap(const std::string& glyph,
                                 const std::vector<std::filesystem::path>& folders) {
  const std::filesystem::path name(glyph);
  if (name.is_absolute()) {
    if (std::optional<Bitmap> found = ReadBitmap(name)) return found;
  }
  for (const std::filesystem::path& folder : folders) {
    const std::string converted = name.stem().string() + ".xbm";
    if (std::optional<Bitmap> found = ReadBitmap(folder / converted)) return found;
    if (name.is_absolute()) continue;
    if (std::optional<Bitmap> found = ReadBitmap(folder / name)) return found;
  }
  return std::nullopt;
}

}  // namespace port
