#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "export/ShortField.h"
#include "host/qelui/Geometry.h"

namespace Vantrel {

/// Fields made from a number or a colour, each remembered until another one takes its place. Rows
/// repeat times, rates and colours, and finding a field is cheaper than making it again. One thread at
/// a time.
template <typename Key>
class RecentFields {
 public:
  /// Remembers up to 2 to the power of `bits` fields; `bits` is 1 to 16.
  explicit RecentFields(unsigned bits) : slots(std::size_t{1} << bits), shift(64 - bits) {}

  /// Begins to fetch what Find of that key reads, which may lie in two lines of the cache.
  void Fetch(const Key& key) const noexcept {
    const Slot& slot = slots[PlaceOf(key)];
    __builtin_prefetch(&slot);
    __builtin_prefetch(&slot.key);
  }

  /// The field of a key, or null. Valid until the next one is remembered.
  const ShortField* Find(const Key& key) const noexcept {
    const Slot& slot = slots[PlaceOf(key)];
    return slot.field.size != 0 && slot.key == key ? &slot.field : nullptr;
  }

  /// Fields that are empty or long are not remembered.
  void Remember(const Key& key, std::string_view field) noexcept {
    Slot& slot = slots[PlaceOf(key)];
    if (slot.field.Set(field)) slot.key = key;
  }

  void Forget() { slots.assign(slots.size(), Slot()); }

 private:
  struct Slot {
    ShortField field;
    Key key{};
  };

  static std::uint64_t Gather(std::uint64_t key) noexcept { return key; }
  static std::uint64_t Gather(const qelui::ColorRGBA& key) noexcept {
    const auto bits = [](float channel) {
      return std::uint64_t{std::bit_cast<std::uint32_t>(channel)};
    };
    return (bits(key.red) << 32U | bits(key.green)) + (bits(key.blue) << 16U);
  }

  /// The highest bits of the product depend on all bits of the key (Fibonacci hashing).
  std::size_t PlaceOf(const Key& key) const noexcept {
    return Gather(key) * 0x9E3779B97F4A7C15U >> shift;
  }

  std::vector<Slot> slots;
  unsigned shift;
};

}  // namespace Vantrel
