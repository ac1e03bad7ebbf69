// SPDX-License-Identifier: MIT
#include "driver/session.h"

#include "convert/lists.h"
#include "flags/flags.h"
#include "gil/parser.h"
#include "gil/position.h"
#include "gil/scanner.h"
#include "gil/version.h"
#include "names/name_table.h"
#include "osi/arena.h"
#include "text/uil_text.h"
#include "widget/known_names.h"
#include "widget/procedures.h"
#include "widget/tree.h"

void ResetSession() {
  ResetFlags();
  ResetScanner();
  ResetPosition();
  ResetParser();
  ResetVersion();
  ResetTree();
  ResetKnownNames();
  ResetProcedures();
  ResetNameTable();
  ResetStrings();
  ResetStringTable();
  ArenaReset();  // last, since the others point at what it frees
}
