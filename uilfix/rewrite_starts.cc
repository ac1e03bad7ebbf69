// SPDX-License-Identifier: MIT
// The initial values of sliders and gauges, and the items of a list that are selected at the start.
// The GIL file has them and the module does not: an OPEN LOOK program sets them itself.
#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

#include "uilfix/item_list.h"
#include "uilfix/rewrites.h"
#include "uilfix/widget_finder.h"

namespace uilfix {
namespace {

// Where the widget of one class is that each GIL object of one name became.
class Matcher {
 public:
  explicit Matcher(const Module& module) : finder_(module) {
    for (const GilStart& start : module.starts) ++count_[{start.list, start.name}];
  }

  // The widget of the next GIL object of this name; null when names do not tell.
  const Object* Next(const GilStart& start) {
    const std::pair<bool, std::string> key(start.list, start.name);
    auto fitting = finder_.AllByGilName(start.name, start.list ? "XmList" : "XmScale");
    // A number in a widget's name may be of the GIL name itself.
    std::erase_if(fitting, [&](const Object* widget) {
      return widget->name != start.name && count_.contains({start.list, widget->name});
    });
    const std::size_t index = next_[key]++;
    return fitting.size() == count_[key] ? fitting[index] : nullptr;
  }

 private:
  WidgetFinder finder_;
  std::map<std::pair<bool, std::string>, std::size_t> count_;
  std::map<std::pair<bool, std::string>, std::size_t> next_;
};

long NumberOf(const Object& object, std::string_view resource, long otherwise) {
  const std::string* value = FindArgument(object, resource);
  if (!value) return otherwise;
  long number = otherwise;
  std::from_chars(value->data(), value->data() + value->size(), number);
  return number;
}

// Motif accepts only a value between the ends of the scale; its default ends are 0 and 100.
void SetValue(Object& scale, long value, Report& report) {
  if (FindArgument(scale, "XmNvalue")) return;
  const long least = NumberOf(scale, "XmNminimum", 0);
  const long most = NumberOf(scale, "XmNmaximum", 100);
  const std::string number = std::to_string(std::max(least, std::min(value, most)));
  if (!AddArgument(scale, "XmNvalue", number)) return;
  report.Add(scale.line, scale.name + " now starts at " + number);
}

const Argument* FindItems(const Object& list) {
  const Argument* found = nullptr;
  ForEachEntry<Argument>(list, [&](const Argument& argument) {
    if (!found && argument.resource == "XmNitems" && !IsCommented(argument.lead)) found = &argument;
  });
  return found;
}

bool TakesSeveral(const Object& list) {
  const std::string* policy = FindArgument(list, "XmNselectionPolicy");
  return policy && (*policy == "XmMULTIPLE_SELECT" || *policy == "XmEXTENDED_SELECT");
}

void SetSelection(Object& list, std::vector<bool> selections, Report& report) {
  const Argument* argument = FindItems(list);
  if (!argument || FindArgument(list, "XmNselectedItems")) return;
  const auto items = SplitItems(argument->value);
  if (!items || items->size() != selections.size()) return;
  if (!IsInFileOrder(*argument)) std::reverse(selections.begin(), selections.end());
  std::vector<std::string> selected;
  for (std::size_t i = 0; i < items->size(); ++i) {
    if (selections[i] && (selected.empty() || TakesSeveral(list))) selected.push_back((*items)[i]);
  }
  if (selected.empty()) return;
  const std::string count = std::to_string(selected.size());
  if (!AddArgument(list, "XmNselectedItems", JoinItems(selected))) return;
  AddArgument(list, "XmNselectedItemCount", count);
  report.Add(list.line, list.name + " now starts with " + count + " of its items selected");
}

}  // namespace

void FixStarts(Module& module, Report& report) {
  if (module.starts.empty()) return;
  Matcher matcher(module);
  std::map<const Object*, const GilStart*> wanted;
  for (const GilStart& start : module.starts) {
    if (const Object* widget = matcher.Next(start)) wanted[widget] = &start;
  }
  ForEachObject(module, [&](Object& object) {
    const auto found = wanted.find(&object);
    if (found == wanted.end()) return;
    const GilStart& start = *found->second;
    if (start.list) SetSelection(object, start.selections, report);
    if (!start.list && start.value) SetValue(object, *start.value, report);
  });
}

}  // namespace uilfix
