// SPDX-License-Identifier: MIT
#include "osi/files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "osi/files_testing.h"
#include "osi/memory.h"
#include "osi/strings.h"

static bool Stat(const char* path, struct stat* status) {
  return stat(OsiOrEmpty(path), status) == 0;
}

bool OsiFileExists(const char* path) {
  struct stat status;
  return Stat(path, &status);
}

bool OsiDirExists(const char* path) { return OsiFileExists(path); }

namespace {

constexpr int kMaxGroups = 16;

struct User {
  bool is_known = false;
  uid_t uid = 0;
  int group_count = 0;
  gid_t groups[kMaxGroups] = {};
};

User user;

// Reads the user and the groups; only the current group when there are more than kMaxGroups, since
// the system then gives no list.
void ReadUser() {
  user.uid = getuid();
  user.group_count = getgroups(kMaxGroups, user.groups);
  if (user.group_count < 0) {
    user.groups[0] = getgid();
    user.group_count = 1;
  }
  user.is_known = true;
}

bool IsInGroup(gid_t gid) {
  for (int i = 0; i < user.group_count; ++i) {
    if (user.groups[i] == gid) return true;
  }
  return false;
}

}  // namespace

bool OsiFileAccess(const char* path, int mode) {
  struct stat status;
  if (!Stat(path, &status)) return false;
  if (!user.is_known) ReadUser();
  mode_t read_bit = S_IROTH;
  mode_t write_bit = S_IWOTH;
  if (status.st_uid == user.uid) {
    read_bit = S_IRUSR;
    write_bit = S_IWUSR;
  } else if (IsInGroup(status.st_gid)) {
    read_bit = S_IRGRP;
    write_bit = S_IWGRP;
  }
  bool is_readable = (status.st_mode & read_bit) != 0;
  bool is_writable = (status.st_mode & write_bit) != 0;
  switch (mode) {
    case kOsiReadable:
      return is_readable;
    case kOsiWritable:
      return is_writable;
    case kOsiReadOnly:
      return is_readable && !is_writable;
    default:
      return false;
  }
}

void OsiFileAccessForgetUser() { user = User(); }

bool OsiFileIsNewer(const char* a, const char* b) {
  struct stat a_status;
  struct stat b_status;
  if (!b || !*b || !Stat(a, &a_status)) return false;
  if (!Stat(b, &b_status)) return true;
  const timespec& a_time = a_status.st_mtim;
  const timespec& b_time = b_status.st_mtim;
  if (a_time.tv_sec != b_time.tv_sec) return a_time.tv_sec > b_time.tv_sec;
  return a_time.tv_nsec > b_time.tv_nsec;
}

bool OsiFileCopy(FILE* to, FILE* from) {
  if (!to || !from) return false;
  char chunk[4096];
  for (;;) {
    std::size_t length = std::fread(chunk, 1, sizeof chunk, from);
    if (length == 0) return std::ferror(from) == 0;
    if (std::fwrite(chunk, 1, length, to) != length) return false;
  }
}

int OsiFileDelete(const char* path) { return path ? unlink(path) : -1; }

const char* OsiDirCreate(const char* path, mode_t mode) {
  if (!path) return nullptr;
  return mkdir(path, mode) == 0 || errno == EEXIST ? path : nullptr;
}

char* OsiTmpNam() {
  // Not tmpnam, since the linker warns about it.
  constexpr std::size_t kBlockSize = 25;
  auto* name = static_cast<char*>(OsiZalloc(kBlockSize));
  do {
    std::snprintf(name, kBlockSize, P_tmpdir "/file%08x", arc4random());
  } while (OsiFileExists(name));
  return name;
}

FILE* OsiTmpFile() { return std::tmpfile(); }
