// SPDX-License-Identifier: MIT
// From what a GIL file calls an object to the widget that it became.
#ifndef PANDREL_UILFIX_WIDGET_FINDER_H
#define PANDREL_UILFIX_WIDGET_FINDER_H

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "uilfix/module.h"

namespace uilfix {

// Goes by the names and labels that the module held when this was made; the module must outlive it
// and keep its objects where they are.
class WidgetFinder {
 public:
  explicit WidgetFinder(const Module& module);

  // The first live object of this very name, else the first commented one, else null.
  const Object* Named(std::string_view name) const;

  // The object that a GIL name means: the first that has one of the forms that the name takes in a
  // module (its first letter lowered, cut to 30 characters, its last digit turned into a letter: 0
  // to A, 1 to B ...), else the only one that has such a form with a number added. Null for none.
  const Object* ByGilName(const std::string& gil_name);

  // The live objects of these classes ("" for any) that ByGilName's forms fit, in their order.
  std::vector<const Object*> AllByGilName(const std::string& gil_name, std::string_view class_name);

  // The live objects with this label, given as its bytes: the items of menus first, then the rest,
  // each in their order.
  std::vector<const Object*> ByLabel(const std::string& label);

 private:
  void IndexNumbers();
  void IndexLabels();

  const Module& module_;
  std::unordered_map<std::string_view, const Object*> named_;
  bool has_numbers_ = false;
  bool has_labels_ = false;
  std::unordered_map<std::string, std::vector<const Object*>> numbered_;  // by the base
  std::unordered_map<std::string, std::vector<const Object*>> items_;     // of menus, by label
  std::unordered_map<std::string, std::vector<const Object*>> labelled_;  // the rest
};

}  // namespace uilfix

#endif
