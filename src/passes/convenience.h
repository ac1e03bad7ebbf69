// SPDX-License-Identifier: MIT
// Spelling out Motif's convenience widgets, which the builder's version 2.5 does not read.
#ifndef PANDREL_PASSES_CONVENIENCE_H
#define PANDREL_PASSES_CONVENIENCE_H

struct Widg;

// Replaces every scrolled text and scrolled list of the tree.
void ReplaceConvenienceWidgets(Widg* tree);

// A scrolled text or list becomes a scrolled window with the work widget as its last child: a copy,
// so that both carry the same resources and callbacks. Other widgets stay.
void ReplaceIfConvenienceWidget(Widg* widg);

#endif
