#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "generator/MediaFile.h"
#include "generator/TimelineShape.h"

namespace generator {

enum class MediaUse : std::uint8_t { kCamera, kGraphics, kSounds, kMusic };

/// All files of a timeline. Each is used by about a dozen clips.
class MediaLibrary {
 public:
  MediaLibrary(const TimelineShape& shape, const TimeBase& pictures);

  /// Never empty.
  const std::vector<MediaFile>& Get(MediaUse use) const;

 private:
  std::vector<MediaFile> camera;
  std::vector<MediaFile> graphics;
  std::vector<MediaFile> sounds;
  std::vector<MediaFile> music;
};

}  // namespace generator
