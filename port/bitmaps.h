// SPDX-License-Identifier: MIT
// The bitmaps that the module names, copied beside it.
#ifndef PANDREL_PORT_BITMAPS_H
#define PANDREL_PORT_BITMAPS_H

#include "port/port_session.h"
#include "uilfix/module.h"

namespace port {

// Puts every bitmap file that the module names into the model, read from the working folder of the
// conversion. A name that leads out of the program's folder is replaced by one in "bitmaps".
void TakeBitmaps(Session& session, uilfix::Module& module);

// The same for buttons that show a glyph: the conversion gives them the file's name as their text.
void TakeButtonGlyphs(Session& session);

}  // namespace port

#endif
