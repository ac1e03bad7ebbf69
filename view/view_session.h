// SPDX-License-Identifier: MIT
// One interface on one X server, from the compiled module to the end of the last window. Runs in a
// process of its own, since a damaged module may crash the resource manager.
#ifndef PANDREL_VIEW_VIEW_SESSION_H
#define PANDREL_VIEW_VIEW_SESSION_H

#include <filesystem>

#include "input.h"
#include "view_options.h"

namespace view {

struct SessionLinks {
  int ready = -1;                // gets one byte when the windows are made
  bool private_server = false;   // the display is this program's own
  std::filesystem::path places;  // where the windows of the run before were; may not be there
};

// The exit status for a wrong command line.
inline constexpr int kUsage = 2;

// Shows, lists, checks or takes pictures of the interface. The working directory is the
// interface's, and file names in `options` are absolute. On SIGUSR1 the widgets on the screen are
// printed, on SIGUSR2 the places are written and the program ends. Returns the exit status.
int RunSession(const Options& options, const Interface& interface, const SessionLinks& links);

}  // namespace view

#endif
