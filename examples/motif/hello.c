/* SPDX-License-Identifier: MIT */
/* A complete Motif program around a converted interface, ../hello.G: it makes the window that the
   module tells of in comments, fetches its contents from the compiled module and provides the one
   procedure that the module calls. See the Makefile for how hello.uid comes about. */
#include <Mrm/MrmAppl.h>
#include <Xm/TextF.h>
#include <stdio.h>
#include <stdlib.h>

static Widget window;

/* Called by greetButton. A callback written "greet()" gets no argument worth looking at. */
static void greet(Widget button, XtPointer tag, XtPointer call_data) {
  Widget field = XtNameToWidget(window, "*who");
  char *name = field ? XmTextFieldGetString(field) : NULL;
  (void)button, (void)tag, (void)call_data;
  printf("Hello, %s!\n", name ? name : "whoever you are");
  fflush(stdout);
  XtFree(name);
}

static void fail(const char *message) {
  fprintf(stderr, "hello: %s\n", message);
  exit(1);
}

int main(int argc, char **argv) {
  static MRMRegisterArg procedures[] = {{(char *)"greet", (XtPointer)greet}};
  static char *files[] = {(char *)"hello.uid"};
  XtAppContext app;
  MrmHierarchy hierarchy;
  MrmType type;
  Widget contents;

  /* Before the toolkit starts: it makes the resource manager's widget classes known. */
  MrmInitialize();

  /* The shell block of the module, which is a comment because UIL has no shells: its title, width
     and height are ours to set. */
  window = XtVaAppInitialize(&app, "Hello", NULL, 0, &argc, argv, NULL, XmNtitle, "Hello",
                             XmNwidth, 300, XmNheight, 110, NULL);

  if (MrmOpenHierarchyPerDisplay(XtDisplay(window), 1, files, NULL, &hierarchy) != MrmSUCCESS)
    fail("cannot open hello.uid");

  /* Before the fetch: callbacks are bound while widgets are made. */
  MrmRegisterNames(procedures, XtNumber(procedures));

  /* helloControls is what the shell block lists under "controls". What is fetched by name is not
     managed; what lies inside of it is. */
  if (MrmFetchWidget(hierarchy, (char *)"helloControls", window, &contents, &type) != MrmSUCCESS)
    fail("no helloControls in hello.uid");
  XtManageChild(contents);

  XtRealizeWidget(window);
  XtAppMainLoop(app);
  return 0;
}
