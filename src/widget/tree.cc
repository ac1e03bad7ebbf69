// SPDX-License-Identifier: MIT
#include "widget/tree.h"

#include <cstring>

#include "osi/arena.h"
#include "osi/strings.h"
#include "names/name_table.h"
#include "text/uil_text.h"
#include "widget/callbacks.h"
#include "widget/links.h"
#include "widget/name_index.h"
#include "widget/search.h"

Widg* top_widget = nullptr;

// Lengths of instance names: what is longer than the first is cut to the second.
static constexpr std::size_t kLongestName = 31;
static constexpr std::size_t kCutName = 30;

static void FixRequestedName(char* name) {
  if (*name >= 'A' && *name <= 'Z') *name = static_cast<char>(*name - 'A' + 'a');
  if (std::strlen(name) > kLongestName) name[kCutName] = '\0';
}

Widg* MakeWidg(FixedText class_name, char* requested) {
  auto* widg = ArenaNew<Widg>();
  if (!widg) Error("Out of memory in MakeWidg");
  widg->gil_name = ArenaText(requested, OsiStrlen(requested));
  if (!widg->gil_name) Error("Out of memory in MakeWidg");
  if (requested) FixRequestedName(requested);
  NameTable* names = InstanceNameTbl();
  widg->name = NameGet(names, NameCreate(names, requested));
  widg->class_name = class_name;
  widg->managed = 1;
  NameIndexMade(widg);
  return widg;
}

void SetGilName(Widg* widg, char* gil_name) {
  NameIndexForget(widg);
  widg->gil_name = gil_name;
  NameIndexRemember(widg);
}

Resource* MakeResource(FixedText name, const char* value) {
  auto* resource = ArenaNew<Resource>();
  if (!resource) Error("Out of memory in MakeResource");
  resource->name = name;
  resource->value = value;
  return resource;
}

Callback* MakeCallback(const char* callback_name, char* procedure, const char* argument) {
  auto* callback = ArenaNew<Callback>();
  if (!callback) Error("Out of memory in MakeCallback");
  callback->callback_name = callback_name;
  callback->procedure = procedure;
  callback->argument = argument;
  return callback;
}

void AddResource(Widg* widg, FixedText name, const char* value) {
  Resource** link = &widg->resources;
  for (; *link; link = &(*link)->next) {
    if ((*link)->name == name) {
      (*link)->value = value;
      return;
    }
  }
  *link = MakeResource(name, value);
}

const char* GetResourceValue(const Widg* widg, FixedText name) {
  for (const Resource* resource = widg->resources; resource; resource = resource->next) {
    if (resource->name == name) return resource->value ? resource->value : "";
  }
  return "";
}

bool HasResource(const Widg* widg, FixedText name) { return *GetResourceValue(widg, name); }

int32_t GetResourceInt(const Widg* widg, FixedText name) {
  const char* value = GetResourceValue(widg, name);
  return *value ? StringToInt(value) : 0;  // most geometry is absent
}

void RemoveResource(Widg* widg, FixedText name) {
  for (Resource** link = &widg->resources; *link; link = &(*link)->next) {
    if ((*link)->name != name) continue;
    *link = (*link)->next;
    return;
  }
}

void MoveResource(Widg* from, FixedText name, Widg* to) {
  const char* value = GetResourceValue(from, name);
  if (!*value) return;
  AddResource(to, name, value);
  RemoveResource(from, name);
}

void ResetTree() {
  top_widget = nullptr;
  ResetNameIndex();
  ResetLinks();
  ResetSearch();
  ResetCallbacks();
}
