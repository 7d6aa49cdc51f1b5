#include "standalone/toolkit/RowSelection.h"

#include <algorithm>
#include <bit>

namespace standalone {

namespace {

constexpr std::uint64_t kAllBits = ~std::uint64_t{0};

}  // namespace

bool RowSelection::Contains(std::size_t position) const noexcept {
  const std::size_t word = position / kWordBits;
  return word < bits.size() && (bits[word] & MakeBit(position)) != 0;
}

std::vector<std::size_t> RowSelection::GetPositions() const {
  std::vector<std::size_t> positions;
  positions.reserve(count);
  ForEach([&](std::size_t position) { positions.push_back(position); });
  return positions;
}

bool RowSelection::Add(std::size_t position) {
  return AddRange(position, position + 1);
}

bool RowSelection::Remove(std::size_t position) {
  if (!Contains(position)) return false;
  bits[position / kWordBits] &= ~MakeBit(position);
  --count;
  while (!bits.empty() && bits.back() == 0) bits.pop_back();
  return true;
}

bool RowSelection::AddRange(std::size_t first, std::size_t end) {
  if (first >= end) return false;
  const std::size_t firstWord = first / kWordBits;
  const std::size_t lastWord = (end - 1) / kWordBits;
  if (lastWord >= bits.size()) bits.resize(lastWord + 1);
  const std::size_t before = count;
  for (std::size_t word = firstWord; word <= lastWord; ++word) {
    std::uint64_t added = kAllBits;
    if (word == firstWord) added &= kAllBits << (first % kWordBits);
    if (word == lastWord) added &= kAllBits >> (kWordBits - 1 - (end - 1) % kWordBits);
    count += static_cast<std::size_t>(std::popcount(added & ~bits[word]));
    bits[word] |= added;
  }
  return count != before;
}

bool RowSelection::Clear() noexcept {
  const bool wasSelected = count != 0;
  bits.clear();
  count = 0;
  return wasSelected;
}

bool operator==(const RowSelection& left, const RowSelection& right) {
  // Words without a bit are never kept at the end, so equal sets have equal words.
  return left.bits == right.bits;
}

}  // namespace standalone
