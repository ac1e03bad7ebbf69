// SPDX-License-Identifier: MIT
// Building and taking apart file names, and looking for programs along PATH. Two functions answer
// in a buffer of their own that their next call overwrites; both buffers grow with what they must
// hold, so no name is too long for them.
#ifndef PANDREL_OSI_PATHS_H
#define PANDREL_OSI_PATHS_H

// `dir` and `name` joined, with a "/" between them unless `dir` ends in one; null parts are empty.
// The result stands in one buffer, which the next call overwrites; the arguments may be the result of
// the one before. What is longer than the buffer, twice the longest path of the system, is cut.
char* OsiMakePath(const char* dir, const char* name);

// The first file `name` in the directories of PATH, in their order, that is not a directory and
// whose owner may execute it (whether the current user may is not asked). Empty PATH entries are
// skipped. Null when there is none or PATH is unset. The result stands in a buffer of its own, which
// the next call overwrites.
char* OsiFileFindExeInPath(const char* name);

// Splits `path` at its last "/" into two new strings (OsiMalloc memory, the caller's); either
// output may be null. Without a "/" the directory is the current one, by its full name. For "/name"
// the directory is "", which OsiMakePath joins back to "/name".
void OsiFileComponents(const char* path, char** dir, char** file);

// A new string, `dir` followed by "/bin/".
char* OsiFileConstructBinPath(const char* dir);

#endif
