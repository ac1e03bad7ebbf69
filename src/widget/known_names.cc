// SPDX-License-Identifier: MIT
#include "widget/known_names.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "osi/strings.h"
#include "widget/plain_search.h"
#include "widget/tree.h"

namespace {

Widg unknown;  // in the place of a widget: only a search can tell

// What a search finds for one name. The first widget of the top level wins, then the first below.
struct Answer {
  Widg* top = nullptr;
  Widg* below = nullptr;
};

// The table has copies of names, since their texts change in place.
struct KnownNames {
  std::unordered_map<std::string, Answer> answers;  // a name that is missing is not in the tree
  // The first widget of each name that has a child; good until something moves.
  std::unordered_map<std::string, Widg*> with_child;
  bool with_child_is_known = false;
  std::vector<Widg*> windows;  // that were learned, in their order; those that left are passed over
  // From here on the windows of the top level bring names that have not been learned.
  Widg* unlearned = nullptr;
  uint32_t drop = 0;          // the mark of the walks of one clean-up
  std::size_t learned = 0;    // how many widgets were gone through to learn their names,
  std::size_t forgotten = 0;  // and to forget them
  bool ended = false;
  int claims = 0;
  std::string key;  // of the last look-up, so that its memory is used again
};

KnownNames known;

constexpr std::size_t kFewWidgets = 100000;

const std::string& Key(const char* name) { return known.key = name ? name : ""; }

// Menus of the top level that are claimed below a window keep their place.
bool IsBelow(const Widg* widg) { return !widg->top_level; }

void ForgetBelow(const char* name) { known.answers[Key(name)].below = &unknown; }

// Windows are learned in their order. The first of a name wins at the top level; below, the first
// one of the last window does.
void Learn(Widg* window) {
  const uint32_t visit = NewVisit();
  window->visit = visit;
  known.windows.push_back(window);
  Answer& answer = known.answers[Key(window->gil_name)];
  if (!answer.top) answer.top = window;
  FindFirst(window->child, visit, IsBelow, [visit](Widg* widg) {
    Widg*& below = known.answers[Key(widg->gil_name)].below;
    if (!below || below->visit != visit) below = widg;
    ++known.learned;
    return false;
  });
}

void LearnNewWindows() {
  for (Widg* widg = known.unlearned; widg; widg = widg->next) Learn(widg);
  known.unlearned = nullptr;
}

// Searches what hangs below the windows.
Widg* FindBelow(const char* name) {
  const uint32_t visit = NewVisit();
  for (auto window = known.windows.rbegin(); window != known.windows.rend(); ++window) {
    if (!(*window)->top_level) continue;
    Widg* found = FindFirst((*window)->child, visit, IsBelow, [name](const Widg* widg) {
      return OsiStrcmp(widg->gil_name, name) == 0;
    });
    if (found) return found;
  }
  return nullptr;
}

}  // namespace

void NamesJoined(Widg* window) {
  ChildrenChanged();
  if (!known.unlearned) known.unlearned = window;
}

void NamesOfFileJoined(Widg* first) {
  ChildrenChanged();
  // Unless what is not learned yet begins with an earlier file, it begins here.
  bool is_earlier = known.unlearned && known.unlearned->top_level;
  for (const Widg* widg = first; widg; widg = widg->next) is_earlier &= widg != known.unlearned;
  if (!is_earlier) known.unlearned = first;
  known.drop = 0;
}

// Forgets the names of the widget and of what the walk with this mark has not met below it.
static void Forget(Widg* widg, uint32_t visit) {
  ChildrenChanged();
  if (known.ended) return;
  widg->visit = visit;
  ForgetBelow(widg->gil_name);
  FindFirst(widg->child, visit, IsBelow, [](const Widg* below) {
    ForgetBelow(below->gil_name);
    ++known.forgotten;
    return false;
  });
  // Groups of groups are moved again and again. Forgetting must not cost more than it saves.
  if (known.forgotten > kFewWidgets + 4 * known.learned) EndKnownNames();
}

void NamesMoved(Widg* widg) { Forget(widg, NewVisit()); }

void NamesDropped(Widg* menu) {
  ChildrenChanged();
  if (menu->visit == 0) return;
  if (known.drop == 0) known.drop = NewVisit();
  Forget(menu, known.drop);
  // Where the menu was the first of its name, only widgets of its own file can be the next, and
  // those are learned again when the clean-up is done.
  Widg*& top = known.answers[Key(menu->gil_name)].top;
  if (top == menu) top = nullptr;
}

void NamesRenamed(const Widg* widg, const char* former) {
  if (widg->visit == 0 || OsiStrcmp(widg->gil_name, former) == 0) return;
  ChildrenChanged();
  for (const char* name : {former, static_cast<const char*>(widg->gil_name)}) {
    known.answers[Key(name)] = {&unknown, &unknown};
  }
}

void ChildrenChanged() { known.with_child_is_known = false; }

void EndKnownNames() { known.ended = true; }

bool NamesAreKnown() { return !known.ended; }

void CountClaims(int change) { known.claims += change; }

bool TopLevelIsClaimed() { return known.claims > 0; }

bool KnownWidg(const char* name, Widg** found) {
  if (known.ended) return false;
  LearnNewWindows();
  const auto entry = known.answers.find(Key(name));
  if (entry == known.answers.end()) {
    *found = nullptr;
    return true;
  }
  Answer& answer = entry->second;
  if (answer.top == &unknown) return false;
  if (!answer.top && answer.below == &unknown) answer.below = FindBelow(name);
  *found = answer.top ? answer.top : answer.below;
  return true;
}

bool KnownWidgWithChild(const char* name, Widg** found) {
  if (known.ended) return false;
  if (!known.with_child_is_known) {
    known.with_child.clear();
    FindFirst(top_widget, [](Widg* widg) {
      if (widg->child) known.with_child.emplace(Key(widg->gil_name), widg);
      return false;
    });
    known.with_child_is_known = true;
  }
  const auto entry = known.with_child.find(Key(name));
  *found = entry == known.with_child.end() ? nullptr : entry->second;
  return true;
}

void ResetKnownNames() { known = KnownNames(); }
