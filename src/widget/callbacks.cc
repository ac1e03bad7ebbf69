// SPDX-License-Identifier: MIT
#include "widget/callbacks.h"

#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>

#include "osi/strings.h"
#include "widget/procedures.h"
#include "widget/tree.h"

// Lists up to this length are searched as they are.
static constexpr std::size_t kShortList = 16;

// What is known of one long list: its callbacks by hash. Lists are built one after the other, so
// one is enough.
struct KnownList {
  Callback* head = nullptr;
  Callback* last = nullptr;  // of those known
  std::unordered_multimap<std::size_t, const Callback*> by_hash;
};

static KnownList known;

static std::size_t HashOf(const Callback& callback) {
  const auto Hash = [](const char* text) {
    return std::hash<std::string_view>()(text ? text : "");
  };
  return (Hash(callback.callback_name) * 31 + Hash(callback.procedure)) * 31 +
         Hash(callback.argument);
}

static bool AreSame(const Callback& a, const Callback& b) {
  return OsiStrcmp(a.callback_name, b.callback_name) == 0 &&
         OsiStrcmp(a.procedure, b.procedure) == 0 && OsiStrcmp(a.argument, b.argument) == 0;
}

// Learns the list from `head` on, as far as it is not known yet.
static void Learn(Callback* head) {
  if (known.head != head) {
    known = KnownList();
    known.head = head;
  }
  for (Callback* next = known.last ? known.last->next : head; next; next = next->next) {
    known.by_hash.emplace(HashOf(*next), next);
    known.last = next;
  }
}

// Where to append the callback to a long list; null when it is there.
static Callback** EndOfLongList(Callback* head, const Callback& wanted) {
  Learn(head);
  const auto [first, end] = known.by_hash.equal_range(HashOf(wanted));
  for (auto candidate = first; candidate != end; ++candidate) {
    if (AreSame(*candidate->second, wanted)) return nullptr;
  }
  return &known.last->next;
}

static Callback** EndOfList(Callback** head, const Callback& wanted) {
  std::size_t length = 0;
  Callback** link = head;
  for (; *link; link = &(*link)->next) {
    if (++length > kShortList) return EndOfLongList(*head, wanted);
    if (AreSame(**link, wanted)) return nullptr;
  }
  return link;
}

void AddCallback(Widg* widg, const char* callback_name, char* procedure, const char* argument) {
  // Declared even when the callback turns out to be there already.
  InsertProcedure(procedure);
  const Callback wanted = {nullptr, callback_name, procedure, argument};
  if (Callback** end = EndOfList(&widg->callbacks, wanted)) {
    *end = MakeCallback(callback_name, procedure, argument);
  }
}

void MoveCallback(Widg* from, Widg* to, const char* callback_name) {
  if (!from || !to) return;
  for (Callback** link = &from->callbacks; *link;) {
    Callback* callback = *link;
    if (OsiStrcmp(callback->callback_name, callback_name) != 0) {
      link = &callback->next;
      continue;
    }
    // Added before it is unlinked: where the two widgets share a list it is found there already.
    AddCallback(to, callback->callback_name, callback->procedure, callback->argument);
    *link = callback->next;
    ResetCallbacks();
  }
}

void ResetCallbacks() { known = KnownList(); }
