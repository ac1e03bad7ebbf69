// SPDX-License-Identifier: MIT
// The writer: the widget tree as one UIL module. It alone knows about tabs, blank lines and the
// marks that turn lines into comments; values come ready-made. The layout is exact, since a GUI
// builder reads modules back and users compare them. Equal trees give equal bytes.
#ifndef PANDREL_UIL_WRITER_H
#define PANDREL_UIL_WRITER_H

#include <cstdio>

struct Widg;

// Writes the module: head, one declaration for each procedure of the procedure list, the objects of
// the top-level list, foot. Marks the widgets as written. The caller finds write errors on the
// stream.
void GenUILForWidgHierarchy(Widg* top, std::FILE* output);

#endif
