#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "standalone/import/JsonTree.h"
#include "standalone/import/TextSource.h"

namespace standalone {

/// The part of a text that is being parsed, so short that it stays in the processor's cache: what was
/// parsed makes room for what follows.
class JsonWindow {
 public:
  /// So many bytes behind the mark are in the window, unless the text ends there; whoever takes bytes
  /// looks at the mark before each sixteen.
  static constexpr std::ptrdiff_t kLookAhead = 64;
  /// So many zero bytes follow the text's end.
  static constexpr std::size_t kPadding = 16;

  JsonWindow(TextSource& source, JsonRepairs& repairs);

  char* GetBegin() const { return buffer.get(); }
  /// Where more has to be read before the parser goes on; beyond any place once all was read.
  const char* GetMark() const;
  /// Reads on; nothing moves, so that a text that the parser is in stays whole. The parser has come to
  /// `at`, in that line.
  void Extend(const char* at, std::uint32_t line);
  /// Reads on, and what begins at `at` moves to the window's begin.
  void Slide(const char* at, std::uint32_t line);
  /// What is left of the window.
  std::string_view GetRest(const char* at) const { return {at, static_cast<std::size_t>(end - at)}; }
  bool IsAtEnd() const { return isAtEnd; }
  std::size_t GetLengthSoFar() const { return Locate(end); }
  /// The place of a byte of the window in the text.
  std::size_t Locate(const char* at) const {
    return base + static_cast<std::size_t>(at - buffer.get());
  }

 private:
  void ReplaceLoneSurrogates(const char* at, std::uint32_t line);

  TextSource& source;
  JsonRepairs& repairs;
  std::size_t blockSize;
  /// Room for the whole text, in case that it is a single string; what is not used takes no memory.
  std::size_t capacity;
  std::unique_ptr<char[]> buffer;
  char* end;
  /// Up to here escapes have been looked at.
  char* checked;
  /// How much of the text lies in front of the window.
  std::size_t base = 0;
  bool isAtEnd = false;
};

}  // namespace standalone
