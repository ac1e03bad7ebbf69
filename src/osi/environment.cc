// SPDX-License-Identifier: MIT
#include "osi/environment.h"

#include <cstdlib>

#include "osi/strings.h"

char* OsiGetEnv(const char* name) { return std::getenv(OsiOrEmpty(name)); }

int OsiSetEnv(const char* name, const char* value) {
  if (!name || !value) return -1;
  // The string becomes part of the environment, which somebody may read until the process ends.
  // Never free it, not even when the variable is set again.
  char* assignment = OsiStrAppend(OsiStrAppend(nullptr, name, "="), value);
  return putenv(assignment) == 0 ? 0 : -1;
}

void OsiPutEnv() {}
