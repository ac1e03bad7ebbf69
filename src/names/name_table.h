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
#include <vector>

#include "osi/text_map.h"

using NameHandle = int32_t;
constexpr NameHandle kNoName = -1;

// Below its number every numbered form of a base is in use, so that the search for the lowest free
// one need not start from 1 again.
using FirstUntried = int32_t;

struct NameEntry {
  char* text;                // in the arena; holders may write to it
  int32_t refcount;          // 0: deleted but remembered
  FirstUntried untried = 1;  // of the base that the name itself is, or would be
};

struct NameTable {
  std::vector<NameEntry> entries;  // by handle
  // Keys are the texts as they were entered. Texts renamed by their holders afterwards are looked
  // for by nobody: renaming happens only when the module is otherwise complete.
  TextMap<NameHandle> index;
  // By base, for names that are not their own base. Forgotten, as those of the entries are,
  // whenever a name is deleted.
  TextMap<FirstUntried> untried;
};

// Enters a unique form of `name` (null counts as empty) and returns its handle.
//
// A free name is entered as it is. When it is taken, trailing white space and then trailing digits
// are cut off and the first free one of <base>1, <base>2, ... is entered:
//   button (taken)  -> button1, button2, ...
//   item7  (taken)  -> item1, not item71
// A deleted name found on the way is revived instead. Ends the run when memory is exhausted.
NameHandle NameCreate(NameTable* table, const char* name);

// The text of the name; null for kNoName and for a handle that was never given out.
char* NameGet(const NameTable* table, NameHandle handle);

// Lowers the count of a present name, never below 0. Null and unknown names are ignored. Linear in
// the table.
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

// Reports a fatal system error on standard error and ends the run with status 1. To be installed
// where a signal must end it with a message.
[[noreturn]] void SystemErrorHandler();

// Empties the instance-name table.
void ResetNameTable();

#endif
