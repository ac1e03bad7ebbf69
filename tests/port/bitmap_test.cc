// SPDX-License-Identifier: MIT
#include "port/bitmap.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace port {

namespace fs = std::filesystem;

class BitmapTest : public testing::Test {
 protected:
  BitmapTest() : folder_(testing::TempDir() + "bitmap-test") {
    fs::remove_all(folder_);
    fs::create_directories(folder_ / "deep");
  }
  ~BitmapTest() override { fs::remove_all(folder_); }

  fs::path Write(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name) << text;
    return folder_ / name;
  }

  // The rows with "#" for dark bits.
  static std::string Rows(const std::optional<Bitmap>& bitmap) {
    if (!bitmap) return "none";
    std::string rows;
    for (std::size_t i = 0; i < bitmap->bits.size(); ++i) {
      rows += bitmap->bits[i] ? '#' : '.';
      if ((i + 1) % static_cast<std::size_t>(bitmap->width) == 0) rows += '\n';
    }
    return rows;
  }

  fs::path folder_;
};

static const char kIcon[] =
    "/* Format_version=1, Width=16, Height=2, Depth=1, Valid_bits_per_item=16\n */\n"
    "\t0x8001, 0x00F0\n";
static const char kIconRows[] = "#..............#\n........####....\n";

static const char kXBitmap[] =
    "#define a_width 10\n#define a_height 2\n"
    "static char a_bits[] = {\n 0x01, 0x02, 0xf0, 0x00};\n";
static const char kXBitmapRows[] = "#........#\n....####..\n";

TEST_F(BitmapTest, ReadsIconsHighestBitFirst) {
  EXPECT_EQ(Rows(ReadBitmap(Write("a.icon", kIcon))), kIconRows);
}

TEST_F(BitmapTest, ReadsXBitmapsLowestBitFirst) {
  EXPECT_EQ(Rows(ReadBitmap(Write("a.xbm", kXBitmap))), kXBitmapRows);
}

TEST_F(BitmapTest, RefusesWhatIsNoWholeIcon) {
  const std::string icon = kIcon;
  EXPECT_FALSE(ReadBitmap(Write("cut.icon", icon.substr(0, icon.find(", 0x00F0")))));
  EXPECT_FALSE(ReadBitmap(Write("text.icon", "hello")));
  EXPECT_FALSE(
      ReadBitmap(Write("huge.icon", "/* Width=1040, Height=1, Valid_bits_per_item=16 */ 0x0001")));
  EXPECT_FALSE(ReadBitmap(
      Write("odd.icon", "/* Width=20, Height=1, Valid_bits_per_item=16 */ 0x0001, 0x0001")));
  EXPECT_FALSE(ReadBitmap(folder_));
  EXPECT_FALSE(ReadBitmap("/dev/zero"));
  EXPECT_FALSE(ReadBitmap(folder_ / "no-such.icon"));
}

TEST_F(BitmapTest, FindsTheConvertedBitmapBeforeTheIcon) {
  Write("sun.icon", kIcon);
  EXPECT_EQ(Rows(FindBitmap("sun.icon", {folder_})), kIconRows);
  Write("sun.xbm", kXBitmap);
  EXPECT_EQ(Rows(FindBitmap("sun.icon", {folder_})), kXBitmapRows);
}

TEST_F(BitmapTest, LooksInTheFoldersInTheirOrder) {
  Write("sun.icon", kIcon);
  Write("deep/sun.icon", "/* Width=16, Height=1, Valid_bits_per_item=16 */ 0xFFFF");
  EXPECT_EQ(Rows(FindBitmap("sun.icon", {folder_ / "deep", folder_})), "################\n");
  EXPECT_EQ(Rows(FindBitmap("sun.icon", {folder_, folder_ / "deep"})), kIconRows);
  EXPECT_EQ(Rows(FindBitmap("deep/sun.icon", {folder_})), "################\n");
}

TEST_F(BitmapTest, TakesAbsoluteNames) {
  const fs::path file = Write("sun.icon", kIcon);
  EXPECT_EQ(Rows(FindBitmap(file.string(), {})), kIconRows);
  EXPECT_FALSE(FindBitmap("sun.icon", {}));
}

}  // namespace port
