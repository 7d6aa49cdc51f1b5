#pragma once

#include <cstddef>
#include <cstdint>

#include "generator/Chance.h"
#include "generator/MediaLibrary.h"
#include "generator/TrackStyles.h"
#include "generator/Words.h"

namespace generator {

/// What a picture and the sound to it have in common.
struct Shot {
  std::uint64_t number = 0;
  std::int64_t gapBefore = 0;
  std::int64_t length = 0;
  const MediaFile* media = nullptr;
  std::int64_t offset = 0;
  bool isSilent = false;
  bool isRetimed = false;
};

/// An endless series of shots: the same one again for the sound as for the picture.
class ShotStream {
 public:
  /// `shotCount` is how many are needed, `longest` bounds their length.
  ShotStream(const ShotStyle& style, const MediaLibrary& library, Chance chance, std::size_t shotCount,
             std::int64_t longest);

  Shot Next();

 private:
  const MediaFile& PickMedia();
  std::int64_t PickLength();
  std::int64_t PickGap();

  const ShotStyle& style;
  const std::vector<MediaFile>& files;
  Chance chance;
  const std::size_t shotCount;
  const std::int64_t longest;
  std::uint64_t count = 0;
};

}  // namespace generator
