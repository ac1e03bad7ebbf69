// SPDX-License-Identifier: MIT
#include "load_warnings.h"

#include <string_view>

namespace view {
namespace {

std::vector<std::string> collected;

void Collect(String message) { collected.emplace_back(message); }

// The text between `before` and `after`; empty when they do not stand in the message.
std::string Between(const std::string& message, std::string_view before, std::string_view after) {
  const std::size_t start = message.find(before);
  if (start == std::string::npos) return "";
  const std::size_t end = message.find(after, start + before.size());
  if (end == std::string::npos) return "";
  return message.substr(start + before.size(), end - start - before.size());
}

}  // namespace

LoadWarnings SortWarnings(const std::vector<std::string>& warnings) {
  LoadWarnings sorted;
  for (const std::string& warning : warnings) {
    const std::string icon = Between(warning, "UrmReadBitmapFile: ", " - ");
    const std::string color = Between(warning, "Could not convert color/pixel '", "'");
    if (!icon.empty()) {
      const std::size_t name = icon.find(" for ");
      sorted.icons.push_back(name == std::string::npos ? icon : icon.substr(name + 5));
    } else if (!color.empty()) {
      sorted.colors.push_back(color);
    } else if (warning.starts_with("Urm") || warning.starts_with("Idb")) {
      sorted.damage.push_back(warning);
    } else {
      sorted.others.push_back(warning);
    }
  }
  return sorted;
}

WarningCollector::WarningCollector(XtAppContext app)
    : app_(app), former_(XtAppSetWarningHandler(app, Collect)) {
  collected.clear();
}

WarningCollector::~WarningCollector() { XtAppSetWarningHandler(app_, former_); }

const std::vector<std::string>& WarningCollector::Warnings() const { return collected; }

}  // namespace view
