#pragma once

#include <rapidjson/reader.h>

#include <bit>
#include <cstddef>
#include <cstdint>

#include "standalone/import/JsonWindow.h"

namespace standalone {

/// The parser's view of a text: decodes strings in place and counts lines on the way. A line break
/// inside a string is escaped, so every real one passes here before its bytes can be overwritten.
///
/// A pretty-printed timeline is mostly indentation and plain names: these are passed eight bytes at a
/// time, indentation sixteen.
struct JsonStream {
  using Ch = char;

  explicit JsonStream(JsonWindow& window)
      : source(window.GetBegin()), target(source), mark(window.GetMark()), window(&window) {}

  char Peek() const { return *source; }
  char Take() {
    if (source >= mark) ReadOn();
    if (*source == '\n') ++line;
    return *source++;
  }
  std::size_t Tell() const { return window->Locate(source); }
  void Put(char c) { *target++ = c; }
  void Flush() {}
  char* PutBegin() { return target = source; }
  std::size_t PutEnd(const char* begin) const { return static_cast<std::size_t>(target - begin); }

  void SkipBlanks();
  /// Takes and puts the characters up to the next one that ends a string, begins an escape, may not
  /// stand in a string, or is no ASCII.
  void CopyPlainText();

  char* source;
  char* target;
  const char* mark;
  JsonWindow* window;
  std::uint32_t line = 1;

 private:
  static constexpr std::uint64_t kEachByte = 0x0101010101010101;
  static constexpr std::uint64_t kHighBits = kEachByte << 7U;

  void ReadOn() {
    window->Extend(source, line);
    mark = window->GetMark();
  }
  /// Eight bytes from there on, the first one lowest; compilers make it one instruction.
  static std::uint64_t ReadEight(const char* place);
  void SkipSpaces();
  /// How many of eight bytes stand below the lowest one that differs from 0.
  static std::size_t CountZeros(std::uint64_t bytes) {
    return static_cast<std::size_t>(std::countr_zero(bytes)) / 8;
  }
  void CopyBytes(std::size_t count);
};

/// The parser's UTF-8. Plain characters need no look at each.
struct JsonEncoding : rapidjson::UTF8<> {
  using rapidjson::UTF8<>::Validate;
  static bool Validate(JsonStream& input, JsonStream& output) {
    if (static_cast<unsigned char>(input.Peek()) >= 0x80) {
      return rapidjson::UTF8<>::Validate(input, output);
    }
    // Strings are decoded in place: both are the same stream.
    input.CopyPlainText();
    return true;
  }
};

inline std::uint64_t JsonStream::ReadEight(const char* place) {
  std::uint64_t bytes = 0;
  for (unsigned i = 0; i < 8; ++i) {
    bytes |= std::uint64_t{static_cast<unsigned char>(place[i])} << 8U * i;
  }
  return bytes;
}

/// Sixteen at a time: a pretty-printed timeline is indented by some dozens.
inline void JsonStream::SkipSpaces() {
  while (source < mark) {
    static_assert(JsonWindow::kPadding >= 16);
    const std::uint64_t first = ReadEight(source) ^ kEachByte * ' ';
    const std::uint64_t second = ReadEight(source + 8) ^ kEachByte * ' ';
    if (first != 0) {
      source += CountZeros(first);
      return;
    }
    source += 8 + CountZeros(second);
    if (second != 0) return;
  }
}

inline void JsonStream::SkipBlanks() {
  for (;;) {
    if (source >= mark) {
      // Between two tokens: nothing points to what was parsed.
      window->Slide(source, line);
      source = window->GetBegin();
      mark = window->GetMark();
    }
    if (*source == '\n') {
      ++line;
      ++source;
    } else if (*source == ' ') {
      // One alone, as behind a colon.
      if (static_cast<unsigned char>(source[1]) > ' ') {
        ++source;
        return;
      }
      SkipSpaces();
    } else if (*source == '\r' || *source == '\t') {
      ++source;
    } else {
      return;
    }
  }
}

inline void JsonStream::CopyPlainText() {
  // Marks the lowest byte that is zero in its highest bit; what it marks above that one may be wrong.
  const auto markZero = [](std::uint64_t bytes) { return (bytes - kEachByte) & ~bytes; };
  std::size_t count = 0;
  do {
    if (source >= mark) ReadOn();
    const std::uint64_t bytes = ReadEight(source);
    const std::uint64_t isControl = (bytes - kEachByte * 0x20) & ~bytes;
    const std::uint64_t isQuote = markZero(bytes ^ kEachByte * '"');
    const std::uint64_t isEscape = markZero(bytes ^ kEachByte * '\\');
    count = CountZeros((bytes | isControl | isQuote | isEscape) & kHighBits);
    CopyBytes(count);
  } while (count == 8);
}

inline void JsonStream::CopyBytes(std::size_t count) {
  // Until the first escape of a string its text stands where it has to.
  if (target != source) {
    for (std::size_t i = 0; i < count; ++i) target[i] = source[i];
  }
  source += count;
  target += count;
}

}  // namespace standalone

namespace rapidjson {

/// The parser works on a copy of the stream and writes it back: it finds the beginning of a number's
/// digits by the original, and the compiler keeps the copy in registers.
template <>
struct StreamTraits<standalone::JsonStream> {
  enum { copyOptimization = 1 };
};

template <>
inline void SkipWhitespace(standalone::JsonStream& stream) {
  stream.SkipBlanks();
}

}  // namespace rapidjson
