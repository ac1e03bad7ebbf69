// SPDX-License-Identifier: MIT
// Writable folders that look like the user's: the converter writes the bitmaps of glyphs beside
// them, and a look at an interface should leave no files behind.
#ifndef PANDREL_VIEW_WRITABLE_FOLDER_H
#define PANDREL_VIEW_WRITABLE_FOLDER_H

#include <filesystem>

namespace view {

// Makes `shadow` a folder in which the files of `original` can be read and new ones written.
// Folders, `depth` levels of them, are made anew; deeper ones are the user's own.
void MakeShadow(const std::filesystem::path& original, const std::filesystem::path& shadow,
                int depth);

// Makes the folder `path` below the shadow one of `original`, in place of what is there. `path` is
// relative and does not lead out of the shadow.
void PutShadow(const std::filesystem::path& original, const std::filesystem::path& shadow,
               const std::filesystem::path& path);

}  // namespace view

#endif
