// SPDX-License-Identifier: MIT
#include "label_text.h"

#include <memory>

namespace view {
namespace {

struct Freed {
  void operator()(char* text) const { XtFree(text); }
};

}  // namespace

std::string LabelString(Widget widget) {
  char newline[] = "\n";
  XmString label = nullptr;
  XtVaGetValues(widget, XmNlabelString, &label, nullptr);
  XmString separator = XmStringSeparatorCreate();
  Arg arguments[2];
  XtSetArg(arguments[0], XmNpattern, newline);
  XtSetArg(arguments[1], XmNsubstitute, separator);
  XmParseMapping mapping = XmParseMappingCreate(arguments, 2);
  const std::unique_ptr<char, Freed> text(static_cast<char*>(
      XmStringUnparse(label, nullptr, XmCHARSET_TEXT, XmCHARSET_TEXT, &mapping, 1, XmOUTPUT_ALL)));
  XmParseMappingFree(mapping);
  XmStringFree(separator);
  XmStringFree(label);
  return text ? text.get() : "";
}

}  // namespace view
