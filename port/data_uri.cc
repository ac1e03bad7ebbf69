// SPDX-License-Identifier: MIT
#include "port/data_uri.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>

namespace port {

std::string Base64(std::string_view bytes) {
  static const char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    uint32_t group = 0;
    for (std::size_t k = 0; k < 3; ++k) {
      group = group << 8 | (i + k < bytes.size() ? static_cast<unsigned char>(bytes[i + k]) : 0u);
    }
    for (std::size_t k = 0; k < 4; ++k) {
      text += i + k > bytes.size() ? '=' : kDigits[group >> (18 - 6 * k) & 0x3F];
    }
  }
  return text;
}

std::string PngDataUri(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  return bytes.starts_with("\x89PNG\r\n") ? "data:image/png;base64," + Base64(bytes) : "";
}

}  // namespace port
