// SPDX-License-Identifier: MIT
#include "check.h"

#include <X11/IntrinsicP.h>
#include <Xm/Label.h>
#include <Xm/LabelG.h>
#include <Xm/RowColumn.h>
#include <Xm/Scale.h>
#include <Xm/ScrollBar.h>
#include <Xm/ScrolledW.h>

#include <algorithm>

#include "geometry_text.h"
#include "gil_names.h"
#include "label_text.h"
#include "widget_tree.h"

namespace view {
namespace {

constexpr const char* kKindNames[] = {"overlap", "cut", "outside", "icon", "color"};

bool IsVisible(Widget widget) {
  if (XtIsShell(widget) || !XtIsManaged(widget)) return false;
  Boolean mapped = True;
  if (XtIsWidget(widget)) XtVaGetValues(widget, XmNmappedWhenManaged, &mapped, nullptr);
  return mapped != False;
}

// In the coordinates of the parent.
Rectangle PlaceOf(Widget widget) {
  Position x = 0;
  Position y = 0;
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(widget, XmNx, &x, XmNy, &y, XmNwidth, &width, XmNheight, &height, nullptr);
  return {x, y, width, height};
}

Rectangle Moved(Rectangle place, int x, int y) {
  place.x += x;
  place.y += y;
  return place;
}

// The common part; its width or height is not positive when there is none.
Rectangle Common(const Rectangle& a, const Rectangle& b) {
  const int x = std::max(a.x, b.x);
  const int y = std::max(a.y, b.y);
  return {x, y, std::min(a.x + a.width, b.x + b.width) - x,
          std::min(a.y + a.height, b.y + b.height) - y};
}

// What the label's text needs less what there is; not positive when it fits. The space for a
// toggle's indicator and a cascade's arrow counts as margin of the side it is on.
struct Need {
  int across = 0;
  int down = 0;
};

Need TextNeed(Widget widget) {
  XmString text = nullptr;
  XmRenderTable letters = nullptr;
  unsigned char type = XmSTRING;
  Dimension shadow = 0;
  Dimension highlight = 0;
  Dimension left = 0;
  Dimension right = 0;
  Dimension top = 0;
  Dimension bottom = 0;
  XtVaGetValues(widget, XmNlabelString, &text, XmNrenderTable, &letters, XmNlabelType, &type,
                XmNshadowThickness, &shadow, XmNhighlightThickness, &highlight, XmNmarginLeft,
                &left, XmNmarginRight, &right, XmNmarginTop, &top, XmNmarginBottom, &bottom,
                nullptr);
  Need need;
  if (type == XmSTRING && text) {
    const Rectangle place = PlaceOf(widget);
    const int frame = 2 * (shadow + highlight);
    Dimension width = 0;
    Dimension height = 0;
    XmStringExtent(letters, text, &width, &height);
    need.across = width - (place.width - frame - left - right);
    need.down = height - (place.height - frame - top - bottom);
  }
  XmStringFree(text);
  return need;
}

class Checker {
 public:
  Checker(const Window& window, const std::vector<std::string>& gil_names,
          std::vector<Finding>& findings)
      : window_(window), gil_names_(gil_names), findings_(findings) {}

  // `x` and `y` are the place of the parent's corner in the window.
  void Check(Widget widget, int x, int y) {
    Rectangle place = Moved(PlaceOf(widget), x, y);
    // A widget that fills a shell may report the shell's place on the screen as its own.
    if (XtIsShell(XtParent(widget))) place.x = place.y = 0;
    if (XmIsLabel(widget) || XmIsLabelGadget(widget)) CheckText(widget, place);
    // Their parts are the toolkit's own.
    if (XmIsScale(widget)) return;
    const std::vector<Widget> children = VisibleChildren(widget);
    if (XmIsScrolledWindow(widget)) {
      for (Widget child : children) {
        if (!XmIsScrollBar(child)) CheckScrolled(child, place);
      }
      return;
    }
    CheckPlaces(widget, place, children);
    for (Widget child : children) Check(child, place.x, place.y);
  }

 private:
  static std::vector<Widget> VisibleChildren(Widget widget) {
    std::vector<Widget> children = ChildrenOf(widget);
    std::erase_if(children, [](Widget child) { return !IsVisible(child); });
    return children;
  }

  // The work area of a scrolled window, or the toolkit's window that clips it: it may reach out.
  void CheckScrolled(Widget widget, const Rectangle& around) {
    const std::string class_name = XtClass(widget)->core_class.class_name;
    if (class_name == "XmClipWindow" || class_name == "ClipWindow") {
      const Rectangle place = Moved(PlaceOf(widget), around.x, around.y);
      for (Widget child : VisibleChildren(widget)) Check(child, place.x, place.y);
    } else {
      Check(widget, around.x, around.y);
    }
  }

  void CheckText(Widget widget, const Rectangle& place) {
    const Need need = TextNeed(widget);
    const std::string text = LabelString(widget);
    if (text.empty() || (need.across <= 0 && need.down <= 0)) return;
    Finding finding = Begin(Finding::Kind::kCut, widget, place);
    finding.other = text;
    finding.across = std::max(need.across, 0);
    finding.down = std::max(need.down, 0);
    findings_.push_back(std::move(finding));
  }

  void CheckPlaces(Widget container, const Rectangle& around, const std::vector<Widget>& children) {
    std::vector<Rectangle> places;
    places.reserve(children.size());
    for (Widget child : children) places.push_back(Moved(PlaceOf(child), around.x, around.y));
    for (std::size_t i = 0; i < children.size(); ++i) {
      const Rectangle inside = Common(places[i], around);
      const int across = places[i].width - std::max(inside.width, 0);
      const int down = places[i].height - std::max(inside.height, 0);
      if (across > 0 || down > 0) {
        Add(Finding::Kind::kOutside, children[i], places[i], container, across, down);
      }
      for (std::size_t j = i + 1; j < children.size(); ++j) {
        const Rectangle common = Common(places[i], places[j]);
        if (common.width > 0 && common.height > 0) {
          Add(Finding::Kind::kOverlap, children[i], places[i], children[j], common.width,
              common.height);
        }
      }
    }
  }

  Finding Begin(Finding::Kind kind, Widget widget, const Rectangle& place) const {
    Finding finding;
    finding.kind = kind;
    finding.widget = XtName(widget);
    finding.object = GuessGilName(gil_names_, finding.widget);
    finding.window = window_.plan.name;
    finding.at = place;
    return finding;
  }

  void Add(Finding::Kind kind, Widget widget, const Rectangle& place, Widget other, int across,
           int down) {
    Finding finding = Begin(kind, widget, place);
    finding.other = XtName(other);
    finding.other_object = GuessGilName(gil_names_, finding.other);
    finding.across = across;
    finding.down = down;
    findings_.push_back(std::move(finding));
  }

  const Window& window_;
  const std::vector<std::string>& gil_names_;
  std::vector<Finding>& findings_;
};

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (char c : text) {
    if (c == '\\') {
      escaped += "\\\\";
    } else if (c == '\t') {
      escaped += "\\t";
    } else if (c == '\n') {
      escaped += "\\n";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string Named(const std::string& widget, const std::string& object) {
  return object.empty() || object == widget ? widget : widget + " (GIL object " + object + ")";
}

}  // namespace

std::vector<Finding> CheckWindow(const Window& window, const std::vector<std::string>& gil_names) {
  std::vector<Finding> findings;
  Checker checker(window, gil_names, findings);
  for (Widget work : window.work) {
    if (IsVisible(work)) checker.Check(work, 0, 0);
  }
  return findings;
}

std::string Sentence(const Finding& finding) {
  const std::string subject = Named(finding.widget, finding.object);
  const std::string place = finding.window + ": " + subject + " " +
                            SizeText(finding.at.width, finding.at.height) +
                            PlaceText(finding.at.x, finding.at.y);
  const std::string amount = SizeText(finding.across, finding.down);
  switch (finding.kind) {
    case Finding::Kind::kOverlap:
      return place + " overlaps " + Named(finding.other, finding.other_object) + " by " + amount;
    case Finding::Kind::kCut:
      return place + " cuts its text \"" + Escaped(finding.other) + "\" by " + amount;
    case Finding::Kind::kOutside:
      return place + " reaches out of " + Named(finding.other, finding.other_object) + " by " +
             amount;
    case Finding::Kind::kIcon:
      return "widget " + subject + ": icon \"" + Escaped(finding.other) + "\" cannot be shown";
    case Finding::Kind::kColor:
      break;
  }
  return "widget " + subject + ": colour \"" + Escaped(finding.other) + "\" is not known";
}

std::string TabLine(const Finding& finding) {
  std::string line = kKindNames[static_cast<int>(finding.kind)];
  for (const std::string& text : {finding.widget, finding.object, finding.window}) {
    line += "\t" + Escaped(text);
  }
  for (int number : {finding.at.x, finding.at.y, finding.at.width, finding.at.height}) {
    line += "\t" + std::to_string(number);
  }
  line += "\t" + Escaped(finding.other) + "\t" + Escaped(finding.other_object);
  return line + "\t" + std::to_string(finding.across) + "\t" + std::to_string(finding.down);
}

}  // namespace view
