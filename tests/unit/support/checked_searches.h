// SPDX-License-Identifier: MIT
// Has searches judged by going through the tree, in unit tests and in fuzzers.
#ifndef PANDREL_TESTS_UNIT_SUPPORT_CHECKED_SEARCHES_H
#define PANDREL_TESTS_UNIT_SUPPORT_CHECKED_SEARCHES_H

#include <cstdio>
#include <cstdlib>
#include <functional>

#include "widget/search_testing.h"

// From now on the process aborts where a search and the tree disagree; `false` ends that. The first
// thousands of searches are all judged, later ones now and then, since going through a large tree
// each time would take minutes.
inline void CheckSearches(bool check) {
  static unsigned searches = 0;
  searches = 0;
  if (!check) return SetSearchChecker(nullptr);
  SetSearchChecker([](const Widg* found, const std::function<Widg*()>& Plainly) {
    constexpr unsigned kAll = 4000;
    constexpr unsigned kNowAndThen = 64;
    ++searches;
    if (searches > kAll && searches % kNowAndThen != 0) return;
    if (Plainly() == found) return;
    std::fputs("A search and the tree disagree\n", stderr);
    std::abort();
  });
}

#endif
