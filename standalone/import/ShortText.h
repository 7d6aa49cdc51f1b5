#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace standalone {

/// Compares names, schemas and rates: a file has some dozen of them for each clip, all short, and a
/// call of memcmp would take longer than the few words that it compares. [any-thread]
class ShortText {
 public:
  static bool IsSame(std::string_view left, std::string_view right) {
    const std::size_t size = left.size();
    if (size != right.size()) return false;
    if (size >= 8) return HaveSameWords<std::uint64_t>(left.data(), right.data(), size);
    if (size >= 4) return HaveSameWords<std::uint32_t>(left.data(), right.data(), size);
    return size == 0 || HaveSameWords<std::uint8_t>(left.data(), right.data(), size);
  }

 private:
  template <typename Word>
  static Word ReadWord(const char* bytes) {
    Word word = 0;
    std::memcpy(&word, bytes, sizeof(Word));
    return word;
  }

  /// Of texts of one size, not smaller than a word. The last words may overlap.
  template <typename Word>
  static bool HaveSameWords(const char* left, const char* right, std::size_t size) {
    const std::size_t last = size - sizeof(Word);
    for (std::size_t i = 0; i < last; i += sizeof(Word)) {
      if (ReadWord<Word>(left + i) != ReadWord<Word>(right + i)) return false;
    }
    return ReadWord<Word>(left + last) == ReadWord<Word>(right + last);
  }
};

}  // namespace standalone
