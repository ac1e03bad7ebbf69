// SPDX-License-Identifier: MIT
#include "gil/dump.h"

#include <cstdio>
#include <vector>

#include "gil/object.h"
#include "gil/position.h"
#include "gil/tokens.h"
#include "gil/words.h"
#include "osi/strings.h"

static int32_t depth = 0;

static void Indent() {
  for (int32_t i = 0; i < depth; ++i) std::fputc('\t', stderr);
}

const char* KeywordName(int32_t token) {
  const char* text = KeywordText(token);
  if (!text) yyerror("Internal error: Can't find keyword in table");
  return text;
}

// The text for a token: its keyword, "?" when it has none.
static const char* TokenText(int32_t token) {
  const char* text = KeywordName(token);
  return text ? text : "?";
}

static void PrintToken(int32_t token) {
  switch (token) {
    case NIL:
      std::fputs("NIL ", stderr);
      break;
    case T:
      std::fputs("T ", stderr);
      break;
    default:
      std::fprintf(stderr, "%s ", TokenText(token));
      break;
  }
}

static void PrintValues(const Value* values) {
  for (const Value* value = values; value; value = value->next) {
    switch (value->kind) {
      case kTokenValue:
        PrintToken(value->ival);
        break;
      case kStringValue:
        std::fprintf(stderr, "%s ", OsiOrEmpty(value->sval));
        break;
      case kIntegerValue:
        std::fprintf(stderr, "%d ", static_cast<int>(value->ival));
        break;
      case 3:  // what the scanner calls an identifier, were it ever to reach a record
        std::fprintf(stderr, "ID:%s ", OsiOrEmpty(value->sval));
        break;
      default:
        std::fprintf(stderr, "Illegal value type: %d\n", static_cast<int>(value->kind));
        break;
    }
  }
}

static void PrintField(const char* label, const Value* values) {
  Indent();
  std::fputs(label, stderr);
  PrintValues(values);
  std::fputc('\n', stderr);
}

static void PrintActions(const Action* actions) {
  for (const Action* action = actions; action; action = action->next) {
    Indent();
    std::fputs("Action:\n", stderr);
    ++depth;
    PrintField("from: ", action->from);
    PrintField("when: ", action->when);
    PrintField("to: ", action->to);
    PrintField("func_type: ", action->functionType);
    PrintField("arg_type: ", action->argTypes);
    PrintField("action_name: ", action->actionName);
    --depth;
  }
}

static void PrintAttr(const Attr* attr) {
  const char* name = TokenText(attr->name);
  Indent();
  std::fprintf(stderr, "%s: (", name);
  // A project keeps its actions as an attribute; they are no values.
  if (attr->name != ACTIONS) PrintValues(attr->value);
  std::fputs(")\n", stderr);
  if (attr->name == ACTIONS) PrintActions(attr->actions);
}

static void PrintObj(const Obj* obj) {
  const char* type = TokenText(obj->type);
  Indent();
  std::fprintf(stderr, "Obj: %s\n", type);
  ++depth;
  for (const Attr* attr = obj->attrs; attr; attr = attr->next) PrintAttr(attr);
  PrintActions(obj->actions);
  --depth;
}

void generate(const Obj* objects) {
  std::vector<const Obj*> open;  // objects whose children are being printed
  const Obj* obj = objects;
  while (obj || !open.empty()) {
    if (!obj) {
      obj = open.back()->next;
      open.pop_back();
      --depth;
      continue;
    }
    PrintObj(obj);
    open.push_back(obj);
    ++depth;
    obj = obj->children;
  }
}
