#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "standalone/media/ReadLimit.h"

struct AVIOContext;

namespace standalone {

/// A regular file open for reading, as libav wants its input. libav gets the bytes of this one file and
/// never a path, so nothing that a file names is ever opened. Each access checks the limit.
class InputFile {
 public:
  /// Throws: ReadFailure when there is no such file, it can't be opened, is no regular file or is
  /// empty.
  InputFile(const std::string& path, ReadLimit& limit);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  /// From now on the file seems to end after that many bytes, if it is longer.
  void CutOffAfter(std::int64_t length);
  bool IsCutOff() const noexcept { return end < size; }

  AVIOContext* GetIO() const noexcept { return io; }
  /// What the platform said when bytes could not be read; 0: all went well.
  int GetError() const noexcept { return error; }

 private:
  void Open(const std::string& path);
  void RequireContent();
  void AllocateIO();

  static int Read(void* self, std::uint8_t* buffer, int size);
  static std::int64_t Seek(void* self, std::int64_t offset, int whence);

  class Descriptor {
   public:
    Descriptor() = default;
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int value = -1;
  };

  ReadLimit& limit;
  Descriptor descriptor;
  std::int64_t size = 0;
  /// Where the file seems to end.
  std::int64_t end = 0;
  std::int64_t position = 0;
  AVIOContext* io = nullptr;
  int error = 0;
};

}  // namespace standalone
