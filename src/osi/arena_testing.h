// SPDX-License-Identifier: MIT
// For tests of what is said when memory is exhausted.
#ifndef PANDREL_OSI_ARENA_TESTING_H
#define PANDREL_OSI_ARENA_TESTING_H

// The first `successes` requests to the arena from now on are served, all later ones fail. A
// negative number (the default) lifts the limit.
void ArenaFailAfter(long successes);

#endif
