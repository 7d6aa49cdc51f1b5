#include "standalone/app/StandardOutput.h"

#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "standalone/app/CommandError.h"

namespace standalone {

PrivateFile::PrivateFile(std::string_view name) {
  std::error_code failure;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(failure);
  if (failure) throw CommandError("There is no temporary folder: " + failure.message());
  std::string pattern = (folder / "sequence-index-XXXXXX").native();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw CommandError(pattern, 0, "No temporary folder can be made: " + std::string(strerror(errno)));
  }
  path = std::filesystem::path(pattern) / name;
}

PrivateFile::~PrivateFile() {
  std::error_code ignored;
  std::filesystem::remove_all(path.parent_path(), ignored);
}

void WriteToStandardOutput(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(STDOUT_FILENO, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) throw CommandError("standard output", 0, strerror(errno));
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

void CopyToStandardOutput(std::ifstream& file) {
  std::array<char, 65536> block;
  while (file) {
    file.read(block.data(), block.size());
    WriteToStandardOutput({block.data(), static_cast<std::size_t>(file.gcount())});
  }
  if (file.bad() || !file.eof()) throw CommandError("The temporary file can't be read back.");
}

void OutputBuffer::Add(std::string_view piece) {
  if (text.size() + piece.size() > kSize) Flush();
  text.append(piece);
}

void OutputBuffer::Flush() {
  WriteToStandardOutput(text);
  text.clear();
}

}  // namespace standalone
