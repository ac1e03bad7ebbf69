// SPDX-License-Identifier: MIT
#include "gil/value.h"

#include "osi/strings.h"

static Value* GetValue(Obj* obj, int32_t name, int remove) {
  Value* value = nullptr;
  GetAttrValue(obj, name, &value, remove);
  return value;
}

Value* TakeValue(Obj* obj, int32_t name) { return GetValue(obj, name, 1); }

Value* PeekValue(Obj* obj, int32_t name) { return GetValue(obj, name, 0); }

char* ValueText(const Value* value) {
  static char empty[1];
  return value && value->sval ? value->sval : empty;
}

int32_t ValueToken(const Value* value, int32_t missing) { return value ? value->ival : missing; }

bool IsStringValue(const Value* value) { return value && value->kind == kStringValue; }

bool IsEmptyGilString(const char* text) { return OsiStrcmp(text, "\"\"") == 0; }

bool HasGilText(const Value* value) { return value && !IsEmptyGilString(ValueText(value)); }

void Step(Value** list) {
  if (*list) *list = (*list)->next;
}

const Value* LastValue(const Value* list) {
  while (list && list->next) list = list->next;
  return list;
}
