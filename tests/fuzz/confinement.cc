// SPDX-License-Identifier: MIT
#include "confinement.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace {

bool confined = false;
std::vector<std::string> input_files;

constexpr const char* kUnopenable = "unopenable.G";

// A project may name itself and is then read again without end. Here it ends: no file is there any
// more once so many were opened.
constexpr int kMaxOpened = 16;
int opened_files = 0;

// The contents of the named file, null when there is none.
const std::string* FindFile(const char* name) {
  if (opened_files > kMaxOpened) return nullptr;
  const std::size_t length = std::strlen(name);
  if (length == 3 && std::strcmp(name + 1, ".G") == 0) {
    const std::size_t index = static_cast<std::size_t>(name[0] - 'a') + 1;
    return index < input_files.size() ? &input_files[index] : nullptr;
  }
  const bool icon = length >= 5 && std::strcmp(name + length - 5, ".icon") == 0;
  return icon ? &input_files.back() : nullptr;
}

std::FILE* OpenText(const std::string& text) {
  // The stream only reads, but the function takes a writable buffer.
  return fmemopen(const_cast<char*>(text.data()), text.size(), "r");
}

}  // namespace

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier): the linker prescribes these names.
int __real_access(const char* path, int mode);
int __real_stat(const char* path, struct stat* status);
std::FILE* __real_fopen(const char* path, const char* mode);
std::FILE* __real_freopen(const char* path, const char* mode, std::FILE* stream);
int __real_system(const char* command);

int __wrap_access(const char* path, int mode);
int __wrap_stat(const char* path, struct stat* status);
std::FILE* __wrap_fopen(const char* path, const char* mode);
std::FILE* __wrap_freopen(const char* path, const char* mode, std::FILE* stream);
int __wrap_system(const char* command);

int __wrap_access(const char* path, int mode) {
  if (!confined) return __real_access(path, mode);
  if (FindFile(path) != nullptr || std::strcmp(path, kUnopenable) == 0) return 0;
  errno = ENOENT;
  return -1;
}

int __wrap_stat(const char* path, struct stat* status) {
  if (!confined) return __real_stat(path, status);
  if (__wrap_access(path, 0) != 0) return -1;
  *status = {};
  status->st_mode = S_IFREG | 0644;
  return 0;
}

std::FILE* __wrap_fopen(const char* path, const char* mode) {
  // The conversion writes to its output alone; a file written while confined is the fuzzer's
  // finding.
  if (!confined || mode[0] != 'r') return __real_fopen(path, mode);
  const std::string* text = FindFile(path);
  if (text != nullptr) return OpenText(*text);
  errno = ENOENT;
  return nullptr;
}

std::FILE* __wrap_freopen(const char* path, const char* mode, std::FILE* stream) {
  if (!confined) return __real_freopen(path, mode, stream);
  if (stream != stdin) std::abort();  // nothing else is ever reopened
  std::fclose(stdin);
  const std::string* text = FindFile(path);
  ++opened_files;
  static const std::string kNothing;
  stdin = OpenText(text != nullptr ? *text : kNothing);
  const bool opened = text != nullptr || std::strcmp(path, "/dev/null") == 0;
  return opened ? stdin : nullptr;
}

int __wrap_system(const char* command) {
  if (!confined) return __real_system(command);
  if (!IsGlyphCommand(command)) {
    std::fprintf(stderr, "would have run: %s\n", command);
    std::fflush(stderr);
    std::abort();
  }
  return 0;
}
// NOLINTEND(bugprone-reserved-identifier)

}  // extern "C"

Confinement::Confinement(std::vector<std::string> files) {
  input_files = std::move(files);
  if (input_files.empty()) input_files.emplace_back();
  opened_files = 0;
  std::FILE* input = OpenText(input_files.front());
  if (input == nullptr) std::abort();
  stdin = input;
  confined = true;
}

Confinement::~Confinement() {
  confined = false;
  std::fclose(stdin);
  stdin = nullptr;
}
