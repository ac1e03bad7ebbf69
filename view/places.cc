// SPDX-License-Identifier: MIT
#include "places.h"

#include <algorithm>
#include <fstream>
#include <map>

#include "picture.h"

namespace view {
namespace {

struct Place {
  bool shown = false;
  int x = 0;
  int y = 0;
};

// The upper left corner with the window manager's frame, which is what the toolkit asks for.
Place PlaceOf(const Window& window) {
  Place place;
  place.shown = IsShown(window);
  if (!place.shown) return place;
  XWindowAttributes at;
  Display* display = XtDisplay(window.shell);
  if (XGetWindowAttributes(display, TopWindow(display, XtWindow(window.shell)), &at)) {
    place.x = at.x;
    place.y = at.y;
  }
  return place;
}

}  // namespace

void SavePlaces(const Windows& windows, const std::filesystem::path& file) {
  std::ofstream out(file);
  for (const Window& window : windows.windows) {
    const Place place = PlaceOf(window);
    out << window.plan.name << ' ' << place.shown << ' ' << place.x << ' ' << place.y << '\n';
  }
}

bool RestorePlaces(const Windows& windows, const std::filesystem::path& file) {
  std::ifstream in(file);
  if (!in) return false;
  std::map<std::string, Place> places;
  Place read;
  for (std::string name; in >> name >> read.shown >> read.x >> read.y;) places[name] = read;
  for (const Window& window : windows.windows) {
    const auto known = places.find(window.plan.name);
    if (known == places.end()) {
      if (IsShownAtStart(window)) ShowWindow(window);
      continue;
    }
    const Place& place = known->second;
    if (!place.shown) continue;
    if (window.plan.dialog && !window.work.empty()) {
      XtVaSetValues(window.work.front(), XmNdefaultPosition, False, XmNx, place.x, XmNy, place.y,
                    nullptr);
    } else {
      XtVaSetValues(window.shell, XmNx, place.x, XmNy, place.y, nullptr);
    }
    ShowWindow(window);
  }
  return true;
}

}  // namespace view
