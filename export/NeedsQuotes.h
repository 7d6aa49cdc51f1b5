#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace Vantrel {

/// Asked of every field, so it looks at sixteen bytes at a time: a vector of the compiler's, which
/// every machine has or does without.
class QuoteTest {
 public:
  static bool NeedsQuotes(std::string_view text) noexcept {
    const char* const bytes = text.data();
    if (text.size() < sizeof(Bytes)) return IsAny(FindSpecial(LoadShort(text)));
    // The last bytes, then all before them; the two may overlap.
    Words found = FindSpecial(Load<Bytes>(bytes + text.size() - sizeof(Bytes)));
    for (std::size_t i = 0; i + sizeof(Bytes) < text.size(); i += sizeof(Bytes)) {
      found |= FindSpecial(Load<Bytes>(bytes + i));
    }
    return IsAny(found);
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

  /// Up to fifteen bytes, some of them twice; the rest is 0, which is not special.
  static Bytes LoadShort(std::string_view text) noexcept {
    const char* const bytes = text.data();
    const std::size_t size = text.size();
    Words words{};
    if (size >= sizeof(Word)) {
      words = Words{Load<Word>(bytes), Load<Word>(bytes + size - sizeof(Word))};
    } else if (size >= sizeof(Half)) {
      words[0] = Word{Load<Half>(bytes)} << 32U | Load<Half>(bytes + size - sizeof(Half));
    } else if (size > 0) {
      const auto at = [bytes](std::size_t i) { return Word{static_cast<unsigned char>(bytes[i])}; };
      words[0] = at(0) << 16U | at(size / 2) << 8U | at(size - 1);
    }
    return reinterpret_cast<Bytes>(words);
  }
};

/// Whether a field is written between double quotes: when it has a comma, a double quote or a line
/// feed. [any-thread]
inline bool NeedsQuotes(std::string_view text) noexcept {
  return QuoteTest::NeedsQuotes(text);
}

}  // namespace Vantrel
