#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace standalone {

/// A path in a new folder that only this user may enter; both go with this object.
class PrivateFile {
 public:
  /// Throws: CommandError when no folder can be made.
  explicit PrivateFile(std::string_view name);
  ~PrivateFile();
  PrivateFile(const PrivateFile&) = delete;
  PrivateFile& operator=(const PrivateFile&) = delete;

  const std::filesystem::path& GetPath() const noexcept { return path; }

 private:
  std::filesystem::path path;
};

/// Copies the bytes of a file to standard output. Throws: CommandError when they can't all be read or
/// written.
void CopyToStandardOutput(std::ifstream& file);

/// Writes words to standard output. Throws: CommandError when they can't all be written.
void WriteToStandardOutput(std::string_view text);

/// Gathers small pieces for standard output and writes them in large ones.
class OutputBuffer {
 public:
  OutputBuffer() { text.reserve(kSize); }
  /// Both throw: as WriteToStandardOutput. What was added last is written by Flush only.
  void Add(std::string_view piece);
  void Flush();

 private:
  static constexpr std::size_t kSize = 65536;
  std::string text;
};

}  // namespace standalone
