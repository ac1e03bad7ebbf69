// SPDX-License-Identifier: MIT
#include "widget/gil_name.h"

#include "widget/known_names.h"
#include "widget/tree.h"

void SetGilName(Widg* widg, char* gil_name) {
  const char* former = widg->gil_name;
  widg->gil_name = gil_name;
  NamesRenamed(widg, former);
}
