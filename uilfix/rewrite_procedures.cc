// SPDX-License-Identifier: MIT
// Without the builder's run-time library a procedure named like a widget is declared with a capital
// letter, but only one of the texts that call it changes; and two procedures may get one name.
#include <cctype>
#include <unordered_set>

#include "uilfix/rewrites.h"

namespace uilfix {
namespace {

// In the free layout one keyword may precede several declarations. It must stay when the first of
// them goes.
void PassOnKeyword(const Declaration& left_out, Item* next) {
  auto* heir = next ? std::get_if<Declaration>(next) : nullptr;
  if (!left_out.layout || !heir || !heir->layout) return;
  const bool keyword = left_out.layout->head.find_first_not_of(" \t") != std::string::npos;
  const bool has_own = heir->layout->head.find_first_not_of(" \t") != std::string::npos;
  if (!keyword || has_own) return;
  Layout layout = *heir->layout;
  layout.head = left_out.layout->head;
  heir->layout = std::make_shared<const Layout>(std::move(layout));
}

// The declared names, each declared once from here on.
std::unordered_set<std::string> TakeDeclarations(Module& module, Report& report) {
  std::unordered_set<std::string> declared;
  std::unordered_set<const Item*> second;
  for (Item& item : module.items) {
    auto* declaration = std::get_if<Declaration>(&item);
    if (!declaration || declared.insert(declaration->name).second) continue;
    report.Add(declaration->line,
               "procedure " + declaration->name + ": second declaration left out");
    second.insert(&item);
    PassOnKeyword(*declaration, &item == &module.items.back() ? nullptr : &item + 1);
  }
  if (second.empty()) return declared;
  std::vector<Item> kept;
  for (Item& item : module.items) {
    if (!second.contains(&item)) kept.push_back(std::move(item));
  }
  module.items = std::move(kept);
  return declared;
}

}  // namespace

void FixProcedures(Module& module, Report& report) {
  const std::unordered_set<std::string> declared = TakeDeclarations(module, report);
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    ForEachEntry<Callback>(object, [&](Callback& callback) {
      for (Call& call : callback.calls) {
        if (call.procedure.empty() || declared.contains(call.procedure)) continue;
        std::string capital = call.procedure;
        capital[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(capital[0])));
        if (!declared.contains(capital)) continue;
        report.Add(call.line, "call of " + call.procedure + " in " + object.name + " is now " +
                                  capital + ", as declared");
        call.procedure = capital;
      }
    });
  });
}

}  // namespace uilfix
