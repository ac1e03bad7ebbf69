// SPDX-License-Identifier: MIT
#include "widget/tree.h"

#include <cstring>

#include "names/name_table.h"
#include "osi/arena.h"
#include "osi/fatal.h"
#include "osi/strings.h"
#include "text/uil_text.h"

Widg* top_widget = nullptr;

// A name longer than kLongestName is cut to kCutName characters.
static constexpr std::size_t kLongestName = 31;
static constexpr std::size_t kCutName = 30;

static void FixRequestedName(char* name) {
  if (*name >= 'A' && *name <= 'Z') *name = static_cast<char>(*name - 'A' + 'a');
  if (std::strlen(name) > kLongestName) name[kCutName] = '\0';
}

Widg* MakeWidg(const char* class_name, char* requested) {
  auto* widg = ArenaNew<Widg>();
  if (!widg) Error("Out of memory in MakeWidg");
  widg->gil_name = ArenaText(requested, OsiStrlen(requested));
  if (!widg->gil_name) Error("Out of memory in MakeWidg");
  if (requested) FixRequestedName(requested);
  NameTable* names = InstanceNameTbl();
  widg->name = NameGet(names, NameCreate(names, requested));
  widg->class_name = class_name;
  widg->managed = 1;
  return widg;
}

Resource* MakeResource(const char* name, const char* value) {
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

Widg* LastSibling(Widg* widg) {
  while (widg && widg->next) widg = widg->next;
  return widg;
}

int IsChild(const Widg* parent, const Widg* widg) {
  if (!parent || !widg) return 0;
  for (const Widg* child = parent->child; child; child = child->next) {
    if (child == widg) return 1;
  }
  return 0;
}

void AddResource(Widg* widg, const char* name, const char* value) {
  Resource** link = &widg->resources;
  for (; *link; link = &(*link)->next) {
    if (OsiStrcmp((*link)->name, name) == 0) {
      (*link)->value = value;
      return;
    }
  }
  *link = MakeResource(name, value);
}

const char* GetResourceValue(const Widg* widg, const char* name) {
  for (const Resource* resource = widg->resources; resource; resource = resource->next) {
    if (OsiStrcmp(resource->name, name) == 0) return OsiOrEmpty(resource->value);
  }
  return "";
}

bool HasResource(const Widg* widg, const char* name) { return *GetResourceValue(widg, name); }

int32_t GetResourceInt(const Widg* widg, const char* name) {
  const char* value = GetResourceValue(widg, name);
  return *value ? StringToInt(value) : 0;  // most geometry is absent
}

void RemoveResource(Widg* widg, const char* name) {
  for (Resource** link = &widg->resources; *link; link = &(*link)->next) {
    if (OsiStrcmp((*link)->name, name) != 0) continue;
    *link = (*link)->next;
    return;
  }
}

void MoveResource(Widg* from, const char* name, Widg* to) {
  const char* value = GetResourceValue(from, name);
  if (!*value) return;
  AddResource(to, name, value);
  RemoveResource(from, name);
}

void ResetTree() { top_widget = nullptr; }
