// SPDX-License-Identifier: MIT
#include "names/name_table.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>

#include "osi/numbers.h"
#include "osi/strings.h"

static const char* const kReservedWords[] = {
    "arguments", "callbacks", "controls", "end", "exported", "false", "gadget", "identifier",
    "include", "list", "module", "off", "on", "object", "private", "procedure", "procedures",
    "true", "value", "widget", "any", "argument", "asciz_string_table", "asciz_table", "background",
    "boolean", "case_insensitive", "case_sensitive", "character_set", "color", "color_table",
    "compound_string", "compound_string_table", "file", "float", "font", "font_table", "fontset",
    "foreground", "icon", "imported", "integer", "integer_table", "keysym", "managed", "names",
    "objects", "reason", "rgb", "right_to_left", "single_float", "string", "string_table",
    "translation_table", "unmanaged", "user_defined", "version", "wide_character",
    // A second "widget" makes the entry widget1, so the first widget of that name becomes widget2.
    "widget", "xbitmapfile"};

static NameTable instance_names;

NameHandle NameLookup(const NameTable* table, const char* name) {
  const auto found = table->index.find(OsiView(name));
  return found == table->index.end() ? kNoName : found->second;
}

static NameEntry& EntryOf(NameTable* table, NameHandle handle) {
  return table->entries[static_cast<std::size_t>(handle)];
}

// Adds a holder.
static NameHandle Revive(NameTable* table, NameHandle handle) {
  ++EntryOf(table, handle).refcount;
  return handle;
}

// The first number that was not tried behind `base`, for the caller to raise.
static int32_t* UntriedNumber(NameTable* table, const char* base) {
  auto untried = table->untried.find(base);
  if (untried == table->untried.end()) {
    OsiOwnedText copy(OsiStrdup(base));
    const std::string_view key = copy.get();
    untried = table->untried.emplace(key, Untried{std::move(copy)}).first;
  }
  return &untried->second.number;
}

// Enters a free name and revives a deleted one; kNoName for one that is in use.
static NameHandle EnterUnlessInUse(NameTable* table, const char* name) {
  OsiOwnedText text(OsiStrdup(name));
  const auto next = static_cast<NameHandle>(table->entries.size());
  const auto [entry, is_free] = table->index.try_emplace(text.get(), next);
  if (is_free) {
    table->entries.push_back({std::move(text), 1});
    return next;
  }
  return EntryOf(table, entry->second).refcount < 1 ? Revive(table, entry->second) : kNoName;
}

NameHandle NameCreate(NameTable* table, const char* name) {
  if (!name) name = "";
  NameHandle handle = EnterUnlessInUse(table, name);
  if (handle != kNoName) return handle;
  std::string base = name;
  OsiRemoveEndDigits(base.data());
  base.resize(std::strlen(base.c_str()));
  int32_t* number = UntriedNumber(table, base.c_str());
  while (handle == kNoName) {
    const std::string numbered = base + std::to_string((*number)++);
    handle = EnterUnlessInUse(table, numbered.c_str());
  }
  return handle;
}

char* NameGet(const NameTable* table, NameHandle handle) {
  if (handle < 0 || static_cast<std::size_t>(handle) >= table->entries.size()) return nullptr;
  return table->entries[static_cast<std::size_t>(handle)].text.get();
}

void NameDelete(NameTable* table, const char* name) {
  const NameHandle handle = name ? NameLookup(table, name) : kNoName;
  if (handle == kNoName) return;
  int32_t& refcount = EntryOf(table, handle).refcount;
  if (refcount > 0) --refcount;
  table->untried.clear();
}

NameHandle NameCopy(NameTable* table, const char* name) {
  if (!name) return kNoName;
  const NameHandle handle = NameLookup(table, name);
  return handle == kNoName ? NameCreate(table, name) : Revive(table, handle);
}

int NameInUse(const NameTable* table, NameHandle handle) {
  return NameGet(table, handle) && table->entries[static_cast<std::size_t>(handle)].refcount > 0;
}

int32_t NamePosition(const NameTable* table, const char* name) {
  return static_cast<int32_t>(std::count_if(
      table->entries.begin(), table->entries.end(),
      [name](const NameEntry& entry) { return OsiStrcmp(entry.text.get(), name) < 0; }));
}

NameTable* InstanceNameTbl() {
  if (instance_names.entries.empty()) AddUILKeyWordsToTable(&instance_names);
  return &instance_names;
}

void AddUILKeyWordsToTable(NameTable* table) {
  for (const char* word : kReservedWords) NameCreate(table, word);
}

const char* GetSetIdentifierLegalChars() { return "_$"; }

const char* GetSetTypeLegalChars() { return "_$.()[]&->:"; }

void ResetNameTable() { instance_names = NameTable(); }
