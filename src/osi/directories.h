// SPDX-License-Identifier: MIT
// Reading directories, and the name of the current one.
#ifndef PANDREL_OSI_DIRECTORIES_H
#define PANDREL_OSI_DIRECTORIES_H

#include <dirent.h>

// Opens the directory "`dir`/`name`" (null parts are empty); null when it cannot be opened. The
// caller closes it with OsiCloseDir.
DIR* OsiOpenDir(const char* dir, const char* name);

// The next entry, owned by `directory` and valid until its next OsiReadDir; null at the end, on a
// read error or for a null `directory`.
struct dirent* OsiReadDir(DIR* directory);

// Closes `directory`. Returns 0; -1 on failure or for null.
int OsiCloseDir(DIR* directory);

// A new copy (OsiMalloc memory) of the full name of the current directory; null when the directory
// was removed, or when the name with its NUL needs more than 1024 bytes.
char* OsiGetCwd();

#endif
