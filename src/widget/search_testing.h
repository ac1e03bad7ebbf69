// SPDX-License-Identifier: MIT
// For tests and fuzzers: a look at every search that was answered from what is known of names.
#ifndef PANDREL_WIDGET_SEARCH_TESTING_H
#define PANDREL_WIDGET_SEARCH_TESTING_H

#include <functional>

struct Widg;

// Called with what a search found and a function that goes through the tree for the same.
using SearchChecker = void (*)(const Widg* found, const std::function<Widg*()>& Plainly);

// From now on every such search is checked; null ends that.
void SetSearchChecker(SearchChecker checker);

#endif
