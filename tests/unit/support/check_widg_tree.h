// SPDX-License-Identifier: MIT
// A check of the links of a widget tree. Odd links are allowed in the middle of a conversion, and
// some conversions leave shared widgets behind on purpose; on ordinary input each pass must leave a
// tree.
#ifndef PANDREL_TESTS_UNIT_SUPPORT_CHECK_WIDG_TREE_H
#define PANDREL_TESTS_UNIT_SUPPORT_CHECK_WIDG_TREE_H

#include <string>

struct Widg;

// The links of the sibling list `tree`, and of all below it, that disagree: one line for every list
// that runs in a circle and for every widget that is reached a second time, with the instance names
// of the widgets. Empty when the links make a tree.
std::string CheckWidgTree(const Widg* tree);

#endif
