#include "standalone/import/TextSource.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "standalone/import/FileBuffer.h"

namespace standalone {

TextSource::~TextSource() = default;

std::size_t TextInMemory::Read(char* place, std::size_t room) {
  const std::size_t count = text.copy(place, room, position);
  position += count;
  return count;
}

TextInFile::TextInFile(const std::filesystem::path& file, std::string_view subject)
    : subject(subject), stream(std::fopen(file.c_str(), "rbe")) {
  if (!stream) ThrowUnreadable(subject, errno);
  std::error_code error;
  length = std::filesystem::file_size(file, error);
  if (error) ThrowUnreadable(subject, error.value());
  if (length > kLargestText) ThrowTooLarge(subject);
}

std::size_t TextInFile::Read(char* place, std::size_t room) {
  const std::size_t count = std::fread(place, 1, room, stream.get());
  if (std::ferror(stream.get()) != 0) ThrowUnreadable(subject, errno);
  readLength += count;
  if (readLength > kLargestText) ThrowTooLarge(subject);
  return count;
}

}  // namespace standalone
