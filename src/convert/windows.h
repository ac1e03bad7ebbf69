// SPDX-License-Identifier: MIT
// The special processing of what holds controls: windows, popup windows, canvases, control areas.
#ifndef PANDREL_CONVERT_WINDOWS_H
#define PANDREL_CONVERT_WINDOWS_H

struct Obj;
struct Widg;

// A shell has one child: gets a work area between itself and its children unless there is just one.
Widg* SpecProcBaseWindow(Obj* obj, Widg* shell);
Widg* SpecProcPopupWindow(Obj* obj, Widg* shell);

// Returns the canvas, or the scrolled window around it when it has scroll bars.
Widg* SpecProcCanvasPane(Obj* obj, Widg* canvas);

#endif
