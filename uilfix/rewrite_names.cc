// SPDX-License-Identifier: MIT
// Names that the compiler refuses: reserved words, names over its length, names that hold dots,
// blanks or quotes because the GIL file had them.
#include <map>
#include <optional>

#include "uilfix/renamer.h"
#include "uilfix/reserved_words.h"
#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

// What is wrong with a name; nothing when the compiler takes it.
std::optional<std::string> Fault(const std::string& name) {
  if (!HasNameForm(name)) return "not a name in UIL";
  if (IsReservedWord(name)) return "a reserved word";
  if (name.size() > kMaxName) return "longer than 31 characters";
  return std::nullopt;
}

// A commented shell's name is no token of the compiler's, but a quote in it would end the string
// that tells a run-time procedure which window to show.
std::optional<std::string> ShellFault(const std::string& name) {
  if (!HasNameForm(name)) return "not a name in UIL";
  return std::nullopt;
}

void RenameWidgets(Module& module, Renamer& renamer, Report& report) {
  ForEachObject(module, [&](Object& object) {
    const auto fault = object.IsComment() ? ShellFault(object.name) : Fault(object.name);
    if (!fault) return;
    const std::string old = object.name;
    renamer.Rename(object, "_widget", false);
    report.Add(object.line, "widget " + old + " is now " + object.name + ": " + *fault);
  });
}

void RenameProcedures(Module& module, Renamer& renamer, Report& report) {
  std::map<std::string, std::string> renamed;
  for (Item& item : module.items) {
    auto* declaration = std::get_if<Declaration>(&item);
    if (!declaration) continue;
    const auto fault = Fault(declaration->name);
    if (!fault) continue;
    const std::string old = declaration->name;
    declaration->name = renamed[old] = renamer.NewName(old, "_proc", false);
    report.Add(declaration->line,
               "procedure " + old + " is now " + declaration->name + ": " + *fault);
  }
  if (renamed.empty()) return;
  ForEachObject(module, [&](Object& object) {
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      for (Call& call : callback.calls) {
        const auto found = renamed.find(call.procedure);
        if (found != renamed.end()) call.procedure = found->second;
      }
    });
  });
}

}  // namespace

void FixNames(Module& module, Report& report) {
  Renamer renamer(module);
  RenameProcedures(module, renamer, report);
  RenameWidgets(module, renamer, report);
}

}  // namespace uilfix
