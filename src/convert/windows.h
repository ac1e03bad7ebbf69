// SPDX-License-Identifier: MIT
// The special processing of windows, popup windows and canvases.
#ifndef PANDREL_CONVERT_WINDOWS_H
#define PANDREL_CONVERT_WINDOWS_H

struct Obj;
struct Widg;

// A shell has one child. These put a board between the shell and its children unless it has exactly
// one child, and return the shell.
Widg* SpecProcBaseWindow(Obj* obj, Widg* shell);
Widg* SpecProcPopupWindow(Obj* obj, Widg* shell);

// Returns the canvas, or the scrolled window around it when it has scroll bars.
Widg* SpecProcCanvasPane(Obj* obj, Widg* canvas);

#endif
