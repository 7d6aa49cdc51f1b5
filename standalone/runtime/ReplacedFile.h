#pragma once

#include <cstddef>
#include <string>
#include <string_view>

struct stat;

namespace standalone {

/// A file that is written whole: into a temporary file beside the target, which takes the target's
/// place at the end and is removed otherwise. It has the old file's owner and mode, or those of any new
/// file. A symbolic link stays and what it points to is replaced. What is no regular file (a pipe, a
/// device) is written directly. One thread at a time.
class ReplacedFile {
 public:
  /// Opens it for the target at `path`. Throws: file_exception when it can't be written, or exists
  /// although it must not.
  ReplacedFile(std::string path, bool failIfExists);
  /// Gives up what was written, unless it was committed.
  ~ReplacedFile();
  ReplacedFile(const ReplacedFile&) = delete;
  ReplacedFile& operator=(const ReplacedFile&) = delete;

  const std::string& GetPath() const noexcept { return path; }

  /// Throws: file_exception unless all bytes were taken.
  void Write(const void* data, std::size_t size);

  /// Puts the file in the target's place, once it is safe on its disk. Throws: file_exception, with the
  /// target as it was.
  void Commit();

 private:
  /// Nothing is open yet. The public constructor delegates to it, so that the destructor cleans up when
  /// opening fails half-way.
  explicit ReplacedFile(std::string path);

  void Open(bool failIfExists);
  void OpenDirectly();
  /// `old` is the target that is replaced, or null.
  void OpenTemporary(const struct stat* old);
  void InheritFrom(const struct stat& old);
  std::size_t WritePastCache(std::string_view bytes);
  void Sync();
  void CloseDescriptor();
  [[noreturn]] void Fail(int error) const;

  const std::string path;  ///< As given, for failures.
  std::string target;      ///< Where links lead; empty: the path is written directly.
  std::string temporary;   ///< Empty: the target is written directly, or the temporary file is gone.
  int descriptor = -1;
};

}  // namespace standalone
