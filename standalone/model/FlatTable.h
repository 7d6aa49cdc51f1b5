#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "host/qelcore/RecyclingAllocator.h"

namespace standalone {

/// A hash table in one piece of memory. The tables of a long timeline fit in no cache: each step from a
/// bucket to a node and on to the next would wait for the memory. Values are hashed and compared by
/// whoever has them, and never removed. One thread at a time.
template <typename Value>
class FlatTable {
 public:
  /// The value added with that hash for which `isSame` holds, or null. Valid until the next one is
  /// added.
  template <typename IsSame>
  Value* Find(std::uint64_t hash, const IsSame& isSame) {
    if (slots.empty()) return nullptr;
    hash |= kUsed;
    for (std::size_t at = hash & Mask(); slots[at].hash != 0; at = (at + 1) & Mask()) {
      if (slots[at].hash == hash && isSame(slots[at].value)) return &slots[at].value;
    }
    return nullptr;
  }

  void Add(std::uint64_t hash, Value value) {
    if (2 * (count + 1) > slots.size()) Grow();
    Put(Slot{hash | kUsed, std::move(value)});
    ++count;
  }

 private:
  /// In the hash of each value, so that 0 stands for none.
  static constexpr std::uint64_t kUsed = std::uint64_t{1} << 63U;
  struct Slot {
    std::uint64_t hash = 0;
    Value value{};
  };
  using Slots = std::vector<Slot, qelcore::memory::RecyclingAllocator<Slot>>;

  std::size_t Mask() const { return slots.size() - 1; }
  void Put(Slot slot) {
    std::size_t at = slot.hash & Mask();
    while (slots[at].hash != 0) at = (at + 1) & Mask();
    slots[at] = std::move(slot);
  }
  void Grow() {
    constexpr std::size_t kFewest = 16;
    Slots grown(slots.empty() ? kFewest : 2 * slots.size());
    std::swap(slots, grown);
    for (Slot& slot : grown) {
      if (slot.hash != 0) Put(std::move(slot));
    }
  }

  /// A power of two of them, at most half of them used; those of one hash stand behind each other.
  Slots slots;
  std::size_t count = 0;
};

}  // namespace standalone
