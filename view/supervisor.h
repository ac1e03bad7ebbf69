// SPDX-License-Identifier: MIT
// The process that the user started. It prepares the interface, lets another process show it, and
// cleans up however that one ends.
#ifndef PANDREL_VIEW_SUPERVISOR_H
#define PANDREL_VIEW_SUPERVISOR_H

#include "view_options.h"

namespace view {

// Does what the options ask for and returns the exit status. When a signal that ends programs
// comes, it removes its temporary files, ends its other processes, and then ends by that signal.
int Supervise(Options options);

}  // namespace view

#endif
