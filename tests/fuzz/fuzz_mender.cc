// SPDX-License-Identifier: MIT
// Any text through the mender. The first byte selects the rewrites that run on request.
//
// Reading and rendering gives the text back; what comes out is in proportion to what went in; and
// mending what was mended changes nothing.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "uilfix/gil_starts.h"
#include "uilfix/module.h"
#include "uilfix/rewrites.h"

namespace {

constexpr char kStarts[] =
    "((:type :slider :name slider1 :initial-value 40)"
    "(:type :scrolling-list :name list1 :initial-selections (nil t)))";

// A line end in a label becomes a compound string of its own, 38 bytes of text, and a child whose
// parent can have none a container of some 300.
constexpr std::size_t kMostGrowth = 100;
constexpr std::size_t kSmall = 10000;

void Require(bool condition, const char* what, std::string_view text) {
  if (condition) return;
  std::fprintf(stderr, "%s:\n%.*s\n", what, static_cast<int>(text.size()), text.data());
  std::abort();
}

uilfix::Selection SelectionOf(uint8_t bits) {
  uilfix::Selection selection;
  for (const uilfix::Rewrite& rewrite : uilfix::Rewrites()) {
    if (!rewrite.on_request) continue;
    if (bits & 1) selection.on.emplace(rewrite.name);
    bits = static_cast<uint8_t>(bits >> 1);
  }
  return selection;
}

std::optional<std::string> Mend(std::string_view text, const uilfix::Selection& selection) {
  uilfix::Report report;
  auto mended = uilfix::MendText(text, selection, report, uilfix::ReadGilStarts(kStarts));
  const bool silent = report.Changes().empty();
  Require(!mended || !silent || *mended == text, "changed without a report", text);
  Require(mended || report.HopelessLine() > 0, "refused without a line", text);
  return mended;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  Require(uilfix::RenderModule(uilfix::ParseModule(text)) == text, "not read as it stands", text);
  uilfix::ReadGilStarts(text);
  const uilfix::Selection selection = SelectionOf(data[0]);
  const auto once = Mend(text, selection);
  if (!once) return 0;
  Require(once->size() <= kSmall + size * kMostGrowth, "grows too much", text);
  const auto twice = Mend(*once, selection);
  if (twice != once) {
    std::fprintf(stderr, "mended once:\n%s\nmended twice:\n%s\n", once->c_str(),
                 twice ? twice->c_str() : "(refused)");
    Require(false, "mended twice is not mended once", text);
  }
  return 0;
}
