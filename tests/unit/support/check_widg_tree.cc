// SPDX-License-Identifier: MIT
#include "unit/support/check_widg_tree.h"

#include <map>
#include <set>
#include <string>
#include <vector>

#include "widget/tree.h"

// A sibling list, by the widget that it hangs under; null: the top level.
struct SiblingList {
  const Widg* parent;
  const Widg* first;
};

static std::string ListName(const Widg* parent) {
  return parent ? std::string("the children of ") + parent->name : "the top level";
}

std::string CheckWidgTree(const Widg* tree) {
  std::string problems;
  std::map<const Widg*, const Widg*> parent_of;
  std::vector<SiblingList> waiting = {{nullptr, tree}};
  while (!waiting.empty()) {
    const SiblingList list = waiting.back();
    waiting.pop_back();
    std::set<const Widg*> members;
    for (const Widg* widg = list.first; widg; widg = widg->next) {
      if (!members.insert(widg).second) {
        problems += ListName(list.parent) + ": the list runs back to " + widg->name + "\n";
        break;
      }
      const auto [entry, is_new] = parent_of.emplace(widg, list.parent);
      if (!is_new) {
        problems += std::string(widg->name) + " is in " + ListName(entry->second) + " and in " +
                    ListName(list.parent) + "\n";
      } else if (widg->child) {
        waiting.push_back({widg, widg->child});
      }
    }
  }
  return problems;
}
