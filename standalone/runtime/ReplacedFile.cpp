#include "standalone/runtime/ReplacedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "host/qelcore/Exceptions.h"

namespace standalone {

namespace {

namespace fs = std::filesystem;

// As many links in a row as the kernel follows.
constexpr int kMostLinks = 40;
constexpr mode_t kPermissions = 07777;
constexpr mode_t kModeOfNewFiles = 0666;  // Less the user's mask.
constexpr mode_t kPrivate = 0600;
// What disks ask for at most. One that asks for more refuses, and the usual way is taken.
constexpr std::size_t kDiskBlock = 4096;
constexpr std::size_t kLongText = std::size_t{1} << 20U;

std::string DescribeError(int error) {
  return std::generic_category().message(error);
}

/// Where a chain of symbolic links ends, whether or not something is there. The part that names the
/// folder is left to the kernel. Throws: file_exception for a chain without end.
std::string FollowLinks(const std::string& path) {
  fs::path place = path;
  std::error_code error;
  for (int i = 0; fs::is_symlink(fs::symlink_status(place, error)); ++i) {
    if (i == kMostLinks) throw qelcore::config::file_exception(path, DescribeError(ELOOP));
    const fs::path next = fs::read_symlink(place, error);
    if (error) throw qelcore::config::file_exception(path, DescribeError(error.value()));
    place = place.parent_path() / next;
  }
  return place.native();
}

/// The name is short and its own, so that it fits wherever the target's name does.
std::string MakeTemporaryName(const std::string& target) {
  static std::atomic<unsigned> count = 0;
  const std::string name =
      ".sequence-index-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".tmp";
  return (fs::path(target).parent_path() / name).native();
}

/// Makes the folder's new entry permanent. Some file systems have no such operation, and the file
/// itself is complete, so a failure is none.
void SyncFolder(const std::string& target) {
  const fs::path folder = fs::path(target).parent_path();
  const int descriptor =
      open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

ReplacedFile::ReplacedFile(std::string path) : path(std::move(path)) {}

ReplacedFile::ReplacedFile(std::string path, bool failIfExists) : ReplacedFile(std::move(path)) {
  Open(failIfExists);
}

ReplacedFile::~ReplacedFile() {
  if (descriptor >= 0) close(descriptor);
  if (!temporary.empty()) unlink(temporary.c_str());
}

void ReplacedFile::Write(const void* data, std::size_t size) {
  std::string_view left(static_cast<const char*>(data), size);
  left.remove_prefix(WritePastCache(left));
  while (!left.empty()) {
    const ssize_t written = write(descriptor, left.data(), left.size());
    if (written < 0 && errno != EINTR) Fail(errno);
    if (written > 0) left.remove_prefix(static_cast<std::size_t>(written));
  }
}

void ReplacedFile::Commit() {
  if (temporary.empty()) return CloseDescriptor();
  Sync();
  CloseDescriptor();
  if (std::rename(temporary.c_str(), target.c_str()) != 0) Fail(errno);
  temporary.clear();
  SyncFolder(target);
}

void ReplacedFile::Open(bool failIfExists) {
  if (path.empty()) Fail(ENOENT);
  // The system would take what stands before a zero byte for the whole path.
  if (path.find('\0') != std::string::npos) Fail(EINVAL);
  struct stat old {};
  const bool exists = stat(path.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) Fail(errno);
  if (exists && failIfExists) Fail(EEXIST);
  if (exists && S_ISDIR(old.st_mode)) Fail(EISDIR);
  if (exists && !S_ISREG(old.st_mode)) return OpenDirectly();
  target = FollowLinks(path);
  // Replacing needs no right to write the old file; whoever protected it meant it.
  if (exists && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) Fail(errno);
  OpenTemporary(exists ? &old : nullptr);
}

void ReplacedFile::OpenDirectly() {
  // By the path itself: where the link of an open descriptor ("/dev/fd/63") leads has no name.
  descriptor = open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) Fail(errno);
}

void ReplacedFile::OpenTemporary(const struct stat* old) {
  do {
    const std::string name = MakeTemporaryName(target);
    // The old file may be private: its successor is so from its first moment.
    descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                      old == nullptr ? kModeOfNewFiles : kPrivate);
    if (descriptor >= 0) temporary = name;
  } while (descriptor < 0 && errno == EEXIST);
  if (descriptor < 0) Fail(errno);
  if (old != nullptr) InheritFrom(*old);
}

void ReplacedFile::InheritFrom(const struct stat& old) {
  // Only an administrator may give files away; for others the file becomes their own. The mode comes
  // last, as a change of owner clears parts of it.
  const bool isTaken = fchown(descriptor, old.st_uid, old.st_gid) == 0;
  const mode_t mode = old.st_mode & (isTaken ? kPermissions : kPermissions & ~(S_ISUID | S_ISGID));
  if (fchmod(descriptor, mode) != 0) Fail(errno);
}

// A long text goes to the disk from where it stands: to be copied into the system's cache first would
// take a third of the time of writing. Only whole blocks go that way, and not on every file system. A
// wish, therefore: how much of it came true is told, and what is left is written as usual, which tells
// what is wrong, too.
std::size_t ReplacedFile::WritePastCache(std::string_view bytes) {
  const std::string_view blocks = bytes.substr(0, bytes.size() / kDiskBlock * kDiskBlock);
  if (temporary.empty() || blocks.size() < kLongText) return 0;
  const bool isAligned = reinterpret_cast<std::uintptr_t>(bytes.data()) % kDiskBlock == 0 &&
                         lseek(descriptor, 0, SEEK_CUR) % kDiskBlock == 0;
  const int flags = fcntl(descriptor, F_GETFL);
  if (!isAligned || flags < 0) return 0;
  if (fcntl(descriptor, F_SETFL, flags | O_DIRECT) != 0) return 0;
  const ssize_t written = write(descriptor, blocks.data(), blocks.size());
  fcntl(descriptor, F_SETFL, flags);
  return written < 0 ? 0 : static_cast<std::size_t>(written);
}

void ReplacedFile::Sync() {
  // Some file systems have nothing to sync and say so.
  if (fsync(descriptor) != 0 && errno != EINVAL && errno != ENOTSUP) Fail(errno);
}

void ReplacedFile::CloseDescriptor() {
  const int closed = std::exchange(descriptor, -1);
  // After EINTR the descriptor is closed too.
  if (close(closed) != 0 && errno != EINTR) Fail(errno);
}

void ReplacedFile::Fail(int error) const {
  throw qelcore::config::file_exception(path, DescribeError(error));
}

}  // namespace standalone
