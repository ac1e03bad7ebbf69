// SPDX-License-Identifier: MIT
#include "button_icons.h"

#include <map>

#include "missing_parts.h"
#include "process.h"
#include "uilfix/literals.h"

namespace view {
namespace {

namespace fs = std::filesystem;

// The command with which the converter converts other icons.
constexpr char kToBitmap[] = "icontopbm \"$1\" | pbmtoxbm > \"$2\"";

// Makes `bitmap` from the icon's file, or from a bitmap that the user made of it. Returns whether
// it can be shown.
bool MakeBitmap(const std::string& icon, const std::vector<fs::path>& folders,
                const fs::path& bitmap) {
  std::error_code error;
  for (const fs::path& folder : folders) {
    const fs::path file = folder / icon;
    for (const fs::path& made : {folder / (file.stem().string() + ".xbm"), file}) {
      if (!CanReadBitmap(made.string())) continue;
      fs::copy_file(made, bitmap, fs::copy_options::overwrite_existing, error);
      return !error;
    }
    if (!fs::is_regular_file(file, error)) continue;
    Command command;
    command.arguments = {"/bin/sh", "-c", kToBitmap, "sh", file.string(), bitmap.string()};
    RunCommand(command);
    return CanReadBitmap(bitmap.string());
  }
  return false;
}

// The icon of the button that became this widget; empty for none.
std::string IconOf(const uilfix::Object& object, const std::vector<std::string>& gil_names,
                   const std::vector<GlyphButton>& buttons) {
  if (object.class_name != "XmPushButton" && object.class_name != "XmCascadeButton") return "";
  const std::string* label = uilfix::FindArgument(object, "XmNlabelString");
  std::string inside;
  if (object.IsComment() || !label || !uilfix::PlainString(*label, &inside)) return "";
  const std::string text = uilfix::LiteralBytes(inside);
  const std::string name = GuessGilName(gil_names, object.name);
  for (const GlyphButton& button : buttons) {
    if (button.name == name && button.icon == text) return text;
  }
  return "";
}

}  // namespace

void ShowButtonIcons(uilfix::Module& module, const std::vector<std::string>& gil_names,
                     const std::vector<GlyphButton>& buttons, const IconFolders& folders) {
  if (buttons.empty()) return;
  std::map<std::string, std::string> bitmaps;  // by icon; empty for one that cannot be shown
  uilfix::ForEachObject(module, [&](uilfix::Object& object) {
    const std::string icon = IconOf(object, gil_names, buttons);
    if (icon.empty()) return;
    if (!bitmaps.contains(icon)) {
      const std::string file = "button" + std::to_string(bitmaps.size()) + ".xbm";
      const bool made = MakeBitmap(icon, folders.given, folders.bitmaps / file);
      bitmaps[icon] = made ? folders.bitmaps_name + "/" + file : "";
    }
    if (bitmaps[icon].empty()) return;
    uilfix::AddArgument(object, "XmNlabelType", "XmPIXMAP");
    uilfix::AddArgument(object, "XmNlabelPixmap", "xbitmapfile(\"" + bitmaps[icon] + "\")");
  });
}

}  // namespace view
