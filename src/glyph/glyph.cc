// SPDX-License-Identifier: MIT
#include "glyph/glyph.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

char* JustFilename(const char* path) {
  if (!path) path = "";
  const char* slash = std::strrchr(path, '/');
  const char* start = slash ? slash : path;
  while (*start == '/' || *start == '"') ++start;
  char* name = ArenaText(start, std::strcspn(start, "."));
  if (!name) Error("Out of memory in JustFilename");
  return name;
}

char* CreateXBMFilename(const char* path) { return MergeStrings(JustFilename(path), ".xbm"); }

char* PixmapConvert(const char* file) {
  return JoinTexts("xbitmapfile(\"", file, "\")", "Out of memory in PixmapConvert");
}

// Whether a file can be read through to an end: a pipe or a device could keep us waiting for ever.
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
  // Three characters are compared with four, so this never holds: a bitmap is known by its
  // contents.
  if (length >= 3 && OsiStrcmp(name + length - 3, ".xbm") == 0) return true;
  // Without a leading slash, and so relative to the current directory.
  if (IbStrncmp(name, "usr/include/X11/bitmaps", 23) == 0) return true;
  return name && StartsWithDefine(name);
}

// The outside command that converts a glyph file.
static std::string ConversionCommand(const char* glyph, const char* xbm) {
  return "icontopbm " + ShellWord(glyph) + " | pbmtoxbm > " + ShellWord(xbm);
}

// The outside command that gives the bitmap's identifiers the file's own name: pbmtoxbm calls them
// "noname".
static std::string RenameCommand(const char* base, const std::string& xbm) {
  const std::string file = ShellWord(xbm);
  const std::string temporary = ShellWord(xbm + ".tmp");
  return "sed -e 's/noname/" + QuotedSedReplacement(base) + "/' " + file + " > " + temporary +
         ";mv " + temporary + " " + file;
}

static void TellHowToConvert(const char* glyph, const char* xbm) {
  // The names shown are relative to the directory of the XBM file, those that are run are not.
  const char* base = JustFilename(xbm);
  std::printf("Cannot access glyph filename %s\n", glyph);
  std::printf("Convert to XBM with the commands:\n    %s\n", ConversionCommand(glyph, xbm).c_str());
  std::printf("    %s\n\n", RenameCommand(base, std::string(base) + ".xbm").c_str());
}

// The exit status of a command is not looked at: what it could not make is seen when the module is
// used.
static void Run(const std::string& command) {
  if (std::system(command.c_str()) == -1) std::fputs("Cannot run the shell\n", stderr);
}

static void Convert(const char* glyph, const char* xbm) {
  const char* converter = OsiFileFindExeInPath("pbmtoxbm");
  std::fprintf(stderr, "Osi output: %s\n", converter ? converter : "");
  if (verbose) {
    std::fputs("Glyph Filename encountered, converting to XBM file in current directory\n", stdout);
  }
  std::fflush(stdout);
  Run(ConversionCommand(glyph, xbm));
  Run(RenameCommand(JustFilename(xbm), xbm));
}

char* ProcessGlyphFilename(const char* glyph) {
  char* copy = ArenaText(glyph, OsiStrlen(glyph));
  if (!copy) Error("Out of memory in ProcessGlyphFilename");
  const char* name = RemoveQuotes(copy);
  if (IsXbmFile(name)) return PixmapConvert(name);

  const char* xbm = CreateXBMFilename(name);
  if (icon_dir_name) {
    const char* in_icon_dir = MergeStrings(icon_dir_name, name);
    if (IsReadable(in_icon_dir)) {
      name = in_icon_dir;
      xbm = MergeStrings(icon_dir_name, xbm);
    }
  }
  if (!IsReadable(name)) {
    if (verbose) TellHowToConvert(name, xbm);
  } else if (auto_convert_icons && access(xbm, R_OK) != 0) {
    Convert(name, xbm);
  }
  return PixmapConvert(xbm);
}
