// SPDX-License-Identifier: MIT
#include "widget/procedures.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "osi/owned_text.h"
#include "osi/strings.h"

static std::vector<char*, OsiAllocator<char*>> procedures;
// The same by text. An entry whose procedure has another text by now does not count.
static std::unordered_map<std::string, char*> by_text;

static std::string Key(const char* text) { return std::string(OsiView(text)); }

bool AlreadyInProcList(const char* procedure) {
  const auto known = by_text.find(Key(procedure));
  return known != by_text.end() && OsiStrcmp(known->second, procedure) == 0;
}

void InsertProcedure(char* procedure) {
  if (AlreadyInProcList(procedure)) return;
  by_text[Key(procedure)] = procedure;
  procedures.push_back(procedure);
}

void ProcedureTextChanged(char* text, const std::string& former) {
  const auto known = by_text.find(former);
  if (known == by_text.end() || known->second != text || former == Key(text)) return;
  if (AlreadyInProcList(text)) {
    // Two have the same text now; the first one declares it.
    const auto IsSame = [text](const char* other) { return OsiStrcmp(other, text) == 0; };
    const auto first = std::find_if(procedures.begin(), procedures.end(), IsSame);
    procedures.erase(std::find_if(first + 1, procedures.end(), IsSame));
    by_text[Key(text)] = *first;
  } else {
    by_text[Key(text)] = text;
  }
}

std::size_t GetProcedures(char*** out) {
  *out = procedures.data();
  return procedures.size();
}

void ResetProcedures() {
  procedures.clear();
  by_text.clear();
}
