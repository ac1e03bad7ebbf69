// SPDX-License-Identifier: MIT
#include "widget/procedures.h"

#include <vector>

#include "osi/text_map.h"

static std::vector<char*> procedures;
// The same texts for the look-up. Nothing writes to a procedure's text before the list is complete.
static TextSet known;

bool AlreadyInProcList(const char* procedure) { return known.count(procedure) != 0; }

void InsertProcedure(char* procedure) {
  if (known.insert(procedure).second) procedures.push_back(procedure);
}

std::size_t GetProcedures(char*** out) {
  *out = procedures.data();
  return procedures.size();
}

void ResetProcedures() {
  procedures.clear();
  known.clear();
}
