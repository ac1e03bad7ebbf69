// SPDX-License-Identifier: MIT
// The set of names in use. Who asks it for a name that is taken gets the name with a number behind
// it, so that every widget of a module has a name of its own. A leaf that any folder may use.
//
// A name is known by its handle, a number in order of creation that never changes. The table counts
// the holders of a name and never removes one: the next request revives a name without holders.
#ifndef PANDREL_NAMES_NAME_TABLE_H
#define PANDREL_NAMES_NAME_TABLE_H

#include <cstdint>
#include <vector>

#include "osi/by_text.h"
#include "osi/owned_text.h"

using NameHandle = int32_t;
constexpr NameHandle kNoName = -1;

struct NameEntry {
  OsiOwnedText text;  // holders may write to it
  int32_t refcount;   // the number of holders; 0: deleted but remembered
};

// The lowest number that was not tried behind a base: the forms with lower numbers are in use.
struct Untried {
  OsiOwnedText base;
  int32_t number = 1;
};

struct NameTable {
  std::vector<NameEntry, OsiAllocator<NameEntry>> entries;  // by handle
  // Keys are views of the texts, hashed as they were entered. Holders change a text only when all
  // names are given out and the module is meant for the builder, so nobody looks for it again.
  ByText<NameHandle, OsiMemory> index;
  // Saves the tenth namesake ten look-ups. Cleared whenever a name is deleted.
  ByText<Untried, OsiMemory> untried;
};

// Enters a unique form of `name` (null counts as empty) and returns its handle.
//
// Enters a free name as it is. For a taken one, cuts off trailing white space and then trailing
// digits, and enters the first free one of <base>1, <base>2, ...:
//   button (taken)  -> button1, button2, ...
//   item7  (taken)  -> item1, not item71
// Revives a deleted name instead if it finds one on the way.
NameHandle NameCreate(NameTable* table, const char* name);

// The text of the name, owned by the table; null for kNoName and for a handle that was never given
// out.
char* NameGet(const NameTable* table, NameHandle handle);

// Takes a holder from a name that has one; does nothing for null and unknown names.
void NameDelete(NameTable* table, const char* name);

// One more holder for a present name (no new name is made); for an absent one NameCreate, for null
// kNoName.
NameHandle NameCopy(NameTable* table, const char* name);

// 1 while the name has a holder, else 0.
int NameInUse(const NameTable* table, NameHandle handle);

// The handle of `name`, deleted ones included, or kNoName.
NameHandle NameLookup(const NameTable* table, const char* name);

// How many names of the table are less than `name`, byte by byte: its place in sorted order. Its
// time is linear in the table, so use it for diagnostics only.
int32_t NamePosition(const NameTable* table, const char* name);

// The table of this conversion: the names of its widgets, and the reserved words of UIL.
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
