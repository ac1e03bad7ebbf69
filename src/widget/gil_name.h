// SPDX-License-Identifier: MIT
#ifndef PANDREL_WIDGET_GIL_NAME_H
#define PANDREL_WIDGET_GIL_NAME_H

struct Widg;

// Gives the widget another GIL name, which is shared, not copied, and by which searches find it
// from now on.
void SetGilName(Widg* widg, char* gil_name);

#endif
