#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Vantrel {

/// Whether a field is written between double quotes: when it has a comma, a double quote or a line
/// feed. [any-thread]
constexpr bool NeedsQuotes(std::string_view text) noexcept {
  return std::ranges::any_of(text,
                             [](char byte) { return byte == ',' || byte == '"' || byte == '\n'; });
}

/// Copies fields and looks at their bytes on the way. Asked of most fields, so it takes sixteen bytes
/// at a time: a vector of the compiler's, which every machine has or does without.
class PlainFieldCopy {
 public:
  static bool CopyUnlessSpecial(std::string_view text, char* to) noexcept {
    const char* const bytes = text.data();
    const std::size_t size = text.size();
    if (size < sizeof(Bytes)) return CopyShort(text, to);
    // The last bytes, then all before them; the two may overlap.
    const auto last = Load<Bytes>(bytes + size - sizeof(Bytes));
    Words found = FindSpecial(last);
    for (std::size_t i = 0; i + sizeof(Bytes) < size; i += sizeof(Bytes)) {
      const auto next = Load<Bytes>(bytes + i);
      found |= FindSpecial(next);
      Store(next, to + i);
    }
    Store(last, to + size - sizeof(Bytes));
    return !IsAny(found);
  }

 private:
  using Word = std::uint64_t;
  using Half = std::uint32_t;
  using Bytes [[gnu::vector_size(16)]] = unsigned char;
  using Words [[gnu::vector_size(16)]] = Word;

  static bool IsAny(Words found) noexcept { return (found[0] | found[1]) != 0; }

  static Words FindSpecial(Bytes bytes) noexcept {
    constexpr unsigned char kComma = ',';
    constexpr unsigned char kQuote = '"';
    constexpr unsigned char kLineFeed = '\n';
    return reinterpret_cast<Words>((bytes == kComma) | (bytes == kQuote) | (bytes == kLineFeed));
  }

  template <typename Number>
  static Number Load(const char* bytes) noexcept {
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
  }
  template <typename Number>
  static void Store(Number number, char* to) noexcept {
    std::memcpy(to, &number, sizeof number);
  }

  /// Up to fifteen bytes.
  static bool CopyShort(std::string_view text, char* to) noexcept {
    const std::size_t size = text.size();
    if (size >= sizeof(Word)) return CopyTwo<Word>(text, to);
    if (size >= sizeof(Half)) return CopyTwo<Half>(text, to);
    for (std::size_t i = 0; i < size; ++i) to[i] = text[i];
    return !NeedsQuotes(text);
  }

  /// The first bytes and the last ones, which may overlap; the rest of the vector is 0, which is not
  /// special.
  template <typename Number>
  static bool CopyTwo(std::string_view text, char* to) noexcept {
    const std::size_t lastBegin = text.size() - sizeof(Number);
    const auto first = Load<Number>(text.data());
    const auto last = Load<Number>(text.data() + lastBegin);
    Store(first, to);
    Store(last, to + lastBegin);
    return !IsAny(FindSpecial(reinterpret_cast<Bytes>(Words{first, last})));
  }
};

/// Copies a field that needs no quotes. False when it does, with some of its bytes copied. [any-thread]
inline bool CopyUnlessSpecial(std::string_view text, char* to) noexcept {
  return PlainFieldCopy::CopyUnlessSpecial(text, to);
}

}  // namespace Vantrel
