// SPDX-License-Identifier: MIT
// The connection to the X server, and the toolkit's errors and warnings.
#ifndef PANDREL_VIEW_TOOLKIT_H
#define PANDREL_VIEW_TOOLKIT_H

#include <Xm/Xm.h>

#include <chrono>
#include <string>
#include <vector>

namespace view {

struct Toolkit {
  XtAppContext app = nullptr;
  Display* display = nullptr;  // null when it could not be opened
  std::string display_name;    // as asked for, for the message
  bool alone = false;          // there is no other client, and so no window manager
};

// Starts the toolkit with its own options ("-display", ...) and opens the display. X errors and
// toolkit warnings go to standard error from here on; X errors do not end the program.
Toolkit StartToolkit(const std::vector<std::string>& toolkit_options);

// How many X errors there were.
int XErrorCount();

// Handles events until all requests are done and drawn. With other clients on the server, which may
// take part in them, waits until no event comes for a while, at most two seconds.
void Settle(const Toolkit& toolkit);

// The text of a resource of the program itself, such as "geometry" (set by -geometry); empty when
// nobody set it.
std::string ProgramResource(const Toolkit& toolkit, const std::string& name);

}  // namespace view

#endif
