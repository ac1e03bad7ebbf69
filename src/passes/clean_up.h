// SPDX-License-Identifier: MIT
// The clean-up of one file's top-level widgets, once all of them are converted.
#ifndef PANDREL_PASSES_CLEAN_UP_H
#define PANDREL_PASSES_CLEAN_UP_H

struct Widg;

// Makes unclaimed menus popup menus, and takes menus out of the top-level list that starts at
// *listLink (the widgets that use them keep them). As the flags say, makes the tree valid for the
// builder's version 2.5 and aligns bulletin boards. Returns the new first widget, null when all
// were menus; the caller stores it.
Widg* CleanUpTopLevelHierarchy(Widg** listLink);

#endif
