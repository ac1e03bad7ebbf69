// SPDX-License-Identifier: MIT
#include "osi/paths.h"

#include <sys/stat.h>

#include <string>

#include "osi/directories.h"
#include "osi/environment.h"
#include "osi/strings.h"

static std::string Join(const std::string& dir, const char* name) {
  std::string path = dir;
  if (path.empty() || path.back() != '/') path += '/';
  if (name) path += name;
  return path;
}

char* OsiMakePath(const char* dir, const char* name) {
  static std::string joined;
  joined = Join(dir ? dir : "", name);
  return joined.data();
}

static bool IsOwnerExecutable(const char* path) {
  struct stat status;
  return stat(path, &status) == 0 && (status.st_mode & S_IXUSR) != 0 && !S_ISDIR(status.st_mode);
}

char* OsiFileFindExeInPath(const char* name) {
  static std::string found;
  const char* path = OsiGetEnv("PATH");
  if (!path) return nullptr;
  const std::string directories = path;
  for (std::size_t start = 0; start <= directories.size();) {
    std::size_t end = directories.find(':', start);
    if (end == std::string::npos) end = directories.size();
    if (end > start) {
      std::string candidate = Join(directories.substr(start, end - start), name);
      if (IsOwnerExecutable(candidate.c_str())) {
        found = std::move(candidate);
        return found.data();
      }
    }
    start = end + 1;
  }
  return nullptr;
}

void OsiFileComponents(const char* path, char** dir, char** file) {
  const std::string whole = path ? path : "";
  std::size_t slash = whole.rfind('/');
  bool has_dir = slash != std::string::npos;
  if (dir) *dir = has_dir ? OsiStrdup(whole.substr(0, slash).c_str()) : OsiGetCwd();
  // A current directory without a usable name (removed, or too deep) can still be called ".".
  if (dir && !*dir) *dir = OsiStrdup(".");
  if (file) *file = OsiStrdup(whole.c_str() + (has_dir ? slash + 1 : 0));
}

char* OsiFileConstructBinPath(const char* dir) { return OsiStrAppend(nullptr, dir, "/bin/"); }
