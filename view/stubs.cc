// SPDX-License-Identifier: MIT
// A callback does not get the name under which it was registered, so each name needs a function of
// its own: one instance of a template per place in a list of names.
#include "stubs.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <utility>
#include <vector>

namespace view {
namespace {

struct ReasonRow {
  int reason;
  const char* name;
};

constexpr ReasonRow kReasons[] = {
    {XmCR_ACTIVATE, "XmNactivateCallback"},
    {XmCR_HELP, "XmNhelpCallback"},
    {XmCR_VALUE_CHANGED, "XmNvalueChangedCallback"},
    {XmCR_MODIFYING_TEXT_VALUE, "XmNmodifyVerifyCallback"},
    {XmCR_SINGLE_SELECT, "XmNsingleSelectionCallback"},
    {XmCR_MULTIPLE_SELECT, "XmNmultipleSelectionCallback"},
    {XmCR_BROWSE_SELECT, "XmNbrowseSelectionCallback"},
    {XmCR_EXTENDED_SELECT, "XmNextendedSelectionCallback"},
    {XmCR_DEFAULT_ACTION, "XmNdefaultActionCallback"},
    {XmCR_EXPOSE, "XmNexposeCallback"},
    {XmCR_RESIZE, "XmNresizeCallback"},
    {XmCR_INPUT, "XmNinputCallback"},
    {XmCR_DRAG, "XmNdragCallback"},
    {XmCR_MAP, "XmNmapCallback"},
    {XmCR_UNMAP, "XmNunmapCallback"},
    {XmCR_CASCADING, "XmNcascadingCallback"},
    {XmCR_ARM, "XmNarmCallback"},
    {XmCR_DISARM, "XmNdisarmCallback"},
};

std::vector<std::string>& Names() {
  static std::vector<std::string> names;
  return names;
}

void Announce(std::size_t place, Widget widget, XtPointer data) {
  const auto* any = static_cast<const XmAnyCallbackStruct*>(data);
  std::cout << XtName(widget) << ": " << (any ? ReasonName(any->reason) : "no reason") << " -> "
            << Names()[place] << std::endl;
}

template <std::size_t kPlace>
void Stub(Widget widget, XtPointer, XtPointer data) {
  Announce(kPlace, widget, data);
}

template <std::size_t... kPlaces>
constexpr std::array<XtCallbackProc, sizeof...(kPlaces)> MakeStubs(
    std::index_sequence<kPlaces...>) {
  return {Stub<kPlaces>...};
}

constexpr auto kStubs = MakeStubs(std::make_index_sequence<kMaxStubs>());

}  // namespace

XtCallbackProc StubFor(const std::string& name) {
  std::vector<std::string>& names = Names();
  const auto found = std::find(names.begin(), names.end(), name);
  const auto place = static_cast<std::size_t>(found - names.begin());
  if (found == names.end()) {
    if (names.size() == kMaxStubs) return nullptr;
    names.push_back(name);
  }
  return kStubs[place];
}

std::string ReasonName(int reason) {
  for (const ReasonRow& row : kReasons) {
    if (row.reason == reason) return row.name;
  }
  return "reason " + std::to_string(reason);
}

}  // namespace view
