// SPDX-License-Identifier: MIT
#include "glyph/glyph.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "flags/flags.h"
#include "glyph/shell_words.h"
#include "osi/arena.h"
#include "osi/fatal.h"
#include "osi/paths.h"
#include "osi/strings.h"
#include "text/uil_text.h"

// The bare name of a file, and that of its XBM file.
static std::string BareName(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  std::size_t start = slash == std::string::npos ? 0 : slash;
  start = std::min(path.find_first_not_of("/\"", start), path.size());
  return path.substr(start, path.find('.', start) - start);
}

static std::string XbmName(const std::string& path) { return BareName(path) + ".xbm"; }

// A copy that the caller frees.
static char* NewText(const std::string& text, const char* out_of_memory) {
  auto* copy = static_cast<char*>(TryRealloc(nullptr, text.size() + 1));
  if (!copy) Error(out_of_memory);
  return std::strcpy(copy, text.c_str());
}

char* JustFilename(const char* path) {
  return NewText(BareName(OsiOrEmpty(path)), "Out of memory in JustFilename");
}

char* CreateXBMFilename(const char* path) {
  return NewText(XbmName(OsiOrEmpty(path)), "Out of memory in JustFilename");
}

char* PixmapConvert(const char* file) {
  return NewText("xbitmapfile(\"" + std::string(OsiView(file)) + "\")",
                 "Out of memory in PixmapConvert");
}

// Whether a file can be read and reading it ends: a pipe or a device could keep us waiting for
// ever.
static bool IsReadable(const char* name) {
  struct stat status;
  return stat(name, &status) == 0 && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)) &&
         access(name, R_OK) == 0;
}

static bool StartsWithDefine(const char* name) {
  if (!IsReadable(name)) return false;
  std::FILE* file = std::fopen(name, "r");
  if (!file) return false;
  char line[16];
  const bool is_xbm = std::fgets(line, sizeof line, file) && std::strncmp(line, "#define", 7) == 0;
  std::fclose(file);
  return is_xbm;
}

bool IsXbmFile(const char* name) {
  const std::size_t length = OsiStrlen(name);
  // Three characters never equal four: only the contents tell a bitmap.
  if (length >= 3 && OsiStrcmp(name + length - 3, ".xbm") == 0) return true;
  // There is no leading slash, so the folder is below the current directory.
  if (IbStrncmp(name, "usr/include/X11/bitmaps", 23) == 0) return true;
  return name && StartsWithDefine(name);
}

// The outside command that converts a glyph file.
static std::string ConversionCommand(const std::string& glyph, const std::string& xbm) {
  return "icontopbm " + ShellWord(glyph) + " | pbmtoxbm > " + ShellWord(xbm);
}

// The outside command that gives the bitmap's identifiers, which pbmtoxbm calls "noname", the
// file's own name.
static std::string RenameCommand(const std::string& base, const std::string& xbm) {
  const std::string file = ShellWord(xbm);
  const std::string temporary = ShellWord(xbm + ".tmp");
  return "sed -e 's/noname/" + QuotedSedReplacement(base) + "/' " + file + " > " + temporary +
         ";mv " + temporary + " " + file;
}

static void TellHowToConvert(const std::string& glyph, const std::string& xbm) {
  // The rename shown is for the directory of the XBM file; the one that Convert runs is not.
  const std::string base = BareName(xbm);
  std::printf("Cannot access glyph filename %s\n", glyph.c_str());
  std::printf("Convert to XBM with the commands:\n    %s\n", ConversionCommand(glyph, xbm).c_str());
  std::printf("    %s\n\n", RenameCommand(base, base + ".xbm").c_str());
}

// Ignores the exit status of the command: whoever uses the module sees what it could not make.
static void Run(const std::string& command) {
  if (std::system(command.c_str()) == -1) std::fputs("Cannot run the shell\n", stderr);
}

static void Convert(const std::string& glyph, const std::string& xbm) {
  const char* converter = OsiFileFindExeInPath("pbmtoxbm");
  std::fprintf(stderr, "Osi output: %s\n", OsiOrEmpty(converter));
  if (verbose) {
    std::fputs("Glyph Filename encountered, converting to XBM file in current directory\n", stdout);
  }
  std::fflush(stdout);
  Run(ConversionCommand(glyph, xbm));
  Run(RenameCommand(BareName(xbm), xbm));
}

char* ProcessGlyphFilename(const char* glyph) {
  std::string copy(OsiView(glyph));
  std::string name = RemoveQuotes(copy.data());
  if (IsXbmFile(name.c_str())) return PixmapConvert(name.c_str());

  std::string xbm = XbmName(name);
  if (icon_dir_name && IsReadable((icon_dir_name + name).c_str())) {
    name.insert(0, icon_dir_name);
    xbm.insert(0, icon_dir_name);
  }
  if (!IsReadable(name.c_str())) {
    if (verbose) TellHowToConvert(name, xbm);
  } else if (auto_convert_icons && access(xbm.c_str(), R_OK) != 0) {
    Convert(name, xbm);
  }
  return PixmapConvert(xbm.c_str());
}
