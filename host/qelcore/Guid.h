#pragma once

#include <array>
#include <compare>
#include <cstdint>

namespace qelcore::utility {

/// A sixteen-byte identifier, compared byte by byte as unsigned values in the order stored.
struct Guid {
  std::array<std::uint8_t, 16> bytes{};

  friend constexpr bool operator==(const Guid&, const Guid&) = default;
  friend constexpr std::strong_ordering operator<=>(const Guid&, const Guid&) = default;
};

/// The identifier whose two halves, each stored with its lowest byte first, are `low` (stored first)
/// and `high`.
constexpr Guid MakeGuid(std::uint64_t low, std::uint64_t high) noexcept {
  Guid guid;
  for (unsigned i = 0; i < 8; ++i) {
    guid.bytes[i] = static_cast<std::uint8_t>(low >> (8 * i));
    guid.bytes[8 + i] = static_cast<std::uint8_t>(high >> (8 * i));
  }
  return guid;
}

}  // namespace qelcore::utility
