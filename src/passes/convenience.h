// SPDX-License-Identifier: MIT
// Replaces Motif's convenience widgets, which the builder's version 2.5 does not read.
#ifndef PANDREL_PASSES_CONVENIENCE_H
#define PANDREL_PASSES_CONVENIENCE_H

struct Widg;

// Replaces every scrolled text and scrolled list of the tree.
void ReplaceConvenienceWidgets(Widg* tree);

// Turns a scrolled text or list into a scrolled window with a text or a list as its last child.
// Both share their resources and callbacks. Leaves other widgets alone.
void ReplaceIfConvenienceWidget(Widg* widg);

#endif
