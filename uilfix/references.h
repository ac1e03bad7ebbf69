// SPDX-License-Identifier: MIT
// Which object each name in a module means. A rename goes through here, so that it changes the
// definition, the lists that control the widget, the resources that point at it and the arguments
// that name it at run time.
#ifndef PANDREL_UILFIX_REFERENCES_H
#define PANDREL_UILFIX_REFERENCES_H

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "uilfix/module.h"

namespace uilfix {

// The widget name inside the argument of a run-time procedure, in one of its three forms:
// "(WL)[name]", "name.resource=value" (ZoSetValuesCB) and "name".
struct Target {
  std::string before;  // up to the name, opening quote included
  std::string name;
  std::string after;

  std::string Text() const { return before + name + after; }
};

// The target that `call` names; nothing when its procedure takes none, or when its argument is
// empty or a string with quotes in it, which is a label and not a name.
std::optional<Target> CallTarget(const Call& call);

class References {
 public:
  // Resolves every name of `module`, which must outlive this and keep its entries where they are.
  explicit References(Module& module);

  // Gives `object` a new name, everywhere.
  void Rename(Object& object, const std::string& name);

  // The first live object of this name, else the first commented one, else null. Goes by the names
  // that the module held when this was made.
  Object* Find(const std::string& name) const;

 private:
  void ResolveControls();
  void ResolveArguments(Object& object);
  void ResolveCalls(Object& object);
  Object* Claim(const Control& control);

  std::vector<Object*> objects_;
  // By name and class: those defined so far and not yet in a controls list.
  std::unordered_map<std::string, std::vector<Object*>> unclaimed_;
  std::unordered_map<std::string, Object*> by_name_;
  std::unordered_map<const Control*, Object*> children_;  // the object that each line controls
  std::unordered_map<Object*, std::vector<std::string*>> names_;  // whole texts that are the name
  std::unordered_map<Object*, std::vector<Call*>> calls_;         // arguments that hold the name
};

}  // namespace uilfix

#endif
