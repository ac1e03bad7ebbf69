// SPDX-License-Identifier: MIT
#include "passes/procedure_names.h"

#include <cstddef>
#include <cstdio>

#include "flags/flags.h"
#include "names/name_table.h"
#include "widget/procedures.h"

static void FixProcedureName(char* name) {
  if (NameLookup(InstanceNameTbl(), name) == kNoName) return;
  std::fprintf(stderr, "Changing procedure named %s to ", name);
  if (*name >= 'a' && *name <= 'z') *name = static_cast<char>(*name - 'a' + 'A');
  std::fprintf(stderr, "%s to avoid name collision\n", name);
}

void FixProcedureNames() {
  if (usezo) return;
  char** procedures = nullptr;
  const std::size_t count = GetProcedures(&procedures);
  for (std::size_t i = 0; i < count; ++i) FixProcedureName(procedures[i]);
}
