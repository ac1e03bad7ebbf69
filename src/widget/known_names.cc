// SPDX-License-Identifier: MIT
#include "widget/known_names.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "osi/arena.h"
#include "osi/by_text.h"
#include "osi/strings.h"
#include "text/uil_text.h"
#include "widget/plain_search.h"
#include "widget/tree.h"

namespace {

Widg unknown;  // in the place of a widget: only a search can tell

// What a search finds for one name. The first widget of the top level wins, then the first below.
struct Answer {
  Widg* top = nullptr;
  Widg* below = nullptr;
  Widg* with_child = nullptr;  // the first of the name that has a child
  uint32_t walk = 0;           // the number of the walk that found it
};

struct KnownNames {
  // Of each name that was met or asked for. Keys are copies, since texts change in place.
  ByText<Answer, ArenaMemory> answers;
  uint32_t walk = 0;           // the walk that found all with_child; 0 when something moved since
  std::vector<Widg*> windows;  // that were learned, in their order; those that left are passed over
  // From here on the windows of the top level bring names that have not been learned.
  Widg* unlearned = nullptr;
  uint32_t drop = 0;          // the mark of the walks of one clean-up
  std::size_t learned = 0;    // how many widgets were gone through to learn their names,
  std::size_t forgotten = 0;  // and to forget them
  bool ended = false;
  int claims = 0;
};

KnownNames known;

constexpr std::size_t kFewWidgets = 100000;

// The record of the name; a new one has a copy of the name as its key.
Answer& AnswerFor(const char* name) {
  const auto entry = known.answers.find(OsiView(name));
  if (entry != known.answers.end()) return entry->second;
  return known.answers[JoinTexts("", name, "", "Out of memory in AnswerFor")];
}

// Menus of the top level that are claimed below a window keep their place.
bool IsBelow(const Widg* widg) { return !widg->top_level; }

void ForgetBelow(const char* name) { AnswerFor(name).below = &unknown; }

// Windows are learned in their order. The first of a name wins at the top level; below, the first
// one of the last window does.
void Learn(Widg* window) {
  const uint32_t visit = NewVisit();
  window->visit = visit;
  known.windows.push_back(window);
  Answer& answer = AnswerFor(window->gil_name);
  if (!answer.top) answer.top = window;
  FindFirst(window->child, visit, IsBelow, [visit](Widg* widg) {
    Widg*& below = AnswerFor(widg->gil_name).below;
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
  Widg*& top = AnswerFor(menu->gil_name).top;
  if (top == menu) top = nullptr;
}

void NamesRenamed(const Widg* widg, const char* former) {
  if (widg->visit == 0 || OsiStrcmp(widg->gil_name, former) == 0) return;
  ChildrenChanged();
  AnswerFor(former) = AnswerFor(widg->gil_name) = {&unknown, &unknown};
}

void ChildrenChanged() { known.walk = 0; }

void EndKnownNames() { known.ended = true; }

bool NamesAreKnown() { return !known.ended; }

void CountClaims(int change) { known.claims += change; }

bool TopLevelIsClaimed() { return known.claims > 0; }

bool KnownWidg(const char* name, Widg** found) {
  if (known.ended) return false;
  LearnNewWindows();
  Answer& answer = AnswerFor(name);
  if (answer.top == &unknown) return false;
  if (!answer.top && answer.below == &unknown) answer.below = FindBelow(name);
  *found = answer.top ? answer.top : answer.below;
  return true;
}

bool KnownWidgWithChild(const char* name, Widg** found) {
  if (known.ended) return false;
  if (known.walk == 0) {
    known.walk = NewVisit();
    FindFirst(top_widget, [](Widg* widg) {
      if (!widg->child) return false;
      Answer& answer = AnswerFor(widg->gil_name);
      if (answer.walk != known.walk) answer.with_child = widg;
      answer.walk = known.walk;
      return false;
    });
  }
  const Answer& answer = AnswerFor(name);
  *found = answer.walk == known.walk ? answer.with_child : nullptr;
  return true;
}

void ResetKnownNames() { known = KnownNames(); }
