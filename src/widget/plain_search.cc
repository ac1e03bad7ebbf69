// SPDX-License-Identifier: MIT
#include "widget/plain_search.h"

#include "osi/strings.h"

uint32_t NewVisit() {
  static uint32_t last_visit = 0;
  return ++last_visit;
}

Widg* FindWidgPlainly(Widg* tree, const char* name) {
  return FindFirst(tree, [name](const Widg* widg) { return OsiStrcmp(widg->gil_name, name) == 0; });
}

Widg* FindWidgWithChildPlainly(Widg* tree, const char* name) {
  return FindFirst(tree, [name](const Widg* widg) {
    return widg->child && OsiStrcmp(widg->gil_name, name) == 0;
  });
}

Widg* FindParentOfWidgPlainly(Widg* tree, const Widg* widg) {
  return FindFirst(tree, [widg](const Widg* parent) { return IsChild(parent, widg); });
}
