// SPDX-License-Identifier: MIT
#include "widget/procedures.h"

#include <string>
#include <unordered_set>
#include <vector>

#include "osi/owned_text.h"

static std::vector<char*, OsiAllocator<char*>> procedures;
// The same texts for the look-up. Nothing writes to a procedure's text before the list is complete.
static std::unordered_set<std::string> known;

bool AlreadyInProcList(const char* procedure) {
  return known.count(procedure ? procedure : "") != 0;
}

void InsertProcedure(char* procedure) {
  if (known.insert(procedure ? procedure : "").second) procedures.push_back(procedure);
}

std::size_t GetProcedures(char*** out) {
  *out = procedures.data();
  return procedures.size();
}

void ResetProcedures() {
  procedures.clear();
  known.clear();
}
