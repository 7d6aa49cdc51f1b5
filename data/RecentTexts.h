#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// Texts made from numbers, each remembered until another number takes its place. Rows repeat times,
/// rates and counts, and finding a text is cheaper than making it again. One thread at a time.
class RecentTexts {
 public:
  /// Remembers one text only, which takes no memory.
  RecentTexts() = default;
  /// Remembers up to 2 to the power of `bits` texts; `bits` is 1 to 16.
  explicit RecentTexts(unsigned bits) : slots(std::size_t{1} << bits), shift(64 - bits) {}

  /// The text of a number: that of `make()`, called now or earlier. Valid until the next call.
  template <typename Make>
  const qelcore::UTF8String& Get(std::uint64_t number, const Make& make) {
    Slot& slot = FindSlot(number);
    if (!slot.isFilled || slot.number != number) slot = {make(), number, true};
    return slot.text;
  }

  void Forget() {
    slots.assign(slots.size(), Slot());
    only = Slot();
  }

 private:
  struct Slot {
    qelcore::UTF8String text;
    std::uint64_t number = 0;
    bool isFilled = false;
  };

  /// The highest bits of the product depend on all bits of the number (Fibonacci hashing).
  Slot& FindSlot(std::uint64_t number) noexcept {
    return slots.empty() ? only : slots[number * 0x9E3779B97F4A7C15U >> shift];
  }

  Slot only;
  std::vector<Slot> slots;
  unsigned shift = 0;
};

}  // namespace Vantrel
