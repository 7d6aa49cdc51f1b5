#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A timeline's text, given piece by piece from its beginning to its end, once.
class STANDALONE_API TextSource {
 public:
  TextSource() = default;
  virtual ~TextSource();
  TextSource(const TextSource&) = delete;
  TextSource& operator=(const TextSource&) = delete;

  /// How long the text was when it was opened.
  virtual std::size_t GetLength() const = 0;
  /// Writes what comes next to a place with room for so many bytes and returns how many; 0: the text
  /// ends. Throws ImportError.
  virtual std::size_t Read(char* place, std::size_t room) = 0;
};

class STANDALONE_API TextInMemory final : public TextSource {
 public:
  explicit TextInMemory(std::string text) : text(std::move(text)) {}
  std::size_t GetLength() const override { return text.size(); }
  std::size_t Read(char* place, std::size_t room) override;

 private:
  std::string text;
  std::size_t position = 0;
};

/// A regular file. It is read, not mapped, because a mapped file that shrinks would end the program.
class TextInFile final : public TextSource {
 public:
  /// Throws ImportError when the file can't be opened or is larger than 4 GB; `subject` is what the
  /// sentence calls the file.
  explicit TextInFile(const std::filesystem::path& file, std::string_view subject = "The file");
  std::size_t GetLength() const override { return length; }
  std::size_t Read(char* place, std::size_t room) override;

 private:
  struct CloseFile {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
  };

  std::string subject;
  std::unique_ptr<std::FILE, CloseFile> stream;
  std::size_t length = 0;
  std::size_t readLength = 0;
};

}  // namespace standalone
