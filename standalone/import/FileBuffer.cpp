#include "standalone/import/FileBuffer.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>

#include "standalone/import/TimelineReader.h"

namespace standalone {
namespace {

constexpr std::uintmax_t kLargestFile = std::numeric_limits<std::uint32_t>::max();

struct CloseFile {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, CloseFile>;

[[noreturn]] void ThrowUnreadable(int error) {
  throw ImportError(0, "The file can't be read: " + std::string(std::strerror(error)) + ".");
}

void RequireFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    throw ImportError(0, "There is no such file; check the path.");
  }
  if (status.type() != std::filesystem::file_type::directory) return;
  if (std::filesystem::exists(file / "content.otio", error)) {
    throw ImportError(0, "This is a folder; give the file content.otio inside it.");
  }
  throw ImportError(0, "This is a folder; give a timeline file.");
}

/// `expectedSize` only saves copies: a pipe has none, and a file may still grow.
std::string ReadToEnd(std::FILE* stream, std::size_t expectedSize) {
  constexpr std::size_t kBlock = std::size_t{1} << 16;
  std::string content;
  content.reserve(expectedSize + kBlock);
  for (;;) {
    const std::size_t length = content.size();
    content.resize(length + kBlock);
    const std::size_t read = std::fread(content.data() + length, 1, kBlock, stream);
    content.resize(length + read);
    if (content.size() > kLargestFile) {
      throw ImportError(0, "The file is larger than 4 GB; split the timeline.");
    }
    if (read == 0) break;
  }
  if (std::ferror(stream) != 0) ThrowUnreadable(errno);
  return content;
}

}  // namespace

std::string ReadWholeFile(const std::filesystem::path& file) {
  RequireFile(file);
  const Stream stream(std::fopen(file.c_str(), "rbe"));
  if (!stream) ThrowUnreadable(errno);
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  std::string content = ReadToEnd(stream.get(), error || size > kLargestFile ? 0 : size);
  if (content.empty()) throw ImportError(0, "The file is empty; export the timeline again.");
  return content;
}

std::string_view SkipByteOrderMark(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  return text;
}

}  // namespace standalone
