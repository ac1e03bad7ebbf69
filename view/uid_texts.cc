// SPDX-License-Identifier: MIT
#include "uid_texts.h"

#include <cctype>
#include <set>

#include "uilfix/reserved_words.h"

namespace view {

std::vector<std::string> FindNames(std::string_view bytes) {
  std::vector<std::string> names;
  std::set<std::string> known;
  std::string run;
  for (char c : bytes) {
    if (std::isgraph(static_cast<unsigned char>(c))) {
      run += c;
      continue;
    }
    const bool name = uilfix::HasNameForm(run) && run.size() <= uilfix::kMaxName;
    if (c == '\0' && name && known.insert(run).second) names.push_back(run);
    run.clear();
  }
  return names;
}

}  // namespace view
