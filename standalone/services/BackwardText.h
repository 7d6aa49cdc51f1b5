#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace standalone {

/// A short text of numbers, written from its end to its beginning without an allocation.
class BackwardText {
 public:
  void Put(char character) { characters[--begin] = character; }

  /// With zeros in front of the number up to `leastDigits`.
  void PutNumber(std::uint64_t number, unsigned leastDigits) {
    // Most numbers of times: two digits, whose places are known.
    if (leastDigits == 2 && number < 100) return PutTwoDigits(static_cast<unsigned>(number));
    for (unsigned digits = 0; digits < leastDigits || number != 0; ++digits) {
      Put(static_cast<char>('0' + number % 10));
      number /= 10;
    }
  }

  /// Valid as long as this object, until the next character is put.
  std::string_view View() const {
    return std::string_view(characters.data(), characters.size()).substr(begin);
  }

 private:
  void PutTwoDigits(unsigned number) {
    begin -= 2;
    characters[begin] = static_cast<char>('0' + number / 10);
    characters[begin + 1] = static_cast<char>('0' + number % 10);
  }

  // The longest text is a time: a sign, three separators, and at most twenty digits each for hours and
  // frames.
  std::array<char, 64> characters;
  std::size_t begin = characters.size();
};

}  // namespace standalone
