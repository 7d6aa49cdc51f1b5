#include "standalone/runtime/ReplacedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
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
  constexpr std::size_t kStep = std::size_t{4} << 20U;
  TakeRoom(size);
  std::string_view left(static_cast<const char*>(data), size);
  while (!left.empty()) {
    const ssize_t written = write(descriptor, left.data(), std::min(left.size(), kStep));
    if (written < 0 && errno != EINTR) Fail(errno);
    if (written > 0) left.remove_prefix(static_cast<std::size_t>(written));
    if (written > 0 && !left.empty()) BeginSync();
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

// A disk that knows the size beforehand takes a long text in one piece, and faster. This is a wish:
// what it does not fulfil is told by writing.
void ReplacedFile::TakeRoom(std::size_t size) {
  constexpr std::size_t kLongText = std::size_t{1} << 20U;
  if (temporary.empty() || size < kLongText) return;
  fallocate(descriptor, 0, lseek(descriptor, 0, SEEK_CUR), static_cast<off_t>(size));
}

// The disk begins with what is written while the rest still is. A wish, too.
void ReplacedFile::BeginSync() {
  if (!temporary.empty()) sync_file_range(descriptor, 0, 0, SYNC_FILE_RANGE_WRITE);
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
