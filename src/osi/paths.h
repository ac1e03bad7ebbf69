// SPDX-License-Identifier: MIT
// Builds and splits file names, and looks for programs along PATH. Two functions return a static
// buffer of their own, which their next call overwrites.
#ifndef PANDREL_OSI_PATHS_H
#define PANDREL_OSI_PATHS_H

// `dir` and `name` joined, with a "/" between them unless `dir` ends in one; null parts are empty.
// The next call overwrites the result; `dir` and `name` may lie in the result of the call before.
// Cuts what is longer than the buffer, which holds twice the longest path of the system.
char* OsiMakePath(const char* dir, const char* name);

// The first file `name` in the directories of PATH, in their order, that is not a directory and
// that its owner may execute (the current user perhaps not). Skips empty entries of PATH. Null when
// there is none or PATH is unset. The next call overwrites the result.
char* OsiFileFindExeInPath(const char* name);

// Splits `path` at its last "/" into two new strings (OsiMalloc memory, the caller's); either
// output may be null. Without a "/" the directory is the current one, by its full name. For "/name"
// the directory is "", which OsiMakePath joins back to "/name".
void OsiFileComponents(const char* path, char** dir, char** file);

// A new string, `dir` followed by "/bin/".
char* OsiFileConstructBinPath(const char* dir);

#endif
