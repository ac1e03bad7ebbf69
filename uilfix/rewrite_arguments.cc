// SPDX-License-Identifier: MIT
// Enable and Disable name their target as the GIL file does, and the module names it otherwise:
// with its first letter lowered, cut to 30 characters, its last digit turned into a letter (0 to A,
// 1 to B ...) or a number added because the name was taken or reserved. The run-time library would
// find no such widget.
#include <cctype>
#include <optional>
#include <vector>

#include "uilfix/references.h"
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

constexpr std::size_t kCutLength = 30;

std::string LowerFirst(std::string name) {
  if (!name.empty()) name[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[0])));
  return name;
}

// The last digit as the letter that builder 2.5 puts for it; a 9 stays.
std::string LetterForDigit(std::string name) {
  if (!name.empty() && name.back() >= '0' && name.back() <= '8') name.back() += 'A' - '0';
  return name;
}

// Whether `name` is `base` with a number added, the last digit of which may be a letter.
bool IsNumbered(const std::string& name, const std::string& base) {
  if (name.size() <= base.size() || !name.starts_with(base)) return false;
  for (std::size_t i = base.size(); i + 1 < name.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(name[i]))) return false;
  }
  return std::isdigit(static_cast<unsigned char>(name.back())) ||
         (name.back() >= 'A' && name.back() <= 'I');
}

// The widget that a GIL name means: the first that has one of its plain forms, else the only one
// that has a numbered form.
std::optional<std::string> FindWidget(const Module& module, const References& references,
                                      const std::string& gil_name) {
  const std::string lowered = LowerFirst(gil_name);
  const std::string cut = lowered.substr(0, kCutLength);
  for (const std::string& form : {lowered, LetterForDigit(lowered), cut, LetterForDigit(cut)}) {
    if (references.Find(form)) return form;
  }
  std::vector<std::string> numbered;
  ForEachObject(module, [&](const Object& object) {
    if (IsNumbered(object.name, cut)) numbered.push_back(object.name);
  });
  if (numbered.size() != 1) return std::nullopt;
  return numbered.front();
}

}  // namespace

void FixArguments(Module& module, Report& report) {
  const References references(module);
  ForEachObject(module, [&](Object& object) {
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      for (Call& call : callback.calls) {
        auto target = CallTarget(call);
        if (!target || references.Find(target->name)) continue;
        const auto found = FindWidget(module, references, target->name);
        if (!found) continue;
        report.Add(call.line, call.procedure + " in " + object.name + " now names " + *found +
                                  " instead of " + target->name);
        target->name = *found;
        call.argument = target->Text();
      }
    });
  });
}

}  // namespace uilfix
