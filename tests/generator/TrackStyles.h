#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "generator/MediaLibrary.h"
#include "standalone/model/SequenceDraft.h"

namespace generator {

/// How the clips of a kind of track follow each other, in frames.
struct ShotStyle {
  MediaUse media = MediaUse::kCamera;
  /// Most clips last from `shortest` to `shortest + spread`; one in `longOneIn` lasts up to `longest`.
  std::size_t shortest = 1;
  std::size_t spread = 1;
  std::size_t longOneIn = 1;
  std::size_t longest = 1;
  /// One clip in so many has a gap of up to `widestGap` before it.
  std::size_t gapOneIn = 1;
  std::size_t widestGap = 1;
  /// One picture in so many has no sound to it.
  std::size_t silentOneIn = 1;
};

struct TrackStyle {
  std::string_view name;
  standalone::TrackKind kind = standalone::TrackKind::kVideo;
  ShotStyle shots;
  /// A sound track whose clips belong to those of the picture track in the same place.
  bool isLinked = false;
  bool isDisabled = false;
  bool isMuted = false;
  bool isLocked = false;
};

inline constexpr ShotStyle kEditShots{MediaUse::kCamera, 12, 60, 25, 300, 24, 60, 24};
inline constexpr ShotStyle kBRollShots{MediaUse::kCamera, 16, 40, 40, 200, 4, 80, 3};
inline constexpr ShotStyle kTitleShots{MediaUse::kGraphics, 10, 60, 100, 6000, 2, 60, 1000};
inline constexpr ShotStyle kAlternateShots{MediaUse::kCamera, 10, 60, 40, 200, 5, 80, 1000};
inline constexpr ShotStyle kSoundShots{MediaUse::kSounds, 2, 50, 50, 400, 3, 40, 1000};
inline constexpr ShotStyle kMusicShots{MediaUse::kMusic, 1000, 3000, 6, 8000, 3, 1000, 1000};

/// The tracks of a kind from the lowest; further ones begin again with the first.
inline constexpr std::array<TrackStyle, 4> kPictureStyles{{
    {"Edit", standalone::TrackKind::kVideo, kEditShots},
    {"B-roll", standalone::TrackKind::kVideo, kBRollShots},
    {"Titles and graphics", standalone::TrackKind::kVideo, kTitleShots},
    {"Alternates", standalone::TrackKind::kVideo, kAlternateShots, false, true, false, true},
}};
inline constexpr std::array<TrackStyle, 4> kSoundStyles{{
    {"Dialogue", standalone::TrackKind::kAudio, kEditShots, true},
    {"Atmosphere", standalone::TrackKind::kAudio, kBRollShots, true, false, true},
    {"Effects", standalone::TrackKind::kAudio, kSoundShots},
    {"Music", standalone::TrackKind::kAudio, kMusicShots},
}};

/// Frames from the start of a clip to the start of the next on average, in sixteenths.
constexpr std::uint64_t GetStride(const TrackStyle& style) {
  const ShotStyle& shots = style.shots;
  std::uint64_t stride = 16 * shots.shortest + 8 * shots.spread;
  stride += 8 * shots.longest / shots.longOneIn + 8 * shots.widestGap / shots.gapOneIn;
  if (!style.isLinked) return stride;
  // The sound track goes on for longer until it has its clips.
  return stride * shots.silentOneIn / (shots.silentOneIn - 1);
}

}  // namespace generator
