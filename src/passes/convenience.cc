// SPDX-License-Identifier: MIT
#include "passes/convenience.h"

#include "widget/copy.h"
#include "widget/links.h"
#include "widget/walk.h"

struct ConvenienceRow {
  const char* class_name;
  const char* work_class;
};

static const ConvenienceRow kConvenience[] = {
    {"XmScrolledText", "XmText"},
    {"XmScrolledList", "XmList"},
};

void ReplaceIfConvenienceWidget(Widg* widg) {
  for (const ConvenienceRow& row : kConvenience) {
    if (!IsClass(widg, row.class_name)) continue;
    Widg* work = CopyWidg(widg);
    work->class_name = row.work_class;
    widg->class_name = "XmScrolledWindow";
    AddChildWidg(widg, work);
    return;
  }
}

void ReplaceConvenienceWidgets(Widg* tree) {
  WalkWidgets(
      tree, {WalkStep::kSelf, WalkStep::kNext, WalkStep::kChild}, [](Widg*) { return true; },
      ReplaceIfConvenienceWidget);
}
