#include "standalone/media/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <new>

#include "standalone/media/LibAV.h"
#include "standalone/media/ReadFailure.h"

namespace standalone {
namespace {

[[noreturn]] void ThrowRefused(int error) {
  const bool isAbsent = error == ENOENT || error == ENOTDIR;
  throw ReadFailure{isAbsent ? MediaOutcome::kAbsent : MediaOutcome::kInaccessible,
                    std::strerror(error)};
}

void RequireFile(const struct stat& status) {
  if (S_ISDIR(status.st_mode)) throw ReadFailure{MediaOutcome::kInaccessible, "it is a folder"};
  if (!S_ISREG(status.st_mode)) throw ReadFailure{MediaOutcome::kInaccessible, "it is not a file"};
}

}  // namespace

InputFile::Descriptor::~Descriptor() {
  if (value >= 0) close(value);
}

InputFile::InputFile(const std::string& path, ReadLimit& limit) : limit(limit) {
  Open(path);
  RequireContent();
  AllocateIO();
}

InputFile::~InputFile() {
  // libav may have replaced the buffer.
  av_freep(&io->buffer);
  avio_context_free(&io);
}

void InputFile::Open(const std::string& path) {
  if (path.find('\0') != std::string::npos) ThrowRefused(ENOENT);
  struct stat status {};
  // Opening alone disturbs whoever writes to a pipe, and makes some devices act.
  if (stat(path.c_str(), &status) != 0) ThrowRefused(errno);
  RequireFile(status);
  // A pipe that was put in its place meanwhile does not block.
  descriptor.value = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (descriptor.value < 0) ThrowRefused(errno);
}

void InputFile::RequireContent() {
  struct stat status {};
  if (fstat(descriptor.value, &status) != 0) ThrowRefused(errno);
  RequireFile(status);
  size = status.st_size;
  end = size;
  if (size == 0) throw ReadFailure{MediaOutcome::kDamaged, "it is empty"};
}

void InputFile::AllocateIO() {
  constexpr int kBufferSize = 32 * 1024;
  auto* const buffer = static_cast<std::uint8_t*>(av_malloc(kBufferSize));
  if (buffer == nullptr) throw std::bad_alloc();
  io = avio_alloc_context(buffer, kBufferSize, 0, this, &InputFile::Read, nullptr, &InputFile::Seek);
  if (io != nullptr) return;
  av_free(buffer);
  throw std::bad_alloc();
}

void InputFile::CutOffAfter(std::int64_t length) {
  end = std::min(size, length);
}

int InputFile::Read(void* self, std::uint8_t* buffer, int size) {
  auto& file = *static_cast<InputFile*>(self);
  if (file.limit.IsReached()) return AVERROR_EXIT;
  const std::int64_t wanted = std::min<std::int64_t>(size, file.end - file.position);
  if (wanted <= 0) return AVERROR_EOF;
  for (;;) {
    const ssize_t count =
        pread(file.descriptor.value, buffer, static_cast<std::size_t>(wanted), file.position);
    if (count > 0) file.position += count;
    if (count > 0) return static_cast<int>(count);
    if (count == 0) return AVERROR_EOF;
    if (errno == EINTR) continue;
    file.error = errno;
    return AVERROR(errno);
  }
}

std::int64_t InputFile::Seek(void* self, std::int64_t offset, int whence) {
  auto& file = *static_cast<InputFile*>(self);
  if (file.limit.IsReached()) return AVERROR_EXIT;
  const int origin = whence & ~AVSEEK_FORCE;
  if (origin == AVSEEK_SIZE) return file.end;
  if (origin == SEEK_CUR) offset += file.position;
  if (origin == SEEK_END) offset += file.end;
  if (offset < 0) return AVERROR(EINVAL);
  file.position = offset;
  return offset;
}

}  // namespace standalone
