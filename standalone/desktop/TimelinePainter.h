#pragma once

#include <QPainter>
#include <QRect>

#include "standalone/timeline/LaneLayout.h"
#include "standalone/timeline/TimeScale.h"
#include "standalone/timeline/TimelineContent.h"
#include "standalone/timeline/TimelineSelection.h"

namespace standalone {

/// What a timeline view draws, and where: the ruler above, the tracks' names at the left, the items
/// between. All measures in pixels.
struct TimelinePicture {
  static constexpr int kRulerHeight = 28;
  static constexpr int kNamesWidth = 120;

  const TimelineContent& content;
  const LaneLayout& lanes;
  const TimeScale& scale;
  const TimelineSelection& selection;
  qelmediatypes::TickTime position;
  /// Pixels of the lanes that lie above the view.
  int scrolledDown = 0;
  QSize size;

  QRect GetRulerArea() const {
    return {kNamesWidth, 0, std::max(size.width() - kNamesWidth, 0), kRulerHeight};
  }
  QRect GetBodyArea() const {
    return {kNamesWidth, kRulerHeight, GetRulerArea().width(),
            std::max(size.height() - kRulerHeight, 0)};
  }
};

/// Draws a timeline in the colours of the theme. What is drawn follows the pixels of the view, not the
/// items of the sequence: items that share a pixel are drawn once.
void PaintTimeline(QPainter& painter, const TimelinePicture& picture);

}  // namespace standalone
