// SPDX-License-Identifier: MIT
#include "port/snapshot.h"

#include <algorithm>
#include <map>

#include "gil/object.h"
#include "gil/tokens.h"
#include "gil/words.h"

namespace port {
namespace {

GilValue CopyValue(const Value& value) {
  switch (value.kind) {
    case kStringValue:
      return {GilValue::Kind::kString, 0, GilText(value.sval)};
    case kIntegerValue:
      return {GilValue::Kind::kInteger, value.ival, std::to_string(value.ival)};
    default:
      break;
  }
  const char* word = KeywordText(value.ival);
  const std::string text = value.ival == NIL ? "nil" : value.ival == T ? "t" : word ? word : "?";
  return {GilValue::Kind::kToken, value.ival, text};
}

// Name lists stand in the file's order, all other lists in reverse.
bool IsReversed(int32_t attribute) {
  const Word* word = WordOfToken(attribute);
  return word && (word->value.shape == kStringListShape || word->value.shape == kWordListShape);
}

GilAttribute CopyAttribute(const Attr& attr) {
  GilAttribute copy;
  copy.name = attr.name;
  for (const Value* value = attr.value; value; value = value->next) {
    copy.values.push_back(CopyValue(*value));
  }
  if (IsReversed(attr.name)) std::reverse(copy.values.begin(), copy.values.end());
  return copy;
}

PortObject CopyObject(const Obj& obj, int file) {
  PortObject copy;
  copy.file = file;
  copy.type = obj.type;
  copy.name = GilText(AttrText(obj.attrs, NAME));
  copy.owner = GilText(AttrText(obj.attrs, OWNER));
  for (const Attr* attr = obj.attrs; attr; attr = attr->next) {
    copy.attributes.push_back(CopyAttribute(*attr));
  }
  std::reverse(copy.attributes.begin(), copy.attributes.end());
  return copy;
}

std::vector<std::string> Texts(const Value* first) {
  std::vector<std::string> texts;
  for (const Value* value = first; value; value = value->next) {
    texts.push_back(CopyValue(*value).text);
  }
  return texts;
}

// One action as it stands in the file.
Connection CopyAction(const Action& action, int file, int object) {
  Connection copy;
  copy.file = file;
  copy.object = object;
  copy.from = Texts(action.from);
  copy.to = Texts(action.to);
  copy.when = Texts(action.when);
  if (action.functionType) copy.function_type = CopyValue(*action.functionType).text;
  copy.arg_types = Texts(action.argTypes);
  std::reverse(copy.arg_types.begin(), copy.arg_types.end());
  std::vector<std::string> words = Texts(action.actionName);
  if (words.empty()) return copy;
  copy.action = words[0];
  copy.arguments.assign(words.begin() + 1, words.end());
  return copy;
}

void CopyActions(Session& session, const Action* actions, int file, int object) {
  std::vector<const Action*> in_order;
  for (const Action* action = actions; action; action = action->next) in_order.push_back(action);
  std::reverse(in_order.begin(), in_order.end());
  for (const Action* action : in_order) {
    Connection copy = CopyAction(*action, file, object);
    copy.number = static_cast<int>(session.model.connections.size());
    session.model.connections.push_back(std::move(copy));
    session.actions.push_back(action);
  }
}

// Links owners and children within the file, as the reader does: the last object of a name wins.
void LinkOwners(Model& model, int file) {
  std::map<std::string, int> by_name;
  for (int index : model.files[file].objects) by_name[model.objects[index].name] = index;
  for (int index : model.files[file].objects) {
    PortObject& object = model.objects[index];
    const auto owner = by_name.find(object.owner);
    if (object.owner.empty() || owner == by_name.end()) continue;
    object.parent = owner->second;
    if (owner->second != index) model.objects[owner->second].children.push_back(index);
  }
}

}  // namespace

void CopyObjects(Session& session, int file, Obj* parsed) {
  Model& model = session.model;
  std::vector<Obj*> in_order;
  for (Obj* obj = parsed; obj; obj = obj->next) in_order.push_back(obj);
  std::reverse(in_order.begin(), in_order.end());
  for (Obj* obj : in_order) {
    const int index = static_cast<int>(model.objects.size());
    model.objects.push_back(CopyObject(*obj, file));
    model.files[file].objects.push_back(index);
    session.objs.push_back(obj);
    CopyActions(session, obj->actions, file, index);
    if (!obj->actions) {
      obj->actions = makeAction(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    }
  }
  LinkOwners(model, file);
}

void CopyProject(Session& session, int file, const Obj* project) {
  for (const Attr* attr = project->attrs; attr; attr = attr->next) {
    if (attr->name == ACTIONS) CopyActions(session, attr->actions, file, -1);
  }
}

}  // namespace port
