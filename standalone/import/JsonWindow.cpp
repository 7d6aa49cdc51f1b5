#include "standalone/import/JsonWindow.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>

namespace standalone {
namespace {

/// A quarter of a megabyte: a few system calls for each, and room for it in the cache.
constexpr std::size_t kBlockSize = std::size_t{1} << 18;

/// "\uXXXX"
constexpr std::size_t kEscapeLength = 6;

/// The code of such an escape, where one begins.
std::optional<unsigned> ReadEscape(std::string_view text) {
  if (text.size() < kEscapeLength || !text.starts_with("\\u")) return std::nullopt;
  unsigned code = 0;
  const char* last = text.data() + kEscapeLength;
  const auto [end, error] = std::from_chars(text.data() + 2, last, code, 16);
  if (error != std::errc{} || end != last) return std::nullopt;
  return code;
}

bool IsFirstHalf(std::optional<unsigned> code) {
  return code && *code >= 0xD800 && *code < 0xDC00;
}

bool IsSecondHalf(std::optional<unsigned> code) {
  return code && *code >= 0xDC00 && *code < 0xE000;
}

}  // namespace

JsonWindow::JsonWindow(TextSource& source, JsonRepairs& repairs)
    : source(source),
      repairs(repairs),
      blockSize(std::min(kBlockSize, source.GetLength() + 1)),
      capacity(source.GetLength() + 2 * blockSize),
      buffer(std::make_unique_for_overwrite<char[]>(capacity + kPadding)),
      end(buffer.get()),
      checked(end) {
  Extend(end, 1);
}

const char* JsonWindow::GetMark() const {
  if (isAtEnd) return buffer.get() + capacity + kPadding;
  return end - std::min<std::ptrdiff_t>(kLookAhead, end - buffer.get());
}

void JsonWindow::Extend(const char* at, std::uint32_t line) {
  const auto used = static_cast<std::size_t>(end - buffer.get());
  const std::size_t count = source.Read(end, std::min(blockSize, capacity - used));
  end += count;
  isAtEnd = count == 0;
  std::memset(end, 0, kPadding);
  ReplaceLoneSurrogates(at, line);
}

void JsonWindow::Slide(const char* at, std::uint32_t line) {
  const std::string_view rest = GetRest(at);
  const std::ptrdiff_t distance = at - buffer.get();
  std::memmove(buffer.get(), rest.data(), rest.size());
  base += static_cast<std::size_t>(distance);
  end -= distance;
  checked -= distance;
  Extend(buffer.get(), line);
}

/// Exporters write halves of surrogate pairs for file names that are no UTF-8, or cut a pair in two. A
/// half alone is no character: U+FFFD takes its place.
void JsonWindow::ReplaceLoneSurrogates(const char* at, std::uint32_t line) {
  // A pair may go on in the next block.
  constexpr std::size_t kPairLength = 2 * kEscapeLength;
  for (;;) {
    const std::string_view unchecked = GetRest(checked);
    const std::size_t found = std::min(unchecked.find('\\'), unchecked.size());
    checked += found;
    const std::string_view rest = unchecked.substr(found);
    if (rest.empty() || (rest.size() < kPairLength && !isAtEnd)) return;
    const auto code = ReadEscape(rest);
    if (!code) {
      checked += std::min<std::size_t>(2, rest.size());
    } else if (IsFirstHalf(code) && IsSecondHalf(ReadEscape(rest.substr(kEscapeLength)))) {
      checked += kPairLength;
    } else {
      if (IsFirstHalf(code) || IsSecondHalf(code)) {
        std::memcpy(checked, "\\ufffd", kEscapeLength);
        if (repairs.brokenCharacters++ == 0) {
          repairs.brokenCharacterLine =
              line + static_cast<std::size_t>(std::count(at, static_cast<const char*>(checked), '\n'));
        }
      }
      checked += kEscapeLength;
    }
  }
}

}  // namespace standalone
