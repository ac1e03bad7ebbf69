// SPDX-License-Identifier: MIT
// For fuzzers, which would spend their time on repeated visits.
#ifndef PANDREL_WIDGET_WALK_TESTING_H
#define PANDREL_WIDGET_WALK_TESTING_H

#include <cstddef>

// From now on, walks visit no widget again after this many repeated visits.
void LimitRepeats(std::size_t max_repeats);

#endif
