// SPDX-License-Identifier: MIT
// The text that a label or button shows.
#ifndef PANDREL_VIEW_LABEL_TEXT_H
#define PANDREL_VIEW_LABEL_TEXT_H

#include <Xm/Xm.h>

#include <memory>
#include <string>

namespace view {

// A text that the toolkit made for its caller.
struct FreedByToolkit {
  void operator()(char* text) const { XtFree(text); }
};
using ToolkitText = std::unique_ptr<char, FreedByToolkit>;

// The text, a line feed for each line end in it. The widget must be a label or label gadget.
std::string LabelString(Widget widget);

}  // namespace view

#endif
