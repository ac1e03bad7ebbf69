// SPDX-License-Identifier: MIT
// Enable and Disable name their target as the GIL file does. The module may have another name: the
// name changed its form, or the file named a menu's item by its label. The run-time library would
// not find the widget, and the compiler refuses the quotes of a label.
#include <memory>

#include "uilfix/literals.h"
#include "uilfix/references.h"
#include "uilfix/rewrites.h"
#include "uilfix/widget_finder.h"

namespace uilfix {
namespace {

// The bytes of a label that stands for a name, quotes included; false for any other name.
bool LabelOf(const std::string& name, std::string* label) {
  if (LiteralEnd(name, 0) != name.size() || name[0] != '"') return false;
  *label = LiteralBytes(std::string_view(name).substr(1, name.size() - 2));
  return true;
}

std::string EscapeQuotes(std::string_view name) {
  std::string escaped;
  while (!name.empty()) {
    const std::string_view character = TakeCharacter(name);
    if (character == "\"") escaped += '\\';
    escaped += character;
  }
  return escaped;
}

class Arguments {
 public:
  Arguments(const Module& module, Report& report) : finder_(module), report_(report) {}

  void Mend(Call& call, const Object& object) {
    auto target = CallTarget(call);
    if (!target || finder_.Named(target->name)) return;
    const std::string where = call.procedure + " in " + object.name;
    std::string label;
    std::string whole;
    if (const Object* found = finder_.ByGilName(target->name)) {
      Point(call, *target, *found, where, "");
    } else if (LabelOf(target->name, &label) && !finder_.ByLabel(label).empty()) {
      const auto labelled = finder_.ByLabel(label);
      const std::string which =
          labelled.size() > 1 ? ", the first of " + std::to_string(labelled.size()) + " so labelled"
                              : "";
      Point(call, *target, *labelled.front(), where, which);
    } else if (!PlainString(call.argument, &whole)) {
      const std::string name = target->name;
      target->name = EscapeQuotes(name);
      if (!PlainString(target->Text(), &whole)) return;
      call.argument = target->Text();
      report_.Add(call.line, where + ": no widget has the label " + name + ", quotes escaped");
    }
  }

 private:
  void Point(Call& call, Target& target, const Object& found, const std::string& where,
             const std::string& which) {
    report_.Add(call.line,
                where + " now names " + found.name + " instead of " + target.name + which);
    target.name = found.name;
    call.argument = target.Text();
  }

  WidgetFinder finder_;
  Report& report_;
};

}  // namespace

void FixArguments(Module& module, Report& report) {
  std::unique_ptr<Arguments> arguments;  // made for the first call that names a widget
  ForEachObject(module, [&](Object& object) {
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      for (Call& call : callback.calls) {
        if (!CallTarget(call)) continue;
        if (!arguments) arguments = std::make_unique<Arguments>(module, report);
        arguments->Mend(call, object);
      }
    });
  });
}

}  // namespace uilfix
