// SPDX-License-Identifier: MIT
#include "osi/paths.h"

#include <limits.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "osi/directories.h"
#include "osi/environment.h"
#include "osi/owned_text.h"
#include "osi/strings.h"

// Longer than any path that the system takes, so nobody misses what is cut off.
using PathBuffer = char[2 * PATH_MAX];

// Joins `dir` and `name` in the buffer; either may lie in it.
static char* Join(const char* dir, const char* name, PathBuffer& buffer) {
  std::string path = OsiOrEmpty(dir);
  if (path.empty() || path.back() != '/') path += '/';
  if (name) path += name;
  std::snprintf(buffer, sizeof buffer, "%s", path.c_str());
  return buffer;
}

char* OsiMakePath(const char* dir, const char* name) {
  static PathBuffer path;
  return Join(dir, name, path);
}

static bool IsOwnerExecutable(const char* path) {
  struct stat status;
  return stat(path, &status) == 0 && (status.st_mode & S_IXUSR) != 0 && !S_ISDIR(status.st_mode);
}

char* OsiFileFindExeInPath(const char* name) {
  static PathBuffer found;
  const char* path = OsiGetEnv("PATH");
  if (!path) return nullptr;
  const OsiOwnedText directories(OsiStrdup(path));
  char* rest = directories.get();
  while (const char* directory = strtok_r(rest, ":", &rest)) {
    if (IsOwnerExecutable(Join(directory, name, found))) return found;
  }
  return nullptr;
}

void OsiFileComponents(const char* path, char** dir, char** file) {
  const std::string whole = OsiOrEmpty(path);
  std::size_t slash = whole.rfind('/');
  bool has_dir = slash != std::string::npos;
  if (dir) *dir = has_dir ? OsiStrdup(whole.substr(0, slash).c_str()) : OsiGetCwd();
  // "." also names a current directory that has no other name (removed, or too deep).
  if (dir && !*dir) *dir = OsiStrdup(".");
  if (file) *file = OsiStrdup(whole.c_str() + (has_dir ? slash + 1 : 0));
}

char* OsiFileConstructBinPath(const char* dir) { return OsiStrAppend(nullptr, dir, "/bin/"); }
