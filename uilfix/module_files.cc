// SPDX-License-Identifier: MIT
#include "uilfix/module_files.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace uilfix {
namespace {

bool IsStandard(const std::string& file) { return file.empty() || file == "-"; }

}  // namespace

std::optional<std::string> ReadFile(const std::string& file) {
  std::FILE* stream = IsStandard(file) ? stdin : std::fopen(file.c_str(), "rb");
  if (!stream) return std::nullopt;
  std::string text;
  std::error_code unknown;
  const auto size = std::filesystem::file_size(file, unknown);
  if (!unknown) text.reserve(size);
  char buffer[65536];
  while (const std::size_t read = std::fread(buffer, 1, sizeof buffer, stream)) {
    text.append(buffer, read);
  }
  const bool failed = std::ferror(stream) != 0;
  const int reason = errno;
  if (stream != stdin) std::fclose(stream);
  errno = reason;
  if (failed) return std::nullopt;
  return text;
}

bool WriteFile(const std::string& file, const std::string& text) {
  std::FILE* stream = IsStandard(file) ? stdout : std::fopen(file.c_str(), "wb");
  if (!stream) return false;
  const bool written = std::fwrite(text.data(), 1, text.size(), stream) == text.size();
  const bool flushed = std::fflush(stream) == 0;
  return written && flushed && (stream == stdout || std::fclose(stream) == 0);
}

}  // namespace uilfix
