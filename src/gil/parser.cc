// SPDX-License-Identifier: MIT
// A recursive-descent parser: one function a production, named after it. Each reads its production
// from the look-ahead token on and returns false when a token does not fit; there is no recovery.
// Nothing nests deeper than an action's lists, so a file of any size needs little stack.
#include "gil/parser.h"

#include "gil/position.h"
#include "gil/scanner.h"
#include "gil/tokens.h"
#include "gil/version.h"
#include "gil/words.h"

Obj* gilFile = nullptr;
Obj* project = nullptr;

static int32_t look_ahead = END_OF_INPUT;

static void Advance() { look_ahead = yylex(); }

static bool Accept(int32_t token) {
  if (look_ahead != token) return false;
  Advance();
  return true;
}

// Puts a record in front of a list. All lists but the name lists are built in this way.
template <typename Record>
static void Prepend(Record* record, Record** list) {
  record->next = *list;
  *list = record;
}

static bool ParseScalar(int32_t token, Value** out) {
  if (look_ahead != token) return false;
  *out = yylval;
  Advance();
  return true;
}

// A token that is its own value.
static bool ParseToken(Value** out) {
  *out = tokenValue(look_ahead);
  Advance();
  return true;
}

// name: identifier, string or nil
static bool ParseName(Value** out) {
  if (look_ahead == NIL) return ParseToken(out);
  return ParseScalar(IDENTIFIER, out) || ParseScalar(STRING_VALUE, out);
}

static bool ParseWord(Enumeration enumeration, Value** out) {
  return IsWordOf(enumeration, look_ahead) && ParseToken(out);
}

// nameList: "(" ")" or "(" names ")", kept in file order
static bool ParseNameList(Value** out) {
  if (!Accept(LPAREN)) return false;
  Value* head = nullptr;
  Value** end = &head;
  while (!Accept(RPAREN)) {
    if (!ParseName(end)) return false;
    end = &(*end)->next;
  }
  *out = head;
  return true;
}

// A list of what ParseElement reads, each put in front of those before.
template <typename Parser>
static bool ParseReversedList(Parser ParseElement, Value** out) {
  if (!Accept(LPAREN)) return false;
  Value* list = nullptr;
  while (!Accept(RPAREN)) {
    Value* value = nullptr;
    if (!ParseElement(&value)) return false;
    Prepend(value, &list);
  }
  *out = list;
  return true;
}

static bool ParseStringList(Value** out) {
  return ParseReversedList([](Value** value) { return ParseScalar(STRING_VALUE, value); }, out);
}

static bool ParseWordList(Enumeration words, Value** out) {
  return ParseReversedList([words](Value** value) { return ParseWord(words, value); }, out);
}

static bool ParseValue(ValueForm form, Value** out) {
  switch (form.shape) {
    case kIntegerShape:
      return ParseScalar(INTEGER_VALUE, out);
    case kStringShape:
      return ParseScalar(STRING_VALUE, out);
    case kIntegerOrStringShape:
      return ParseScalar(INTEGER_VALUE, out) || ParseScalar(STRING_VALUE, out);
    case kNameShape:
      return ParseName(out);
    case kNameListShape:
      return ParseNameList(out);
    case kStringListShape:
      return ParseStringList(out);
    case kEmptyListShape:
      return Accept(LPAREN) && Accept(RPAREN);
    case kWordShape:
      return ParseWord(form.words, out);
    case kWordListShape:
      return ParseWordList(form.words, out);
    case kNothing:
      break;
  }
  return false;
}

// functionType: ":user_defined", ":CallFunction" or an identifier
static bool ParseFunctionType(Value** out) {
  if (look_ahead == USER_DEFINED || look_ahead == CALL_FUNCTION) {
    return ParseToken(out);
  }
  return ParseScalar(IDENTIFIER, out);
}

// action: "(" ":from" nameList ":when" nameList ":to" nameList ":function_type" functionType
//         ":arg_type" argTypeList ":action" nameList ")"
static bool ParseAction(Action** out) {
  Value* from = nullptr;
  Value* when = nullptr;
  Value* to = nullptr;
  Value* function_type = nullptr;
  Value* arg_types = nullptr;
  Value* action_name = nullptr;
  const bool fits = Accept(LPAREN) && Accept(FROM) && ParseNameList(&from) && Accept(WHEN) &&
                    ParseNameList(&when) && Accept(TO) && ParseNameList(&to) &&
                    Accept(FUNCTION_TYPE) && ParseFunctionType(&function_type) &&
                    Accept(ARG_TYPE) && ParseWordList(kArgType, &arg_types) && Accept(ACTION) &&
                    ParseNameList(&action_name) && Accept(RPAREN);
  if (!fits) return false;
  *out = makeAction(from, when, to, function_type, arg_types, action_name);
  return true;
}

// actionsList: "(" ")" or "(" actions ")"
static bool ParseActionsList(Action** out) {
  if (!Accept(LPAREN)) return false;
  Action* actions = nullptr;
  while (!Accept(RPAREN)) {
    Action* action = nullptr;
    if (!ParseAction(&action)) return false;
    Prepend(action, &actions);
  }
  *out = actions;
  return true;
}

// attributeList: one attribute or more
static bool ParseAttributeList(Attr** out) {
  Attr* attrs = nullptr;
  do {
    const int32_t keyword = look_ahead;
    const Word* word = WordOfToken(keyword);
    if (!word || word->value.shape == kNothing) return false;
    Advance();
    Value* value = nullptr;
    if (!ParseValue(word->value, &value)) return false;
    Prepend(makeAttr(keyword, value), &attrs);
  } while (look_ahead != RPAREN && look_ahead != ACTIONS);
  *out = attrs;
  return true;
}

// object: "(" ":type" elementType attributeList [":actions" actionsList] ")"
static bool ParseObject(Obj** out) {
  if (!Accept(LPAREN) || !Accept(TYPE) || !IsWordOf(kElementType, look_ahead)) return false;
  const int32_t type = look_ahead;
  Advance();
  Attr* attrs = nullptr;
  if (!ParseAttributeList(&attrs)) return false;
  Action* actions = nullptr;
  if (Accept(ACTIONS) && !ParseActionsList(&actions)) return false;
  if (!Accept(RPAREN)) return false;
  *out = makeObj(type, attrs, actions);
  return true;
}

// What follows the opening parenthesis of an object list: one object or more and ")".
static bool ParseObjects(Obj** out) {
  Obj* objects = nullptr;
  do {
    Obj* object = nullptr;
    if (!ParseObject(&object)) return false;
    Prepend(object, &objects);
  } while (look_ahead != RPAREN);
  Advance();
  *out = objects;
  return true;
}

static bool ParseProjectAttribute(Attr** out) {
  Value* value = nullptr;
  Action* actions = nullptr;
  switch (look_ahead) {
    case INTERFACES:
      Advance();
      if (!ParseNameList(&value)) return false;
      *out = makeAttr(INTERFACES, value);
      return true;
    case ROOT_WINDOW:
      Advance();
      if (!ParseName(&value)) return false;
      *out = makeAttr(ROOT_WINDOW, value);
      return true;
    case ACTIONS:
      Advance();
      if (!ParseActionsList(&actions)) return false;
      *out = makeAttr(ACTIONS, nullptr);
      (*out)->actions = actions;
      return true;
    default:
      return false;
  }
}

// What follows the opening parenthesis of a project: one attribute or more and ")".
static bool ParseProject(Obj** out) {
  Attr* attrs = nullptr;
  do {
    Attr* attr = nullptr;
    if (!ParseProjectAttribute(&attr)) return false;
    Prepend(attr, &attrs);
  } while (look_ahead != RPAREN);
  Advance();
  *out = makeObj(PROJECT, attrs, nullptr);
  return true;
}

// gilFile: [";GIL-3"] objectList, or [";GIL-3"] project. The scanner ends the run at a version-2
// header.
static bool ParseGilFile() {
  const bool has_version = Accept(GIL_VERSION_3);
  if (!Accept(LPAREN)) return false;
  const bool is_interface = look_ahead == LPAREN;
  Obj* result = nullptr;
  const bool fits = is_interface ? ParseObjects(&result) : ParseProject(&result);
  if (!fits || look_ahead != END_OF_INPUT) return false;
  if (has_version) SetVersion(3);
  (is_interface ? gilFile : project) = result;
  return true;
}

int yyparse() {
  Advance();
  if (ParseGilFile()) return 0;
  yyerror("Syntax error");
  return 1;
}

void ResetParser() {
  gilFile = nullptr;
  project = nullptr;
  look_ahead = END_OF_INPUT;
}
