// SPDX-License-Identifier: MIT
// Copies widgets. A copy gets an instance name of its own and shares the lists of resources and
// callbacks with its original: to change a resource of one widget changes it for both, and to
// append to a list that is not empty appends for both.
#ifndef PANDREL_WIDGET_COPY_H
#define PANDREL_WIDGET_COPY_H

struct Widg;

// The widget alone: no children, no siblings, no GIL geometry. The new name is made in the
// original's gil_name, which therefore gets a small first letter and may be cut.
Widg* CopyWidg(Widg* widg);

// The widget with a copy of what is below it.
//
// note [only first children keep theirs]
// Of each list of children only the first is copied with its own children; the others are copied
// bare. A menu whose first two items have sub-menus yields a copy with the first sub-menu alone.
Widg* CopyWidgTree(Widg* widg);

// The same, with bare copies of the siblings behind the widget.
Widg* CopyWidgTreeWithSibs(Widg* widg);

#endif
