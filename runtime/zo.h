/* SPDX-License-Identifier: MIT */
/*
 * The builder's run-time procedures: what a UIL module calls without the application having it.
 * They show, hide, enable and disable widgets, set resources, check numbers and show help.
 *
 * These two files stand alone: an application compiles zo.c and links -lMrm -lXm -lXt -lX11. Call
 * ZoRegister() after MrmInitialize() and before the first MrmFetchWidget(); nothing else is needed.
 *
 * The argument of a procedure is the text in the module, "name" or "(WL)[name]" for a widget. A
 * null or empty one is no argument, and the call does nothing. The widget is looked for by
 * XtName(): in the window of the caller first, then in the window's owners, then in every shell of
 * the display, dialogs and menus included. A name that no widget has is reported once per
 * procedure.
 */
#ifndef ZO_H
#define ZO_H

#include <Xm/Xm.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Shows or hides the widget that the argument names; see ZoShow() and ZoHide(). */
void ZoManageCB(Widget caller, XtPointer argument, XtPointer call_data);
void ZoUnmanageCB(Widget caller, XtPointer argument, XtPointer call_data);

/* Sets one resource: "name.resource=value", the value converted from text. The name may hold dots.
   The resource mappedWhenManaged of a shell shows or hides it; of another widget, setting it brings
   the widget to the front. */
void ZoSetValuesCB(Widget caller, XtPointer argument, XtPointer call_data);

/* Lets the widget that the argument names take input, or not. */
void ZoSetSensitiveCB(Widget caller, XtPointer argument, XtPointer call_data);
void ZoSetInsensitiveCB(Widget caller, XtPointer argument, XtPointer call_data);

/* For XmNmodifyVerifyCallback of a text widget: lets digits through, and one sign at the start. */
void ZoVerifyNumericCB(Widget caller, XtPointer argument, XtPointer call_data);

/* Shows its argument, a text of one or more lines, in a dialog. */
void ZoHelpCB(Widget caller, XtPointer argument, XtPointer call_data);

/* Makes all of the above known to the resource manager. */
void ZoRegister(void);

/* The procedure of this name; null when it is none of the above. */
XtCallbackProc ZoProcedure(const char* name);

/* Shows or hides a window or a part of one. For a shell, and for what fills a shell, that is the
   window: a base window is popped up or down, a dialog's contents are managed or unmanaged. Any
   other widget is managed or unmanaged. */
void ZoShow(Widget widget);
void ZoHide(Widget widget);

/* The widget of this name as a procedure called by `caller` finds it; null when there is none. */
Widget ZoFind(Widget caller, const char* name);

/* Takes the messages about wrong arguments. The text has no line end and lives as long as the call.
   Without one they go to standard error, after the application's name. */
typedef void (*ZoReportProc)(Widget caller, const char* message);

/* Replaces the procedure that takes messages, null for that of the start. Returns the former. */
ZoReportProc ZoSetReport(ZoReportProc report);

#ifdef __cplusplus
}
#endif

#endif
