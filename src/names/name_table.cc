// SPDX-License-Identifier: MIT
#include "names/name_table.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>

#include "osi/arena.h"
#include "osi/fatal.h"
#include "osi/numbers.h"
#include "osi/strings.h"
#include "text/uil_text.h"

static const char* const kReservedWords[] = {
    "arguments", "callbacks", "controls", "end", "exported", "false", "gadget", "identifier",
    "include", "list", "module", "off", "on", "object", "private", "procedure", "procedures",
    "true", "value", "widget", "any", "argument", "asciz_string_table", "asciz_table", "background",
    "boolean", "case_insensitive", "case_sensitive", "character_set", "color", "color_table",
    "compound_string", "compound_string_table", "file", "float", "font", "font_table", "fontset",
    "foreground", "icon", "imported", "integer", "integer_table", "keysym", "managed", "names",
    "objects", "reason", "rgb", "right_to_left", "single_float", "string", "string_table",
    "translation_table", "unmanaged", "user_defined", "version", "wide_character",
    // The second "widget": its entry becomes widget1, so the first widget of that name is widget2.
    "widget", "xbitmapfile"};

static NameTable instance_names;
static bool first_use = true;

NameHandle NameLookup(const NameTable* table, const char* name) {
  const auto found = table->index.find(name);
  return found == table->index.end() ? kNoName : found->second;
}

static NameHandle NameEnter(NameTable* table, const char* name, std::size_t length) {
  char* text = ArenaText(name, length);
  if (!text) Error("Out of memory in NameCreate");
  const auto handle = static_cast<NameHandle>(table->entries.size());
  table->entries.push_back({.text = text, .refcount = 1});
  table->index.emplace(text, handle);
  return handle;
}

static bool IsDeleted(const NameTable* table, NameHandle handle) {
  return table->entries[static_cast<std::size_t>(handle)].refcount < 1;
}

static NameHandle Revive(NameTable* table, NameHandle handle) {
  ++table->entries[static_cast<std::size_t>(handle)].refcount;
  return handle;
}

// Where the number of that base stands; good until a name is entered. `taken` is the name that was
// asked for.
static FirstUntried* UntriedOf(NameTable* table, NameHandle taken, std::string_view base,
                               bool is_taken_name) {
  if (is_taken_name) return &table->entries[static_cast<std::size_t>(taken)].untried;
  auto untried = table->untried.find(base);
  if (untried == table->untried.end()) {
    char* text = ArenaText(base.data(), base.size());
    if (!text) Error("Out of memory in NameCreate");
    untried = table->untried.emplace(text, 1).first;
  }
  return &untried.value();
}

NameHandle NameCreate(NameTable* table, const char* name) {
  if (!name) name = "";
  NameHandle found = NameLookup(table, name);
  if (found == kNoName) return NameEnter(table, name, std::strlen(name));
  if (IsDeleted(table, found)) return Revive(table, found);

  std::string numbered = name;
  OsiCutEndDigits(numbered.data());
  const std::size_t base_length = std::strlen(numbered.c_str());
  FirstUntried* untried = UntriedOf(table, found, std::string_view(numbered).substr(0, base_length),
                                    base_length == numbered.size());
  for (;;) {
    char digits[12];
    const char* end = std::to_chars(digits, digits + sizeof digits, (*untried)++).ptr;
    numbered.replace(base_length, std::string::npos, digits,
                     static_cast<std::size_t>(end - digits));
    found = NameLookup(table, numbered.c_str());
    if (found == kNoName) return NameEnter(table, numbered.c_str(), numbered.size());
    if (IsDeleted(table, found)) return Revive(table, found);
  }
}

char* NameGet(const NameTable* table, NameHandle handle) {
  if (handle < 0 || static_cast<std::size_t>(handle) >= table->entries.size()) return nullptr;
  return table->entries[static_cast<std::size_t>(handle)].text;
}

void NameDelete(NameTable* table, const char* name) {
  const NameHandle handle = name ? NameLookup(table, name) : kNoName;
  if (handle == kNoName) return;
  int32_t& refcount = table->entries[static_cast<std::size_t>(handle)].refcount;
  if (refcount > 0) --refcount;
  table->untried.clear();
  for (NameEntry& entry : table->entries) entry.untried = 1;
}

NameHandle NameCopy(NameTable* table, const char* name) {
  if (!name) return kNoName;
  const NameHandle handle = NameLookup(table, name);
  return handle == kNoName ? NameCreate(table, name) : Revive(table, handle);
}

int NameInUse(const NameTable* table, NameHandle handle) {
  return NameGet(table, handle) && !IsDeleted(table, handle);
}

int32_t NamePosition(const NameTable* table, const char* name) {
  return static_cast<int32_t>(
      std::count_if(table->entries.begin(), table->entries.end(),
                    [name](const NameEntry& entry) { return OsiStrcmp(entry.text, name) < 0; }));
}

NameTable* InstanceNameTbl() {
  if (first_use) {
    first_use = false;
    // Room for an ordinary interface.
    instance_names.entries.reserve(400);
    instance_names.index.reserve(400);
    AddUILKeyWordsToTable(&instance_names);
  }
  return &instance_names;
}

void AddUILKeyWordsToTable(NameTable* table) {
  for (const char* word : kReservedWords) NameCreate(table, word);
}

const char* GetSetIdentifierLegalChars() { return "_$"; }

const char* GetSetTypeLegalChars() { return "_$.()[]&->:"; }

void SystemErrorHandler() {
  std::fputs("Sorry, fatal error trying to convert GIL file.\n", stderr);
  OsiExit(1);
}

void ResetNameTable() {
  instance_names = NameTable();
  first_use = true;
}
