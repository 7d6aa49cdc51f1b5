#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vantrel {

/// A field as it is written, quotes included, of a few characters: a time, a rate, a track. It is
/// copied as a whole, whatever its length, which takes two steps and no decision.
struct ShortField {
  static constexpr std::size_t kRoom = 31;

  std::array<char, kRoom> bytes{};
  std::uint8_t size = 0;

  /// False for a text that is too long, and then nothing is changed.
  bool Set(std::string_view text) noexcept {
    if (text.size() > kRoom) return false;
    std::copy(text.begin(), text.end(), bytes.begin());
    size = static_cast<std::uint8_t>(text.size());
    return true;
  }
};

}  // namespace Vantrel
