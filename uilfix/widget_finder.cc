// SPDX-License-Identifier: MIT
#include "uilfix/widget_finder.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <unordered_set>

#include "uilfix/literals.h"

namespace uilfix {
namespace {

constexpr std::size_t kCutLength = 30;
constexpr std::size_t kMostDigits = 9;  // in the number that is added to a name

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

std::string LowerFirst(std::string name) {
  if (!name.empty()) name[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[0])));
  return name;
}

// The last digit as the letter that builder 2.5 puts for it; a 9 stays.
std::string LetterForDigit(std::string name) {
  if (!name.empty() && name.back() >= '0' && name.back() <= '8') name.back() += 'A' - '0';
  return name;
}

// The forms without a number, in the order in which they are looked for.
std::array<std::string, 4> PlainForms(const std::string& gil_name) {
  const std::string lowered = LowerFirst(gil_name);
  const std::string cut = lowered.substr(0, kCutLength);
  return {lowered, LetterForDigit(lowered), cut, LetterForDigit(cut)};
}

bool IsMenu(std::string_view class_name) {
  return class_name == "XmPulldownMenu" || class_name == "XmPopupMenu" ||
         class_name == "XmUnknownMenu";
}

template <typename Map>
std::vector<const Object*> Look(const Map& map, const std::string& key) {
  const auto found = map.find(key);
  return found == map.end() ? std::vector<const Object*>() : found->second;
}

}  // namespace

WidgetFinder::WidgetFinder(const Module& module) : module_(module) {
  named_.reserve(module.items.size());
  ForEachObject(module, [&](const Object& object) {
    const Object*& known = named_[object.name];
    if (!known || (known->IsComment() && !object.IsComment())) known = &object;
  });
}

const Object* WidgetFinder::Named(std::string_view name) const {
  const auto found = named_.find(name);
  return found == named_.end() ? nullptr : found->second;
}

const Object* WidgetFinder::ByGilName(const std::string& gil_name) {
  const auto forms = PlainForms(gil_name);
  for (const std::string& form : forms) {
    if (const Object* object = Named(form)) return object;
  }
  IndexNumbers();
  const auto numbered = Look(numbered_, forms[2]);
  return numbered.size() == 1 ? numbered.front() : nullptr;
}

std::vector<const Object*> WidgetFinder::AllByGilName(const std::string& gil_name,
                                                      std::string_view class_name) {
  const auto forms = PlainForms(gil_name);
  std::vector<const Object*> fitting;
  ForEachObject(module_, [&](const Object& object) {
    if (object.IsComment() || object.class_name != class_name) return;
    if (std::find(forms.begin(), forms.end(), object.name) != forms.end()) {
      fitting.push_back(&object);
    }
  });
  IndexNumbers();
  for (const Object* object : Look(numbered_, forms[2])) {
    const bool known = std::find(fitting.begin(), fitting.end(), object) != fitting.end();
    if (!known && !object->IsComment() && object->class_name == class_name) {
      fitting.push_back(object);
    }
  }
  return fitting;
}

std::vector<const Object*> WidgetFinder::ByLabel(const std::string& label) {
  IndexLabels();
  auto found = Look(items_, label);
  const auto others = Look(labelled_, label);
  found.insert(found.end(), others.begin(), others.end());
  return found;
}

// A number is digits, the last of which may have become a letter. So one name has several bases:
// "ab12" is "ab1" with a 2 and "ab" with a 12.
void WidgetFinder::IndexNumbers() {
  if (has_numbers_) return;
  has_numbers_ = true;
  ForEachObject(module_, [&](const Object& object) {
    const std::string& name = object.name;
    if (name.empty() || name.size() > kCutLength + kMostDigits) return;
    if (!IsDigit(name.back()) && (name.back() < 'A' || name.back() > 'I')) return;
    std::size_t base = name.size() - 1;
    for (;;) {
      numbered_[name.substr(0, base)].push_back(&object);
      if (base == 0 || !IsDigit(name[base - 1])) break;
      --base;
    }
  });
}

void WidgetFinder::IndexLabels() {
  if (has_labels_) return;
  has_labels_ = true;
  std::unordered_set<std::string_view> in_menu;
  ForEachObject(module_, [&](const Object& object) {
    if (!IsMenu(object.class_name)) return;
    ForEachEntry<Control>(object, [&](const Control& control) { in_menu.insert(control.name); });
  });
  ForEachObject(module_, [&](const Object& object) {
    const std::string* value = FindArgument(object, "XmNlabelString");
    std::string inside;
    if (object.IsComment() || !value || !PlainString(*value, &inside)) return;
    auto& index = in_menu.contains(object.name) ? items_ : labelled_;
    index[LiteralBytes(inside)].push_back(&object);
  });
}

}  // namespace uilfix
