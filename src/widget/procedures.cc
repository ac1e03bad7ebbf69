// SPDX-License-Identifier: MIT
#include "widget/procedures.h"

#include <string_view>
#include <unordered_set>
#include <vector>

static std::vector<char*> procedures;
// The same texts for the look-up. Nothing writes to a procedure's text before the list is complete.
static std::unordered_set<std::string_view> known;

static std::string_view TextOf(const char* procedure) { return procedure ? procedure : ""; }

bool AlreadyInProcList(const char* procedure) { return known.count(TextOf(procedure)) != 0; }

void InsertProcedure(char* procedure) {
  if (known.insert(TextOf(procedure)).second) procedures.push_back(procedure);
}

std::size_t GetProcedures(char*** out) {
  *out = procedures.data();
  return procedures.size();
}

void ResetProcedures() {
  procedures.clear();
  known.clear();
}
