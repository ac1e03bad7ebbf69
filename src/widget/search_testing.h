// SPDX-License-Identifier: MIT
// For tests and fuzzers: checks every search that was answered from the cache of names.
#ifndef PANDREL_WIDGET_SEARCH_TESTING_H
#define PANDREL_WIDGET_SEARCH_TESTING_H

#include <functional>

struct Widg;

// Called with the result of a search and a function that searches for the same by walking the tree.
using SearchChecker = void (*)(const Widg* found, const std::function<Widg*()>& Plainly);

// From now on every such search is checked; null ends that.
void SetSearchChecker(SearchChecker checker);

#endif
