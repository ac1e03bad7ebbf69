// SPDX-License-Identifier: MIT
// For tests of exhausted memory.
#ifndef PANDREL_OSI_ARENA_TESTING_H
#define PANDREL_OSI_ARENA_TESTING_H

// Lets the next `successes` requests to the arena succeed and all later ones fail. A negative
// number (the default) lifts the limit.
void ArenaFailAfter(long successes);

#endif
