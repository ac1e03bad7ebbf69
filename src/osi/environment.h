// SPDX-License-Identifier: MIT
// The process environment.
#ifndef PANDREL_OSI_ENVIRONMENT_H
#define PANDREL_OSI_ENVIRONMENT_H

// The value of the variable `name`, owned by the environment; null when it is not set.
char* OsiGetEnv(const char* name);

// Sets `name` to `value` for this process and its children. Returns 0; -1 when either is null or
// the environment cannot grow.
int OsiSetEnv(const char* name, const char* value);

// Does nothing: OsiSetEnv takes effect at once. For callers that separate setting from publishing.
void OsiPutEnv();

#endif
