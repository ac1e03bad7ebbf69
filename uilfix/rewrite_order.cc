// SPDX-License-Identifier: MIT
// A list's items stand in the module in the reverse of the order that the editor showed. Programs
// may count on that, so they are turned round on request only. A comment tells that it was done:
// the items alone would not, and the next run would turn them back.
#include <algorithm>

#include "uilfix/item_list.h"
#include "uilfix/rewrites.h"

namespace uilfix {

void FixOrder(Module& module, Report& report) {
  ForEachObject(module, [&](Object& object) {
    if (object.IsComment()) return;
    ForEachEntry<Argument>(object, [&](Argument& argument) {
      if (argument.resource != "XmNitems" || IsCommented(argument.lead)) return;
      if (IsInFileOrder(argument)) return;
      auto items = SplitItems(argument.value);
      if (!items || items->size() < 2) return;
      std::reverse(items->begin(), items->end());
      argument.value = JoinItems(*items);
      NoteFileOrder(argument);
      report.Add(argument.line, "items of " + object.name + " are now in the order of the file");
    });
  });
}

}  // namespace uilfix
