// SPDX-License-Identifier: MIT
#include "missing_parts.h"

#include <X11/Xutil.h>
#include <Xm/Label.h>
#include <Xm/LabelG.h>

#include <algorithm>
#include <string_view>

#include "uilfix/literals.h"

namespace view {
namespace {

constexpr int kPadding = 4;

// The text in `function("text")`; empty for another value.
std::string CallArgument(const std::string& value, const std::string& function) {
  const std::string open = function + "(";
  std::string inside;
  if (!value.starts_with(open) || !value.ends_with(")")) return "";
  const std::string literal = value.substr(open.size(), value.size() - open.size() - 1);
  return uilfix::PlainString(literal, &inside) ? uilfix::LiteralBytes(inside) : "";
}

bool KnowsColor(Display* display, const std::string& name) {
  XColor color;
  return XParseColor(display, DefaultColormap(display, DefaultScreen(display)), name.c_str(),
                     &color) != 0;
}

}  // namespace

bool CanReadBitmap(const std::string& file) {
  unsigned width = 0;
  unsigned height = 0;
  unsigned char* data = nullptr;
  int hot_x = 0;
  int hot_y = 0;
  const int status = XReadBitmapFileData(file.c_str(), &width, &height, &data, &hot_x, &hot_y);
  if (status == BitmapSuccess) XFree(data);
  return status == BitmapSuccess;
}

std::vector<MissingPart> FindMissingParts(const uilfix::Module& module, Display* display) {
  std::vector<MissingPart> missing;
  const auto add = [&](MissingPart::Kind kind, const std::string& widget, const std::string& name) {
    const bool known = std::any_of(missing.begin(), missing.end(), [&](const MissingPart& part) {
      return part.kind == kind && part.widget == widget && part.name == name;
    });
    if (!known) missing.push_back({kind, widget, name});
  };
  uilfix::ForEachObject(module, [&](const uilfix::Object& object) {
    uilfix::ForEachEntry<uilfix::Argument>(object, [&](const uilfix::Argument& argument) {
      const std::string icon = CallArgument(argument.value, "xbitmapfile");
      if (!icon.empty() && !CanReadBitmap(icon)) add(MissingPart::Kind::kIcon, object.name, icon);
      const std::string color = CallArgument(argument.value, "color");
      if (!color.empty() && !KnowsColor(display, color)) {
        add(MissingPart::Kind::kColor, object.name, color);
      }
    });
  });
  return missing;
}

void DrawIconName(Widget widget, const std::string& name) {
  if (!XmIsLabel(widget) && !XmIsLabelGadget(widget)) return;
  Display* display = XtDisplayOfObject(widget);
  Screen* screen = XtScreenOfObject(widget);
  XFontStruct* font = XLoadQueryFont(display, "fixed");
  if (!font) return;
  Pixel foreground = 0;
  Pixel background = 0;
  XtVaGetValues(widget, XmNforeground, &foreground, XmNbackground, &background, nullptr);
  const int length = static_cast<int>(name.size());
  const int width = XTextWidth(font, name.c_str(), length) + 2 * kPadding;
  const int height = font->ascent + font->descent + 2 * kPadding;
  const Pixmap box = XCreatePixmap(display, RootWindowOfScreen(screen),
                                   static_cast<unsigned>(width), static_cast<unsigned>(height),
                                   static_cast<unsigned>(DefaultDepthOfScreen(screen)));
  const GC gc = XCreateGC(display, box, 0, nullptr);
  XSetFont(display, gc, font->fid);
  XSetForeground(display, gc, background);
  XFillRectangle(display, box, gc, 0, 0, static_cast<unsigned>(width),
                 static_cast<unsigned>(height));
  XSetForeground(display, gc, foreground);
  XDrawRectangle(display, box, gc, 0, 0, static_cast<unsigned>(width - 1),
                 static_cast<unsigned>(height - 1));
  XDrawString(display, box, gc, kPadding, kPadding + font->ascent, name.c_str(), length);
  XFreeGC(display, gc);
  XFreeFont(display, font);
  XtVaSetValues(widget, XmNlabelType, XmPIXMAP, XmNlabelPixmap, box, XmNlabelInsensitivePixmap, box,
                nullptr);
}

}  // namespace view
