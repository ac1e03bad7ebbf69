// SPDX-License-Identifier: MIT
#include "uilfix/name_pool.h"

#include <cctype>

#include "uilfix/reserved_words.h"

namespace uilfix {
namespace {

// `name` with only the characters that a name may hold. Quotes and backslashes vanish, since they
// were how the GIL file wrote the name and no part of it.
std::string Sanitize(std::string_view name) {
  std::string clean;
  for (char c : name) {
    if (c == '"' || c == '\\') continue;
    const bool legal = std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '$';
    if (clean.empty() && std::isdigit(static_cast<unsigned char>(c))) clean += 'n';
    clean += legal ? c : '_';
  }
  if (clean.empty()) return "unnamed";
  return clean;
}

// `stem` and `tail` as one name, the stem cut so that the whole fits.
std::string Fit(const std::string& stem, const std::string& tail) {
  return stem.substr(0, kMaxName - tail.size()) + tail;
}

}  // namespace

NamePool::NamePool(const Module& module) {
  for (const Item& item : module.items) {
    if (const auto* declaration = std::get_if<Declaration>(&item)) used_.insert(declaration->name);
  }
  ForEachObject(module, [&](const Object& object) {
    used_.insert(object.name);
    ForEachEntry<Callback>(object, [&](const Callback& callback) {
      for (const Call& call : callback.calls) used_.insert(call.procedure);
    });
  });
}

std::string NamePool::Make(std::string_view base, std::string_view suffix, bool suffix_always) {
  const std::string stem = Sanitize(base);
  const bool suffixed = suffix_always || IsReservedWord(stem);
  const std::string tail = suffixed ? std::string(suffix) : "";
  std::string name = Fit(stem, tail);
  int& number = last_number_[name];
  while (Has(name) || IsReservedWord(name)) name = Fit(stem, tail + std::to_string(++number));
  used_.insert(name);
  return name;
}

}  // namespace uilfix
