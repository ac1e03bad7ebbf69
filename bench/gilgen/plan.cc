// SPDX-License-Identifier: MIT
#include "gilgen/plan.h"

namespace {

struct Stem {
  const char* text;
  bool referred_to;  // by :owner, :menu or an action, so the name must stay unique in the file
};

// By Kind, in its order.
constexpr std::array<Stem, 13> kStems = {{
    {"window", true},
    {"popup", true},
    {"controls", true},
    {"canvas", true},
    {"button", false},
    {"message", false},
    {"textfield", false},
    {"setting", false},
    {"slider", false},
    {"gauge", false},
    {"list", false},
    {"menu", true},
    {"group", true},
}};

}  // namespace

void Names::StartWindow() {
  if (numbering_ != Numbering::kWindow) return;
  for (std::size_t i = 0; i < used_.size(); ++i) {
    if (!kStems[i].referred_to) used_[i] = 0;
  }
}

std::string Names::Next(Kind kind) {
  const std::size_t i = static_cast<std::size_t>(kind);
  return kStems[i].text + std::to_string(++used_[i]);
}
