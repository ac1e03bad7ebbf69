// SPDX-License-Identifier: MIT
// What a test changes of its surroundings and must put back: folders, variables, the locale.
#ifndef PANDREL_TESTS_UNIT_OSI_SURROUNDINGS_H
#define PANDREL_TESTS_UNIT_OSI_SURROUNDINGS_H

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

// An empty folder, removed with all it holds at the end.
class TempDir {
 public:
  TempDir() {
    std::string name = testing::TempDir() + "pandrel-osi-XXXXXX";
    if (!mkdtemp(name.data())) ADD_FAILURE() << "cannot make " << name;
    path_ = name;
  }
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  std::string Path(const std::string& name = "") const {
    return name.empty() ? path_ : path_ + "/" + name;
  }

  // Writes a file with exactly the permissions `mode`; returns its full name.
  std::string Write(const std::string& name, const std::string& text, mode_t mode = 0644) const {
    std::ofstream(Path(name), std::ios::binary) << text;
    EXPECT_EQ(chmod(Path(name).c_str(), mode), 0) << Path(name);
    return Path(name);
  }

  std::string Mkdir(const std::string& name) const {
    EXPECT_EQ(mkdir(Path(name).c_str(), 0755), 0) << Path(name);
    return Path(name);
  }

 private:
  std::string path_;
};

inline std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// Sets an environment variable (null: unsets it) until the end of the scope.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const char* value) : name_(name) {
    const char* former = getenv(name);
    was_set_ = former != nullptr;
    if (former) former_ = former;
    Set(value);
  }
  ~ScopedEnv() { Set(was_set_ ? former_.c_str() : nullptr); }
  ScopedEnv(const ScopedEnv&) = delete;
  ScopedEnv& operator=(const ScopedEnv&) = delete;

 private:
  void Set(const char* value) {
    if (value) {
      setenv(name_.c_str(), value, 1);
    } else {
      unsetenv(name_.c_str());
    }
  }

  std::string name_;
  std::string former_;
  bool was_set_;
};

// Goes to a folder until the end of the scope.
class ScopedCwd {
 public:
  explicit ScopedCwd(const std::string& path) : former_(std::filesystem::current_path()) {
    EXPECT_EQ(chdir(path.c_str()), 0) << path;
  }
  ~ScopedCwd() { std::filesystem::current_path(former_); }
  ScopedCwd(const ScopedCwd&) = delete;
  ScopedCwd& operator=(const ScopedCwd&) = delete;

 private:
  std::filesystem::path former_;
};

// Sets the locale of characters until the end of the scope.
class ScopedLocale {
 public:
  explicit ScopedLocale(const char* name) : former_(std::setlocale(LC_CTYPE, nullptr)) {
    EXPECT_NE(std::setlocale(LC_CTYPE, name), nullptr) << name;
  }
  ~ScopedLocale() { std::setlocale(LC_CTYPE, former_.c_str()); }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

 private:
  std::string former_;
};

#endif
