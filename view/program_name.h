// SPDX-License-Identifier: MIT
// What the viewer's own messages begin with.
#ifndef PANDREL_VIEW_PROGRAM_NAME_H
#define PANDREL_VIEW_PROGRAM_NAME_H

namespace view {

inline constexpr char kProgram[] = "pandrel-view";

}  // namespace view

#endif
