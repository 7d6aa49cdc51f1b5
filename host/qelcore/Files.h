#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace qelcore::filesupport {

/// How the text of a path is to be read.
enum class StorageType : std::uint32_t {
  kPlatformFile = 0,  ///< A file that is written through this object: "\" separates parts.
  kMediaAddress = 1,  ///< The address of media as a project names it; never opened through this.
};

/// A file by its path, in UTF-8.
///
/// A platform file is created and written whole: Create opens a temporary file beside the target, and
/// OPlatformByteStream::Close puts it in the target's place, so a failure leaves the old file as it
/// was. The old file's mode is kept, a symbolic link is followed, and a target that is no regular file
/// (a pipe, a device) is written directly. A file object that goes away before its stream was closed
/// removes the temporary file.
class HOST_API File {
 public:
  /// Touches no file system. "\" in a platform file's path separates parts, as "/" does, and runs of
  /// separators count as one. [any-thread]
  File(std::string_view path, StorageType storage);
  File(std::string_view path, std::uint32_t storage);
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File();

  /// The last part of the path. A media address splits at "/", and at "\" too when it begins with a
  /// drive letter or with "\\". [any-thread]
  UTF8String GetNameUTF8() const;

  /// The path as it was given. [any-thread]
  UTF8String GetPathUTF8() const;

  /// Makes the file for writing. `failIfExists` true: an existing target is an error. Throws:
  /// file_exception, with the target as it was. [any-thread], one at a time.
  void Create(bool failIfExists);

 private:
  friend class OPlatformByteStream;
  class State;
  std::shared_ptr<State> state;
};

/// Writes bytes to a file that was created. One thread at a time.
class HOST_API OPlatformByteStream {
 public:
  /// The flags value for writing from the start.
  static constexpr std::uint32_t kWrite = 2;

  /// Opens the stream on a created file. Throws: file_exception when it was not created.
  OPlatformByteStream(File& file, std::uint32_t flags);
  OPlatformByteStream(const OPlatformByteStream&) = delete;
  OPlatformByteStream& operator=(const OPlatformByteStream&) = delete;
  /// Without Close the target stays as it was. Throws: nothing.
  ~OPlatformByteStream();

  /// Writes all `size` bytes. Throws: file_exception, with what the platform says.
  void WriteBlock(const void* data, std::uint32_t size);

  /// Flushes, and puts the file in the target's place. Throws: file_exception, with the target as it
  /// was.
  void Close();

 private:
  std::shared_ptr<File::State> state;
};

}  // namespace qelcore::filesupport
