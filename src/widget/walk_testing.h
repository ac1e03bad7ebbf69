// SPDX-License-Identifier: MIT
// For fuzzers, which would spend their time on repeated visits.
#ifndef PANDREL_WIDGET_WALK_TESTING_H
#define PANDREL_WIDGET_WALK_TESTING_H

#include <cstddef>

// Walks from now on give up after so many repeats.
void LimitRepeats(std::size_t max_repeats);

#endif
