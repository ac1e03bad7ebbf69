// SPDX-License-Identifier: MIT
// The module has a list's items in the reverse of the order that the editor showed. Programs may
// rely on that, so this reverses them only on request. A comment notes it: without one the next run
// would reverse them again.
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
