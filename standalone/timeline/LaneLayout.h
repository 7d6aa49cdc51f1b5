#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/timeline/TimelineContent.h"

namespace standalone {

/// Where the tracks of a timeline stand below each other, in whole pixels: video tracks, a divide,
/// audio tracks. A value.
class STANDALONE_API LaneLayout {
 public:
  static constexpr int kVideoHeight = 44;
  static constexpr int kAudioHeight = 34;
  /// Between video and audio, if there are both.
  static constexpr int kDivide = 7;

  LaneLayout() = default;
  explicit LaneLayout(const std::vector<TimelineLane>& lanes);

  std::size_t Count() const noexcept { return tops.size(); }
  int GetTop(std::size_t lane) const { return tops[lane]; }
  int GetHeight(std::size_t lane) const { return heights[lane]; }
  int GetHeight() const noexcept { return height; }
  /// The lane at a height, or none.
  std::optional<std::size_t> FindLaneAt(int y) const;

 private:
  std::vector<int> tops;
  std::vector<int> heights;
  int height = 0;
};

}  // namespace standalone
