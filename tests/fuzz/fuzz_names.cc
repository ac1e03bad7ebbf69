// SPDX-License-Identifier: MIT
// The name table against a literal model of it: names in a sorted map, numbers tried one by one
// from 1. An input is a sequence of operations, each a byte that chooses what to do and to which of
// a few names that collide with each other's numbers.
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "names/name_table.h"
#include "osi/arena.h"

namespace {

constexpr const char* kBases[] = {"button", "item", "item1", "item2 ", "12",
                                  "1",      "a b",  "",      "x9",     "x99"};

struct Model {
  std::map<std::string, int> refcounts;
  std::vector<std::string> by_handle;

  int Enter(const std::string& name) {
    std::string unique = name;
    std::string base = name;
    for (int n = 0; refcounts.count(unique) != 0; unique = base + std::to_string(n)) {
      int& refcount = refcounts[unique];
      if (refcount < 1) {
        ++refcount;
        return Handle(unique);
      }
      if (n++ == 0) Strip(&base);
    }
    refcounts[unique] = 1;
    by_handle.push_back(unique);
    return static_cast<int>(by_handle.size()) - 1;
  }

  int Handle(const std::string& name) const {
    for (std::size_t i = 0; i < by_handle.size(); ++i) {
      if (by_handle[i] == name) return static_cast<int>(i);
    }
    return kNoName;
  }

  // White space and then digits at the end, but never the first character.
  static void Strip(std::string* base) {
    const auto strip = [base](int (*is)(int)) {
      while (base->size() > 1 && is(static_cast<unsigned char>(base->back()))) base->pop_back();
    };
    strip(std::isspace);
    strip(std::isdigit);
  }
};

void Require(bool condition, const char* what, const std::string& name) {
  if (condition) return;
  std::fprintf(stderr, "the table and its model differ: %s of \"%s\"\n", what, name.c_str());
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  NameTable table;
  Model model;
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    std::string name = kBases[data[i + 1] % std::size(kBases)];
    const int number = data[i + 1] / 16;
    if (number > 0) name += std::to_string(number);
    switch (data[i] % 4) {
      case 0:
        NameDelete(&table, name.c_str());
        if (model.refcounts.count(name) != 0 && model.refcounts[name] > 0) --model.refcounts[name];
        break;
      case 1: {
        const int wanted = model.Handle(name);
        const NameHandle got = NameCopy(&table, name.c_str());
        if (wanted == kNoName) {
          Require(got == model.Enter(name), "copy", name);
        } else {
          ++model.refcounts[name];
          Require(got == wanted, "copy", name);
        }
        break;
      }
      default:
        Require(NameCreate(&table, name.c_str()) == model.Enter(name), "handle", name);
    }
  }
  for (std::size_t handle = 0; handle < model.by_handle.size(); ++handle) {
    const std::string& name = model.by_handle[handle];
    const auto number = static_cast<NameHandle>(handle);
    Require(NameGet(&table, number) != nullptr && NameGet(&table, number) == name, "text", name);
    Require((NameInUse(&table, number) != 0) == (model.refcounts[name] > 0), "use", name);
    Require(NameLookup(&table, name.c_str()) == number, "look-up", name);
  }
  Require(NameGet(&table, static_cast<NameHandle>(model.by_handle.size())) == nullptr, "end", "");
  table = NameTable();
  ArenaReset();
  return 0;
}
