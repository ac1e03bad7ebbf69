// SPDX-License-Identifier: MIT
// The clean-up of one file's top-level widgets once all of them are converted.
#ifndef PANDREL_PASSES_CLEAN_UP_H
#define PANDREL_PASSES_CLEAN_UP_H

struct Widg;

// Makes unclaimed menus popup menus, takes menus out of the top-level list that starts at *listLink
// (they live on under the widgets that use them), makes the tree valid for the builder's
// version 2.5 and aligns bulletin boards, as far as the flags say. Returns the new first widget,
// null when all were menus; the caller stores it.
Widg* CleanUpTopLevelHierarchy(Widg** listLink);

#endif
