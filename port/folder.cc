// SPDX-License-Identifier: MIT
#include "port/folder.h"

#include <stdlib.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sstream>

#include "uilfix/module_files.h"

namespace port {
namespace {

namespace fs = std::filesystem;

constexpr char kHead[] = "pandrel-port 1";

// FNV-1a: enough to notice a change by the user, no protection against forgery.
std::string HashOf(const std::string& bytes) {
  uint64_t hash = 14695981039346656037U;
  for (char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  char text[20];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
  return text;
}

std::string ReadText(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return "";
  return uilfix::ReadFile(file.string()).value_or("");
}

}  // namespace

Mark ReadMark(const fs::path& folder) {
  Mark mark;
  std::istringstream text(ReadText(folder / kMarkFile));
  std::string line;
  if (!std::getline(text, line) || line != kHead) return mark;
  mark.found = true;
  while (std::getline(text, line)) {
    std::istringstream words(line);
    std::string kind;
    std::string first;
    words >> kind >> first;
    std::string rest;
    std::getline(words >> std::ws, rest);
    if (kind == "file") mark.hashes[rest] = first;
    if (kind == "function") mark.functions.insert(first);
  }
  return mark;
}

std::string WhyNotOurs(const fs::path& folder) {
  std::error_code error;
  if (!fs::exists(folder, error)) return "";
  if (!fs::is_directory(folder, error)) return folder.string() + " is not a folder";
  if (fs::is_empty(folder, error) || ReadMark(folder).found) return "";
  return folder.string() + " is not empty and was not made by pandrel-port";
}

Folder::Folder(const fs::path& target) {
  std::error_code error;
  target_ = fs::absolute(target).lexically_normal();
  if (!target_.has_filename()) target_ = target_.parent_path();
  error_ = WhyNotOurs(target_);
  if (!error_.empty()) return;
  former_ = ReadMark(target_);
  fs::create_directories(target_.parent_path(), error);
  std::string beside = (target_.parent_path() / ("." + target_.filename().string() + "-XXXXXX"));
  if (!mkdtemp(beside.data())) {
    error_ = beside + ": " + std::strerror(errno);
    return;
  }
  beside_ = beside;
  fs::create_directories(beside_ / "files", error);
  fs::create_directories(Scratch(), error);
}

Folder::~Folder() {
  std::error_code error;
  if (!beside_.empty()) fs::remove_all(beside_, error);
}

std::string Folder::Existing(const std::string& path) const { return ReadText(target_ / path); }

bool Folder::Write(const std::string& path, const std::string& bytes) {
  std::error_code error;
  const fs::path file = beside_ / "files" / path;
  fs::create_directories(file.parent_path(), error);
  if (!uilfix::WriteFile(file.string(), bytes)) {
    if (error_.empty()) error_ = file.string() + ": " + std::strerror(errno);
    return false;
  }
  files_.push_back(path);
  return true;
}

void Folder::Add(const std::string& path, const std::string& bytes) {
  hashes_[path] = HashOf(bytes);
  std::error_code error;
  const bool exists = fs::exists(fs::symlink_status(target_ / path, error));
  const std::string existing = Existing(path);
  if (exists && existing == bytes) return;
  const auto former = former_.hashes.find(path);
  const bool unchanged = former != former_.hashes.end() && former->second == HashOf(existing);
  if (!exists || unchanged) {
    Write(path, bytes);
    return;
  }
  // The next run compares with what was written last where the user's file stands, so the former
  // mark stays.
  if (former != former_.hashes.end()) {
    hashes_[path] = former->second;
  } else {
    hashes_.erase(path);
  }
  Write(path + ".new", bytes);
  notes_.push_back(path + " was changed and is kept; the new one is " + path + ".new");
}

void Folder::AddUsers(const std::string& path, const std::string& bytes) {
  if (Existing(path) != bytes) Write(path, bytes);
}

void Folder::WriteMark() {
  std::string text = std::string(kHead) + "\n";
  for (const auto& [path, hash] : hashes_) text += "file " + hash + " " + path + "\n";
  for (const std::string& function : functions_) text += "function " + function + "\n";
  Write(kMarkFile, text);
}

std::vector<std::string> Folder::Finish() {
  if (error_.empty()) WriteMark();
  if (!error_.empty()) return {};
  std::error_code error;
  if (!fs::exists(target_, error)) {
    // mkdtemp() makes folders that others cannot read; give this one the permissions of any new
    // folder.
    const mode_t mask = umask(0);
    umask(mask);
    chmod((beside_ / "files").c_str(), 0777 & ~mask);
    fs::rename(beside_ / "files", target_, error);
    if (error) error_ = target_.string() + ": " + error.message();
    return notes_;
  }
  for (const std::string& path : files_) {
    fs::create_directories((target_ / path).parent_path(), error);
    fs::rename(beside_ / "files" / path, target_ / path, error);
    if (!error) continue;
    error_ = (target_ / path).string() + ": " + error.message();
    break;
  }
  return notes_;
}

}  // namespace port
