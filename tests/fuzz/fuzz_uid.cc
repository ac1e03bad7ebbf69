// SPDX-License-Identifier: MIT
// The names in a compiled module, on any bytes: each is a name, stands in the bytes in front of a
// zero byte, comes once, and in the order of the bytes.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>

#include "uid_texts.h"
#include "uilfix/reserved_words.h"

namespace {

void Require(bool condition, const char* what, const std::string& name) {
  if (condition) return;
  std::fprintf(stderr, "wrong: %s of \"%s\"\n", what, name.c_str());
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  std::set<std::string> known;
  std::size_t from = 0;
  for (const std::string& name : view::FindNames(bytes)) {
    Require(uilfix::HasNameForm(name) && name.size() <= uilfix::kMaxName, "form", name);
    Require(known.insert(name).second, "number", name);
    const std::size_t at = bytes.find(name + '\0', from);
    Require(at != std::string_view::npos, "place", name);
    from = at + name.size();
  }
  return 0;
}
