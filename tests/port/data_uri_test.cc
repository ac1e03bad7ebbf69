// SPDX-License-Identifier: MIT
#include "port/data_uri.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace port {

static std::string Write(const std::string& name, const std::string& bytes) {
  const std::string file = testing::TempDir() + name;
  std::ofstream(file, std::ios::binary) << bytes;
  return file;
}

TEST(Base64Test, PadsTheLastGroup) {
  // The examples of RFC 4648.
  EXPECT_EQ(Base64(""), "");
  EXPECT_EQ(Base64("f"), "Zg==");
  EXPECT_EQ(Base64("fo"), "Zm8=");
  EXPECT_EQ(Base64("foo"), "Zm9v");
  EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
  EXPECT_EQ(Base64("\xFB\xFF"), "+/8=");
}

TEST(PngDataUriTest, HoldsTheFile) {
  const std::string file = Write("picture.png", "\x89PNG\r\n");
  EXPECT_EQ(PngDataUri(file), "data:image/png;base64,iVBORw0K");
}

TEST(PngDataUriTest, IsEmptyForAnythingElse) {
  EXPECT_EQ(PngDataUri(Write("page.png", "<html>")), "");
  EXPECT_EQ(PngDataUri(testing::TempDir() + "no-such-file.png"), "");
}

}  // namespace port
