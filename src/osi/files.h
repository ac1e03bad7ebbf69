// SPDX-License-Identifier: MIT
// Tests, copies and deletes files; makes directories and temporary files. A null name is an empty
// one, and no file has an empty name. Nothing here writes a message.
#ifndef PANDREL_OSI_FILES_H
#define PANDREL_OSI_FILES_H

#include <sys/types.h>

#include <cstdio>

// What OsiFileAccess asks.
enum OsiAccessMode {
  kOsiReadable = 0,
  kOsiWritable = 1,
  kOsiReadOnly = 2,  // readable and not writable
};

// Whether there is a file of any kind, directories included, at `path`.
bool OsiFileExists(const char* path);

// The same test, under a name that says what the caller expects: it does not look at the kind.
bool OsiDirExists(const char* path);

// Whether the mode bits of `path` let the current user do `mode` (an OsiAccessMode, else false):
// the owner's bits when the user owns the file, else the group's when one of the user's groups
// does, else the others'. Only the bits count: the superuser has no more rights than they say, and
// read-only file systems make no difference. False when there is no such file.
//
// The first call reads the user (the real one, as for access(2)) and at most 16 groups; later calls
// use what it read.
bool OsiFileAccess(const char* path, int mode);

// Whether `a` exists and `b` either does not or was modified earlier. False when a name is empty.
bool OsiFileIsNewer(const char* a, const char* b);

// Copies what is left of the open stream `from` to the open stream `to`, neither of which it closes
// or flushes. False when reading or writing failed.
bool OsiFileCopy(FILE* to, FILE* from);

// Removes the name `path` (unlink). Returns 0; -1 on failure or without a name.
int OsiFileDelete(const char* path);

// Makes the directory `path` with the permissions `mode` less the umask. Returns `path`, also when
// there is a file of that name already, of any kind; null when the directory could not be made.
const char* OsiDirCreate(const char* path, mode_t mode);

// The name of a file that does not exist yet, in the directory for temporary files, in a new block
// of 25 bytes (OsiMalloc memory). Does not try whether a file can be made there, and somebody else
// may use the name before the caller does. Use OsiTmpFile when you need only the file.
char* OsiTmpNam();

// A new temporary file without a name, open for writing and reading ("w+"). The caller closes it
// with fclose, which removes it. Null when it cannot be made.
FILE* OsiTmpFile();

#endif
