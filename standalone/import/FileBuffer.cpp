#include "standalone/import/FileBuffer.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include "standalone/import/TimelineReader.h"
#include "standalone/runtime/LargePages.h"

namespace standalone {
namespace {

struct CloseFile {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, CloseFile>;

Stream Open(const std::filesystem::path& file) {
  return Stream(std::fopen(file.c_str(), "rbe"));
}

void RequireFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    throw ImportError(0, "There is no such file; check the path.");
  }
}

}  // namespace

std::string ReadToEnd(std::size_t expectedSize, std::string_view subject,
                      const std::function<std::size_t(char* place, std::size_t room)>& readBlock) {
  constexpr std::size_t kBlock = std::size_t{1} << 16;
  std::string content;
  content.reserve(expectedSize + kBlock);
  PreferLargePages(content.data(), content.capacity());
  for (;;) {
    const std::size_t length = content.size();
    content.resize(length + kBlock);
    const std::size_t read = readBlock(content.data() + length, kBlock);
    content.resize(length + read);
    if (content.size() > kLargestText) ThrowTooLarge(subject);
    if (read == 0) return content;
  }
}

std::string ReadAnyFile(const std::filesystem::path& file, std::string_view subject) {
  RequireFile(file);
  const Stream stream = Open(file);
  if (!stream) ThrowUnreadable(subject, errno);
  std::error_code error;
  // A pipe has no size, and a file may still grow.
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  std::string content = ReadToEnd(
      error || size > kLargestText ? 0 : size, subject,
      [&](char* place, std::size_t room) { return std::fread(place, 1, room, stream.get()); });
  if (std::ferror(stream.get()) != 0) ThrowUnreadable(subject, errno);
  return content;
}

std::string ReadWholeFile(const std::filesystem::path& file, std::string_view subject) {
  std::string content = ReadAnyFile(file, subject);
  if (content.empty()) ThrowEmpty(subject);
  return content;
}

void ThrowUnreadable(std::string_view subject, int error) {
  throw ImportError(0, std::string(subject) + " can't be read: " + std::strerror(error) + ".");
}

void ThrowTooLarge(std::string_view subject) {
  throw ImportError(0, std::string(subject) + " is larger than 4 GB; split the timeline.");
}

void ThrowEmpty(std::string_view subject) {
  throw ImportError(0, std::string(subject) + " is empty; export the timeline again.");
}

std::string ReadBeginning(const std::filesystem::path& file, std::size_t length) {
  std::string beginning(length, '\0');
  const Stream stream = Open(file);
  beginning.resize(stream ? std::fread(beginning.data(), 1, length, stream.get()) : 0);
  return beginning;
}

std::string_view SkipByteOrderMark(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  return text;
}

}  // namespace standalone
