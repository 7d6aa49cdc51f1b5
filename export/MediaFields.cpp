#include "export/MediaFields.h"

#include <algorithm>

namespace Vantrel {
namespace {

constexpr std::size_t kFewestPlaces = 64;

/// The upper half of the product depends on all bits of the address (Fibonacci hashing).
std::size_t Hash(const BE::IMedia* media) noexcept {
  return reinterpret_cast<std::uintptr_t>(media) * 0x9E3779B97F4A7C15U >> 32U;
}

}  // namespace

void KnownMediaFields::Fetch(const BE::IMedia& media) const noexcept {
  if (!places.empty()) __builtin_prefetch(&places[Hash(&media) & (places.size() - 1)]);
}

FieldsOfMedia& KnownMediaFields::Get(const BE::IMedia& media) {
  if (2 * (entries.size() + 1) > places.size()) Grow();
  Entry*& place = places[FindPlace(&media)];
  if (place == nullptr) place = &entries.emplace_back(Entry{&media, {}});
  return place->fields;
}

void KnownMediaFields::Forget() noexcept {
  std::ranges::fill(places, nullptr);
  entries.clear();
  texts.Forget();
}

std::size_t KnownMediaFields::FindPlace(const BE::IMedia* media) const noexcept {
  const std::size_t mask = places.size() - 1;
  std::size_t at = Hash(media) & mask;
  while (places[at] != nullptr && places[at]->media != media) at = (at + 1) & mask;
  return at;
}

void KnownMediaFields::Grow() {
  places.assign(std::max(kFewestPlaces, 2 * places.size()), nullptr);
  for (Entry& entry : entries) places[FindPlace(entry.media)] = &entry;
}

}  // namespace Vantrel
