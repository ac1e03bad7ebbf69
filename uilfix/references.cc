// SPDX-License-Identifier: MIT
#include "uilfix/references.h"

#include <algorithm>
#include <array>

#include "uilfix/literals.h"

namespace uilfix {
namespace {

constexpr std::array<std::string_view, 5> kTargetProcedures = {
    "ZoManageCB", "ZoUnmanageCB", "ZoSetValuesCB", "ZoSetSensitiveCB", "ZoSetInsensitiveCB"};

}  // namespace

std::optional<Target> CallTarget(const Call& call) {
  if (std::find(kTargetProcedures.begin(), kTargetProcedures.end(), call.procedure) ==
      kTargetProcedures.end()) {
    return std::nullopt;
  }
  const std::string& text = call.argument;
  std::size_t begin = text.find('"');
  std::size_t end = text.rfind('"');
  if (begin == std::string::npos || end <= begin) return std::nullopt;
  ++begin;
  if (text.compare(begin, 5, "(WL)[") == 0 && end > begin + 5 && text[end - 1] == ']') {
    begin += 5;
    --end;
  } else if (call.procedure == "ZoSetValuesCB") {
    // The name of the widget may hold dots, that of the resource does not.
    const std::size_t equals = text.rfind('=', end);
    if (equals == std::string::npos) return std::nullopt;
    end = text.rfind('.', equals);
    if (end == std::string::npos || end < begin) return std::nullopt;
  }
  if (begin == end) return std::nullopt;
  std::string whole;
  if (text.find("\\\"") != std::string::npos && PlainString(text, &whole)) return std::nullopt;
  return Target{text.substr(0, begin), text.substr(begin, end - begin), text.substr(end)};
}

References::References(Module& module) {
  ForEachObject(module, [&](Object& object) {
    objects_.push_back(&object);
    Object*& known = by_name_[object.name];
    if (!known || (known->IsComment() && !object.IsComment())) known = &object;
  });
  ResolveControls();
  for (Object* object : objects_) {
    ResolveArguments(*object);
    ResolveCalls(*object);
  }
}

// Every object comes after its children, so its children are the latest objects that no list has
// claimed yet. That tells two objects of one name apart.
void References::ResolveControls() {
  for (Object* object : objects_) {
    std::vector<Control*> controls;
    ForEachEntry<Control>(*object, [&](Control& control) { controls.push_back(&control); });
    for (auto it = controls.rbegin(); it != controls.rend(); ++it) {
      Object* child = Claim(**it);
      if (!child) continue;
      children_[*it] = child;
      names_[child].push_back(&(*it)->name);
    }
    unclaimed_[object->name + '\n' + object->class_name].push_back(object);
  }
}

// The object that a controls line means. When two parents share a menu, the second one finds it
// claimed.
Object* References::Claim(const Control& control) {
  const auto found = unclaimed_.find(control.name + '\n' + control.class_name);
  if (found == unclaimed_.end() || found->second.empty()) return Find(control.name);
  Object* object = found->second.back();
  found->second.pop_back();
  return object;
}

// Resources whose value is a widget's name. The button that a menu shows first is one of its own
// children, the widget that another is attached to usually the only one of its name.
void References::ResolveArguments(Object& object) {
  ForEachEntry<Argument>(object, [&](Argument& argument) {
    if (!IsWidgetReference(argument.resource)) return;
    Object* target = nullptr;
    if (argument.resource == "XmNmenuHistory") {
      ForEachEntry<Control>(object, [&](Control& control) {
        const auto child = children_.find(&control);
        if (child != children_.end() && control.name == argument.value) target = child->second;
      });
    }
    if (!target) target = Find(argument.value);
    if (target) names_[target].push_back(&argument.value);
  });
}

void References::ResolveCalls(Object& object) {
  ForEachEntry<Callback>(object, [&](Callback& callback) {
    for (Call& call : callback.calls) {
      const auto target = CallTarget(call);
      Object* named = target ? Find(target->name) : nullptr;
      if (named) calls_[named].push_back(&call);
    }
  });
}

Object* References::Find(const std::string& name) const {
  const auto found = by_name_.find(name);
  return found == by_name_.end() ? nullptr : found->second;
}

void References::Rename(Object& object, const std::string& name) {
  object.name = name;
  for (std::string* text : names_[&object]) *text = name;
  for (Call* call : calls_[&object]) {
    auto target = CallTarget(*call);
    if (!target) continue;
    target->name = name;
    call->argument = target->Text();
  }
}

}  // namespace uilfix
