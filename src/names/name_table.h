// SPDX-License-Identifier: MIT
// The set of names in use. Asking it for a name that is taken yields the name with a number
// appended, so that every widget of a module has a name of its own. A leaf that any folder may use.
//
// A name is known by its handle, a number in order of creation that never changes. Names are
// counted, never removed: one whose count fell to zero is remembered and revived by the next
// request for it.
#ifndef PANDREL_NAMES_NAME_TABLE_H
#define PANDREL_NAMES_NAME_TABLE_H

#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "osi/owned_text.h"

using NameHandle = int32_t;
constexpr NameHandle kNoName = -1;

struct NameEntry {
  OsiOwnedText text;  // holders may write to it
  int32_t refcount;   // 0: deleted but remembered
};

// The number of a base from which on its numbered forms have not been tried: all lower ones are in
// use.
struct Untried {
  OsiOwnedText base;
  int32_t number = 1;
};

template <typename Mapped>
using ByText =
    std::unordered_map<std::string_view, Mapped, std::hash<std::string_view>, std::equal_to<>,
                       OsiAllocator<std::pair<const std::string_view, Mapped>>>;

struct NameTable {
  std::vector<NameEntry, OsiAllocator<NameEntry>> entries;  // by handle
  // Keys are the texts as they were entered. A holder renames an instance only once all names are
  // given out, and where the module is meant for the builder, whose procedures are not compared
  // with names: nobody looks for a renamed text.
  ByText<NameHandle> index;
  // Without it the tenth namesake would cost ten look-ups. Forgotten whenever a name is deleted.
  ByText<Untried> untried;
};

// Enters a unique form of `name` (null counts as empty) and returns its handle.
//
// A free name is entered as it is. When it is taken, trailing white space and then trailing digits
// are cut off and the first free one of <base>1, <base>2, ... is entered:
//   button (taken)  -> button1, button2, ...
//   item7  (taken)  -> item1, not item71
// A deleted name found on the way is revived instead.
NameHandle NameCreate(NameTable* table, const char* name);

// The text of the name; null for kNoName and for a handle that was never given out.
char* NameGet(const NameTable* table, NameHandle handle);

// Lowers the count of a present name, never below 0. Null and unknown names are ignored.
void NameDelete(NameTable* table, const char* name);

// One more holder for a present name (no new name is made); for an absent one NameCreate, for null
// kNoName.
NameHandle NameCopy(NameTable* table, const char* name);

// 1 while the name has a holder, else 0.
int NameInUse(const NameTable* table, NameHandle handle);

// The handle of `name`, deleted ones included, or kNoName.
NameHandle NameLookup(const NameTable* table, const char* name);

// How many names of the table are less than `name`, byte by byte: its place in sorted order. For
// diagnostics; linear in the table.
int32_t NamePosition(const NameTable* table, const char* name);

// The names that widgets of this conversion hold, the reserved words of UIL among them.
NameTable* InstanceNameTbl();

// Enters the reserved words of UIL, in list order. "widget" stands twice in the list and so
// reserves widget1 as well.
void AddUILKeyWordsToTable(NameTable* table);

// The characters besides letters and digits that may stand in an identifier, and in a type name.
const char* GetSetIdentifierLegalChars();
const char* GetSetTypeLegalChars();

// Empties the instance-name table.
void ResetNameTable();

#endif
