// SPDX-License-Identifier: MIT
// The folder of a program: written as a whole or not at all, and never over what the user wrote.
#ifndef PANDREL_PORT_FOLDER_H
#define PANDREL_PORT_FOLDER_H

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace port {

// What a run knows of the one before, from the file kMarkFile in the folder.
struct Mark {
  bool found = false;
  std::map<std::string, std::string> hashes;  // of each file as it was written, by its path
  std::set<std::string> functions;            // that callbacks.c got
};

inline constexpr char kMarkFile[] = ".pandrel-port";

// Reads the mark of a folder; nothing found when there is none.
Mark ReadMark(const std::filesystem::path& folder);

// Why nothing may be written to the folder: it holds files and no mark. Empty when writing is
// allowed.
std::string WhyNotOurs(const std::filesystem::path& folder);

class Folder {
 public:
  // Begins a run that fills `target`. Gathers files in a new folder beside it, which the destructor
  // removes if Finish() was not called.
  explicit Folder(const std::filesystem::path& target);
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  // Why it cannot be done; empty if it can.
  const std::string& Error() const { return error_; }

  // An empty folder for the run's own files.
  std::filesystem::path Scratch() const { return beside_ / "scratch"; }

  const Mark& Former() const { return former_; }

  // The text of a file of the target as it is now; empty when there is none.
  std::string Existing(const std::string& path) const;

  // A file that each run makes again. If the user changed it, the new one goes beside it.
  void Add(const std::string& path, const std::string& bytes);

  // A file that belongs to the user and that the run has extended.
  void AddUsers(const std::string& path, const std::string& bytes);

  // Functions that callbacks.c has from now on.
  void SetFunctions(std::set<std::string> functions) { functions_ = std::move(functions); }

  // Moves all files to the target. Returns lines for the user: the files that were kept. On failure
  // Error() says why, and the target is as it was except for files moved already.
  std::vector<std::string> Finish();

 private:
  bool Write(const std::string& path, const std::string& bytes);
  void WriteMark();

  std::filesystem::path target_;
  std::filesystem::path beside_;
  std::string error_;
  Mark former_;
  std::map<std::string, std::string> hashes_;
  std::set<std::string> functions_;
  std::vector<std::string> files_;  // to be moved, in order
  std::vector<std::string> notes_;
};

}  // namespace port

#endif
