// SPDX-License-Identifier: MIT
#include "osi/directories.h"

#include <unistd.h>

#include <string>

#include "osi/strings.h"

DIR* OsiOpenDir(const char* dir, const char* name) {
  std::string path = OsiOrEmpty(dir);
  path += '/';
  if (name) path += name;
  return opendir(path.c_str());
}

struct dirent* OsiReadDir(DIR* directory) {
  return directory ? readdir(directory) : nullptr;
}

int OsiCloseDir(DIR* directory) { return directory ? closedir(directory) : -1; }

char* OsiGetCwd() {
  char name[1024];
  return OsiStrdup(getcwd(name, sizeof name));
}
