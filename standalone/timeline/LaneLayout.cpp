#include "standalone/timeline/LaneLayout.h"

#include <algorithm>

namespace standalone {

LaneLayout::LaneLayout(const std::vector<TimelineLane>& lanes) {
  for (std::size_t i = 0; i < lanes.size(); ++i) {
    if (i > 0 && lanes[i - 1].isVideo && !lanes[i].isVideo) height += kDivide;
    tops.push_back(height);
    heights.push_back(lanes[i].isVideo ? kVideoHeight : kAudioHeight);
    height += heights.back();
  }
}

std::optional<std::size_t> LaneLayout::FindLaneAt(int y) const {
  const auto below = std::upper_bound(tops.begin(), tops.end(), y);
  if (below == tops.begin()) return std::nullopt;
  const auto lane = static_cast<std::size_t>(below - tops.begin()) - 1;
  if (y >= tops[lane] + heights[lane]) return std::nullopt;
  return lane;
}

}  // namespace standalone
