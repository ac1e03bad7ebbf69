// SPDX-License-Identifier: MIT
#include "glyph/glyph.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "flags/flags.h"
#include "osi/arena.h"
#include "unit/osi/surroundings.h"
#include "unit/support/fatal_end.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"

namespace {

// The text, which is freed as a caller may.
std::string Taken(char* text) {
  std::string taken = text;
  std::free(text);
  return taken;
}

// Runs in an empty folder with stand-ins for the two converters in front of the search path: they
// write what they are given into the file `log` and make a bitmap of the usual kind.
class Glyphs : public SessionFixture {
 protected:
  Glyphs() : cwd_(dir_.Path()), path_("PATH", SearchPath().c_str()) {
    const std::string log = "printf '%s' \"${0##*/}\" >> " + dir_.Path("log") +
                            "; for o; do printf ' <%s>' \"$o\" >> " + dir_.Path("log") +
                            "; done; echo >> " + dir_.Path("log") + "\n";
    bin_.Write("icontopbm", "#!/bin/sh\n" + log + "cat < \"$1\"\n", 0755);
    bin_.Write("pbmtoxbm", "#!/bin/sh\ncat > /dev/null\nprintf '#define noname_width 8\\n'\n",
               0755);
  }

  std::string SearchPath() const {
    const char* path = std::getenv("PATH");
    return bin_.Path() + ":" + (path ? path : "");
  }

  // The value for the glyph, quoted as the file has it.
  static std::string ValueFor(const std::string& glyph) {
    return Taken(ProcessGlyphFilename(Writable(std::string("\"").append(glyph).append("\""))));
  }

  std::string OsiLine() const { return "Osi output: " + bin_.Path("pbmtoxbm") + "\n"; }

  bool Exists(const std::string& name) const { return std::filesystem::exists(dir_.Path(name)); }

  TempDir dir_;
  TempDir bin_;
  ScopedCwd cwd_;
  ScopedEnv path_;
};

const char kConverting[] =
    "Glyph Filename encountered, converting to XBM file in current directory\n";

TEST_F(Glyphs, BareNameHasNeitherFolderNorExtension) {
  EXPECT_EQ(Taken(JustFilename("icons/face.icon")), "face");
  EXPECT_EQ(Taken(JustFilename("/a/b/face.tar.gz")), "face");
  EXPECT_EQ(Taken(JustFilename("face")), "face");
  EXPECT_EQ(Taken(JustFilename("\"face.icon")), "face");
  EXPECT_EQ(Taken(JustFilename("icons/\"face")), "face");
  EXPECT_EQ(Taken(JustFilename("icons/")), "");
  EXPECT_EQ(Taken(JustFilename(".icon")), "");
  EXPECT_EQ(Taken(JustFilename("a.b/face")), "face");
  EXPECT_EQ(Taken(JustFilename("")), "");
  EXPECT_EQ(Taken(JustFilename(nullptr)), "");
}

TEST_F(Glyphs, BitmapIsNamedAfterTheBareName) {
  EXPECT_EQ(Taken(CreateXBMFilename("icons/face.icon")), "face.xbm");
  EXPECT_EQ(Taken(CreateXBMFilename(".icon")), ".xbm");
}

TEST_F(Glyphs, ValueNamesTheFile) {
  EXPECT_EQ(Taken(PixmapConvert("face.xbm")), "xbitmapfile(\"face.xbm\")");
}

TEST_F(Glyphs, BitmapsAreKnownByTheirFirstLine) {
  dir_.Write("yes", "#define face_width 16\n");
  dir_.Write("no", "/* Format_version=1 */\n#define face_width 16\n");
  dir_.Write("short.xbm", "#def\n");
  dir_.Write("empty", "");
  EXPECT_TRUE(IsXbmFile("yes"));
  EXPECT_FALSE(IsXbmFile("no"));
  EXPECT_FALSE(IsXbmFile("short.xbm"));
  EXPECT_FALSE(IsXbmFile("empty"));
}

TEST_F(Glyphs, NameEndingInXbmIsNoBitmapByItself) {
  EXPECT_FALSE(IsXbmFile("missing.xbm"));
  EXPECT_FALSE(IsXbmFile(".xbm"));
  EXPECT_FALSE(IsXbmFile("xb"));
  EXPECT_FALSE(IsXbmFile(""));
  EXPECT_FALSE(IsXbmFile(nullptr));
}

TEST_F(Glyphs, SystemBitmapsAreKnownByAPathWithoutALeadingSlash) {
  EXPECT_TRUE(IsXbmFile("usr/include/X11/bitmaps/missing"));
  EXPECT_FALSE(IsXbmFile("/usr/include/X11/bitmaps/missing"));
  EXPECT_FALSE(IsXbmFile("usr/include/X11/bitmap"));
}

TEST_F(Glyphs, FolderAndPipeAreNoBitmaps) {
  dir_.Mkdir("folder");
  ASSERT_EQ(mkfifo(dir_.Path("pipe").c_str(), 0644), 0);
  EXPECT_FALSE(IsXbmFile("folder"));
  EXPECT_FALSE(IsXbmFile("pipe"));
}

TEST_F(Glyphs, PresentGlyphIsConverted) {
  dir_.Mkdir("icons");
  dir_.Write("icons/face.icon", "icon");
  std::string value;
  const Outcome outcome = Run([&] { value = ValueFor("icons/face.icon"); });
  EXPECT_EQ(value, "xbitmapfile(\"face.xbm\")");
  EXPECT_EQ(ReadWhole("face.xbm"), "#define face_width 8\n");
  EXPECT_EQ(ReadWhole("log"), "icontopbm <icons/face.icon>\n");
  EXPECT_EQ(outcome.out, kConverting);
  EXPECT_EQ(outcome.err, OsiLine());
  EXPECT_FALSE(Exists("face.xbm.tmp"));
}

TEST_F(Glyphs, PathOfTheConverterIsToldEvenWithoutNotes) {
  verbose = 0;
  dir_.Write("face.icon", "icon");
  const Outcome outcome = Run([&] { ValueFor("face.icon"); });
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, OsiLine());
  EXPECT_TRUE(Exists("face.xbm"));
}

TEST_F(Glyphs, MissingConverterStillYieldsTheValue) {
  dir_.Write("face.icon", "icon");
  const ScopedEnv path("PATH", dir_.Path().c_str());
  std::string value;
  const Outcome outcome = Run([&] { value = ValueFor("face.icon"); });
  EXPECT_EQ(value, "xbitmapfile(\"face.xbm\")");
  EXPECT_EQ(outcome.err.rfind("Osi output: \n", 0), 0u) << outcome.err;
  EXPECT_EQ(outcome.status, std::nullopt);
}

TEST_F(Glyphs, PresentBitmapIsNotMadeAgain) {
  dir_.Write("face.icon", "icon");
  dir_.Write("face.xbm", "made by hand");
  std::string value;
  ExpectQuiet(Run([&] { value = ValueFor("face.icon"); }));
  EXPECT_EQ(value, "xbitmapfile(\"face.xbm\")");
  EXPECT_EQ(ReadWhole("face.xbm"), "made by hand");
  EXPECT_FALSE(Exists("log"));
}

TEST_F(Glyphs, NothingRunsWhenConvertingIsOff) {
  auto_convert_icons = 0;
  dir_.Write("face.icon", "icon");
  ExpectQuiet(Run([&] { EXPECT_EQ(ValueFor("face.icon"), "xbitmapfile(\"face.xbm\")"); }));
  EXPECT_FALSE(Exists("face.xbm"));
}

TEST_F(Glyphs, GlyphThatIsABitmapNamesItself) {
  dir_.Mkdir("icons");
  dir_.Write("icons/face.icon", "#define face_width 16\n");
  ExpectQuiet(
      Run([&] { EXPECT_EQ(ValueFor("icons/face.icon"), "xbitmapfile(\"icons/face.icon\")"); }));
  EXPECT_FALSE(Exists("log"));
}

TEST_F(Glyphs, CommandsForAMissingGlyphAreTold) {
  std::string value;
  const Outcome outcome = Run([&] { value = ValueFor("icons/face.icon"); });
  EXPECT_EQ(value, "xbitmapfile(\"face.xbm\")");
  EXPECT_EQ(outcome.out,
            "Cannot access glyph filename icons/face.icon\n"
            "Convert to XBM with the commands:\n"
            "    icontopbm icons/face.icon | pbmtoxbm > face.xbm\n"
            "    sed -e 's/noname/face/' face.xbm > face.xbm.tmp;mv face.xbm.tmp face.xbm\n\n");
  EXPECT_EQ(outcome.err, "");
}

TEST_F(Glyphs, MissingGlyphIsSilentWithoutNotes) {
  verbose = 0;
  ExpectQuiet(Run([&] { EXPECT_EQ(ValueFor("face.icon"), "xbitmapfile(\"face.xbm\")"); }));
}

TEST_F(Glyphs, MissingGlyphWithABlankIsToldQuoted) {
  const Outcome outcome = Run([&] { ValueFor("my face.icon"); });
  EXPECT_EQ(outcome.out,
            "Cannot access glyph filename my face.icon\n"
            "Convert to XBM with the commands:\n"
            "    icontopbm 'my face.icon' | pbmtoxbm > 'my face.xbm'\n"
            "    sed -e 's/noname/my face/' 'my face.xbm' > 'my face.xbm.tmp';"
            "mv 'my face.xbm.tmp' 'my face.xbm'\n\n");
}

TEST_F(Glyphs, GlyphOfTheIconFolderIsConvertedThere) {
  icon_dir_name = "icons/";
  dir_.Mkdir("icons");
  dir_.Write("icons/face.icon", "icon");
  std::string value;
  const Outcome outcome = Run([&] { value = ValueFor("face.icon"); });
  EXPECT_EQ(value, "xbitmapfile(\"icons/face.xbm\")");
  EXPECT_EQ(ReadWhole("icons/face.xbm"), "#define face_width 8\n");
  EXPECT_EQ(ReadWhole("log"), "icontopbm <icons/face.icon>\n");
  EXPECT_EQ(outcome.out, kConverting);
}

TEST_F(Glyphs, GlyphOutsideTheIconFolderIsConvertedHere) {
  icon_dir_name = "icons/";
  dir_.Write("face.icon", "icon");
  std::string value;
  Run([&] { value = ValueFor("face.icon"); });
  EXPECT_EQ(value, "xbitmapfile(\"face.xbm\")");
  EXPECT_TRUE(Exists("face.xbm"));
}

TEST_F(Glyphs, HostileNamesAreConvertedAsTheyStand) {
  for (const std::string name :
       {"my face", "a'b", "$HOME", "`date`", "a;b", "-n", "a&b", "a\\b", "*", "(x)", "a\tb"}) {
    std::filesystem::remove("log");
    dir_.Write(name, "icon");
    std::string value;
    Run([&] { value = ValueFor(name); });
    EXPECT_EQ(value, "xbitmapfile(\"" + name + ".xbm\")");
    EXPECT_EQ(ReadWhole(dir_.Path(name + ".xbm")), "#define " + name + "_width 8\n");
    const std::string operand = name[0] == '-' ? "./" + name : name;
    EXPECT_EQ(ReadWhole("log"), "icontopbm <" + operand + ">\n");
  }
}

TEST_F(Glyphs, LongNameIsConverted) {
  const std::string name(240, 'x');
  dir_.Write(name, "icon");
  Run([&] { EXPECT_EQ(ValueFor(name), "xbitmapfile(\"" + name + ".xbm\")"); });
  EXPECT_TRUE(Exists(name + ".xbm"));
}

TEST_F(Glyphs, QuotesOfTheCallersTextStay) {
  verbose = 0;
  char* glyph = Writable("\"face.icon\"");
  EXPECT_EQ(Taken(ProcessGlyphFilename(glyph)), "xbitmapfile(\"face.xbm\")");
  EXPECT_STREQ(glyph, "\"face.icon\"");
}

TEST_F(Glyphs, RealConvertersMakeABitmap) {
  if (std::system("command -v /usr/bin/icontopbm > /dev/null && "
                  "command -v /usr/bin/pbmtoxbm > /dev/null") != 0) {
    GTEST_SKIP() << "icontopbm or pbmtoxbm is not installed";
  }
  const ScopedEnv path("PATH", "/usr/bin:/bin");
  dir_.Write("face.icon",
             "/* Format_version=1, Width=16, Height=2, Depth=1, Valid_bits_per_item=16\n */\n"
             "\t0x8001,0xFFFF\n");
  std::string value;
  const Outcome outcome = Run([&] { value = ValueFor("face.icon"); });
  EXPECT_EQ(value, "xbitmapfile(\"face.xbm\")");
  const std::string bitmap = ReadWhole("face.xbm");
  EXPECT_EQ(bitmap.rfind("#define face_width 16\n", 0), 0u) << bitmap;
  EXPECT_TRUE(IsXbmFile("face.xbm"));
}

TEST_F(Glyphs, ExhaustedMemoryIsFatal) {
  ExpectError(RunOutOfMemory(0, [] { JustFilename("face"); }), "Out of memory in JustFilename");
  ExpectError(RunOutOfMemory(0, [] { PixmapConvert("face"); }), "Out of memory in PixmapConvert");
}

}  // namespace
