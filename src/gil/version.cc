// SPDX-License-Identifier: MIT
#include "gil/version.h"

#include <cstdio>

#include "osi/fatal.h"

static int32_t gilVersion = 0;

void SetVersion(int32_t version) {
  gilVersion = version;
  if (version != 2) return;
  std::fputs(
      "Error: GIL file is GIL version 2\n"
      "    Import GIL and Pandrel only handle GIL version 3\n"
      "    Read the GIL file into Devguide version 3 and resave to be able to convert it\n",
      stderr);
  OsiExit(-1);
}

int32_t GetVersion() { return gilVersion; }

void ResetVersion() { gilVersion = 0; }
