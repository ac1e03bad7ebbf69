// SPDX-License-Identifier: MIT
#include "label_text.h"

namespace view {
namespace {

XmParseMapping SeparatorsAsLineEnds() {
  static char newline[] = "\n";
  XmString separator = XmStringSeparatorCreate();
  Arg arguments[2];
  XtSetArg(arguments[0], XmNpattern, newline);
  XtSetArg(arguments[1], XmNsubstitute, separator);
  XmParseMapping mapping = XmParseMappingCreate(arguments, 2);
  XmStringFree(separator);
  return mapping;
}

}  // namespace

std::string LabelString(Widget widget) {
  static XmParseMapping line_ends = SeparatorsAsLineEnds();
  XmString label = nullptr;
  XtVaGetValues(widget, XmNlabelString, &label, nullptr);
  const ToolkitText text(static_cast<char*>(XmStringUnparse(
      label, nullptr, XmCHARSET_TEXT, XmCHARSET_TEXT, &line_ends, 1, XmOUTPUT_ALL)));
  XmStringFree(label);
  return text ? text.get() : "";
}

}  // namespace view
