// SPDX-License-Identifier: MIT
// The GIL version that a file's header names.
#ifndef PANDREL_GIL_VERSION_H
#define PANDREL_GIL_VERSION_H

#include <cstdint>

// Records the version. For version 2 writes three lines on standard error and ends the run with
// status -1.
void SetVersion(int32_t version);

// The last version recorded, 0 when no header was seen. Kept from one file of a project to
// the next.
int32_t GetVersion();

void ResetVersion();

#endif
