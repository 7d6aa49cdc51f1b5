#include "export/MediaFields.h"

#include <algorithm>
#include <utility>

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
  if (2 * (fields.size() + 1) > places.size()) Grow();
  Place& place = FindPlace(places, &media);
  if (place.media == nullptr) place = {&media, &fields.emplace_back()};
  return *place.fields;
}

void KnownMediaFields::Forget() noexcept {
  std::ranges::fill(places, Place());
  fields.clear();
  texts.Forget();
}

KnownMediaFields::Place& KnownMediaFields::FindPlace(std::vector<Place>& places,
                                                     const BE::IMedia* media) noexcept {
  const std::size_t mask = places.size() - 1;
  std::size_t at = Hash(media) & mask;
  while (places[at].media != nullptr && places[at].media != media) at = (at + 1) & mask;
  return places[at];
}

void KnownMediaFields::Grow() {
  std::vector<Place> grown(std::max(kFewestPlaces, 2 * places.size()));
  for (const Place& place : places) {
    if (place.media != nullptr) FindPlace(grown, place.media) = place;
  }
  places = std::move(grown);
}

}  // namespace Vantrel
