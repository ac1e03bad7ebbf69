// SPDX-License-Identifier: MIT
// OPEN LOOK's own names of colours.
#ifndef PANDREL_PORT_COLORS_H
#define PANDREL_PORT_COLORS_H

#include <string>

namespace port {

// The colour by a name that every X server knows; any other name as it is.
std::string KnownColor(const std::string& name);

}  // namespace port

#endif
