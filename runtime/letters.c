/* SPDX-License-Identifier: MIT */
#include "letters.h"

#include <X11/Xlib.h>
#include <X11/Xresource.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* A resource's name: application, rendition, resource. Longer ones are cut, and then not found. */
#define NAME_SIZE 300

static const double millimetres_per_inch = 25.4;
static const double points_per_inch = 72.0;

/* The text of a rendition's resource; null when there is none. */
static const char* Lookup(Display* display, const char* rendition, const char* resource) {
  char name[NAME_SIZE];
  char class_name[NAME_SIZE];
  String application = NULL;
  String application_class = NULL;
  char* type = NULL;
  XrmValue value;
  XtGetApplicationNameAndClass(display, &application, &application_class);
  snprintf(name, sizeof name, "%s.%s.%s", application, rendition, resource);
  snprintf(class_name, sizeof class_name, "%s.Rendition.Font", application_class);
  return XrmGetResource(XtDatabase(display), name, class_name, &type, &value) ? value.addr : NULL;
}

/* For any shell: a program may have several, each of another name. */
static void Put(Display* display, const char* rendition, const char* resource, const char* value) {
  char name[NAME_SIZE];
  XrmDatabase database = XtDatabase(display);
  snprintf(name, sizeof name, "?*%s.%s", rendition, resource);
  XrmPutStringResource(&database, name, value);
}

static Boolean ServerHas(Display* display, const char* font) {
  int count = 0;
  char** names = XListFonts(display, font, 1, &count);
  if (names) XFreeFontNames(names);
  return count > 0;
}

/* Xft takes sizes in points, which it makes pixels of by this. */
static double DotsPerInch(Display* display) {
  const int screen = DefaultScreen(display);
  const char* set = XGetDefault(display, "Xft", "dpi");
  const double dots = set ? atof(set) : 0;
  if (dots > 0) return dots;
  if (DisplayHeightMM(display, screen) <= 0) return points_per_inch;
  return DisplayHeight(display, screen) * millimetres_per_inch / DisplayHeightMM(display, screen);
}

static Boolean Substitute(Display* display, const char* rendition) {
  const char* font = Lookup(display, rendition, "fontName");
  const char* type = Lookup(display, rendition, "fontType");
  const char* family = Lookup(display, rendition, "substituteName");
  const char* style = Lookup(display, rendition, "substituteStyle");
  const char* pixels = Lookup(display, rendition, "substitutePixels");
  char points[32];
  if (!font || !type || strcmp(type, "FONT_IS_FONT") != 0 || !family || !pixels) return False;
  if (ServerHas(display, font)) return False;
  snprintf(points, sizeof points, "%d",
           (int)(atof(pixels) * points_per_inch / DotsPerInch(display) + 0.5));
  Put(display, rendition, "fontType", "FONT_IS_XFT");
  Put(display, rendition, "fontName", family);
  Put(display, rendition, "fontSize", points);
  if (style) Put(display, rendition, "fontStyle", style);
  return True;
}

Boolean UseSubstituteLetters(Display* display) {
  const Boolean plain = Substitute(display, "plain");
  const Boolean bold = Substitute(display, "bold");
  return plain || bold;
}
