#pragma once

#include <cstdint>

namespace ZSL {

/// A colour with 8 bits a channel.
struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  std::uint8_t alpha = 255;

  friend constexpr bool operator==(const Color&, const Color&) noexcept = default;
};

}  // namespace ZSL
