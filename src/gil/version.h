// SPDX-License-Identifier: MIT
// The GIL version that a file's header names.
#ifndef PANDREL_GIL_VERSION_H
#define PANDREL_GIL_VERSION_H

#include <cstdint>

// Records the version. Version 2 is refused: three lines on standard error, and the run ends with
// status -1.
void SetVersion(int32_t version);

// The last version recorded, 0 when no header was seen. Not forgotten between the files of a
// project.
int32_t GetVersion();

void ResetVersion();

#endif
