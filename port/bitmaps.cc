// SPDX-License-Identifier: MIT
#include "port/bitmaps.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "gil/tokens.h"
#include "glyph/glyph.h"
#include "port/functions.h"
#include "uilfix/module_files.h"
#include "widget/tree.h"

namespace port {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kOpen = "xbitmapfile(\"";
constexpr std::string_view kClose = "\")";
constexpr std::uintmax_t kLargest = 4U << 20U;

// Whether the path can be used in the program's folder as it stands, and in a makefile.
bool IsSafe(const std::string& path) {
  if (path.empty() || path[0] == '/' || path[0] == '-') return false;
  for (const fs::path& part : fs::path(path)) {
    if (part == ".." || part.empty()) return false;
  }
  return std::all_of(path.begin(), path.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.' || c == '/' || c == '+';
  });
}

bool IsBitmapFile(const std::string& path) {
  std::error_code error;
  return fs::is_regular_file(path, error) && fs::file_size(path, error) <= kLargest;
}

// The path under which the program has the bitmap; as it was when there is none.
std::string Take(Model& model, const std::string& path) {
  const std::string kept =
      IsSafe(path) ? path : "bitmaps/" + CWord(fs::path(path).stem().string()) + ".xbm";
  for (const PortBitmap& known : model.bitmaps) {
    if (known.path == kept) return kept;
  }
  const auto bytes = IsBitmapFile(path) ? uilfix::ReadFile(path) : std::nullopt;
  if (!bytes || bytes->empty()) {
    auto& missing = model.missing_bitmaps;
    if (std::find(missing.begin(), missing.end(), path) == missing.end()) missing.push_back(path);
    return path;
  }
  model.bitmaps.push_back({kept, *bytes});
  return kept;
}

// The path in xbitmapfile("path"); empty for any other value.
std::string PathIn(const std::string& value) {
  if (!value.starts_with(kOpen) || !value.ends_with(kClose)) return "";
  return value.substr(kOpen.size(), value.size() - kOpen.size() - kClose.size());
}

}  // namespace

void TakeBitmaps(Session& session, uilfix::Module& module) {
  uilfix::ForEachObject(module, [&](uilfix::Object& object) {
    uilfix::ForEachEntry<uilfix::Argument>(object, [&](uilfix::Argument& argument) {
      const std::string path = PathIn(argument.value);
      if (path.empty()) return;
      const std::string kept = Take(session.model, path);
      if (kept != path) argument.value = std::string(kOpen) + kept + std::string(kClose);
    });
  });
}

void TakeButtonGlyphs(Session& session) {
  Model& model = session.model;
  for (std::size_t i = 0; i < model.objects.size(); ++i) {
    const PortObject& object = model.objects[i];
    if (object.type != BUTTON || !object.Is(LABEL_TYPE, GLYPH)) continue;
    const std::string label = object.Text(LABEL);
    const std::vector<Widg*> own = OwnWidgets(session, static_cast<int>(i));
    if (label.empty() || own.empty()) continue;
    const std::unique_ptr<char, void (*)(void*)> pixmap(ProcessGlyphFilename(label.c_str()),
                                                        std::free);
    const std::string path = PathIn(pixmap.get());
    const std::string kept = Take(model, path);
    const auto has = [&](const PortBitmap& bitmap) { return bitmap.path == kept; };
    if (std::any_of(model.bitmaps.begin(), model.bitmaps.end(), has)) {
      model.button_glyphs.push_back({NameOf(session, own[0]), kept});
    }
  }
}

}  // namespace port
