#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

#include "export/TextArena.h"
#include "host/BE/Model.h"

namespace Vantrel {

/// Fields of rows that are told by their media alone.
enum class MediaField : std::uint8_t { kFileName, kFilePath, kOfflineStatus, kUsageCount, kCount };

/// As they are written, quotes included. A field that was not made yet has no data.
using FieldsOfMedia = std::array<std::string_view, static_cast<std::size_t>(MediaField::kCount)>;

/// The fields of all media that were met, a media known by its address. A long timeline has thousands
/// of them, and they are looked for at every row. One thread at a time.
class KnownMediaFields {
 public:
  /// Begins to fetch what Get of that media reads first.
  void Fetch(const BE::IMedia& media) const noexcept;

  /// Those of a media, which stay where they are until all are forgotten.
  FieldsOfMedia& Get(const BE::IMedia& media);

  /// Keeps a field that was made.
  std::string_view Keep(std::string_view field) { return texts.Add(field); }

  void Forget() noexcept;

 private:
  /// Tells the media itself, so that its fields are touched only when they are read.
  struct Place {
    const BE::IMedia* media = nullptr;
    FieldsOfMedia* fields = nullptr;
  };

  static Place& FindPlace(std::vector<Place>& places, const BE::IMedia* media) noexcept;
  void Grow();

  std::deque<FieldsOfMedia> fields;
  /// A power of two of them, at most half of them used; those of one hash stand behind each other.
  std::vector<Place> places;
  TextArena texts;
};

}  // namespace Vantrel
