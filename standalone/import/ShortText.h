#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace standalone {

template <typename Word>
Word ReadWord(const char* bytes) {
  Word word = 0;
  std::memcpy(&word, bytes, sizeof(Word));
  return word;
}

/// Compares texts of one size, not smaller than a word, word by word; the last ones may overlap.
template <typename Word>
bool HaveSameWords(const char* left, const char* right, std::size_t size) {
  const std::size_t last = size - sizeof(Word);
  for (std::size_t i = 0; i < last; i += sizeof(Word)) {
    if (ReadWord<Word>(left + i) != ReadWord<Word>(right + i)) return false;
  }
  return ReadWord<Word>(left + last) == ReadWord<Word>(right + last);
}

/// A file has some dozen names and schemas for each clip, all of them short: a call of memcmp would
/// take longer than the few words that it compares.
inline bool IsSameShortText(std::string_view left, std::string_view right) {
  const std::size_t size = left.size();
  if (size != right.size()) return false;
  if (size >= 8) return HaveSameWords<std::uint64_t>(left.data(), right.data(), size);
  if (size >= 4) return HaveSameWords<std::uint32_t>(left.data(), right.data(), size);
  return size == 0 || HaveSameWords<std::uint8_t>(left.data(), right.data(), size);
}

}  // namespace standalone
