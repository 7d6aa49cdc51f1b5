#pragma once

#include "host/qelmediatypes/TickTime.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Which stretch of a sequence a timeline view shows, and how wide: maps times to pixels and back. The
/// stretch begins anywhere from 0; the scale stays between a picture frame of 64 pixels and 100 hours
/// across the view. A value.
class STANDALONE_API TimeScale {
 public:
  using TickTime = qelmediatypes::TickTime;

  /// The view's width in pixels; at least 1.
  void SetWidth(double pixels) noexcept;
  double GetWidth() const noexcept { return width; }
  /// What limits how far one can zoom in; an unknown or empty duration counts as a 24th of a second.
  void SetFrameDuration(TickTime frameDuration) noexcept;

  TickTime GetStart() const noexcept { return start; }
  /// The time at the view's right edge.
  TickTime GetEnd() const noexcept { return ToTime(width); }
  double GetTicksPerPixel() const noexcept { return ticksPerPixel; }

  /// Pixels from the view's left edge; negative for times before it.
  double ToX(TickTime time) const noexcept;
  TickTime ToTime(double x) const noexcept;

  void ScrollTo(TickTime newStart) noexcept;
  /// Shows `factor` times as much (below 1: zooms in); the time at `x` stays where it is.
  void ZoomBy(double factor, double x) noexcept;
  /// Shows all times from 0 to `end`, with a little room behind.
  void Fit(TickTime end) noexcept;
  /// Scrolls only if `time` is not in view: then it stands a tenth of the width from the edge that it
  /// lies behind.
  void Reveal(TickTime time) noexcept;

 private:
  void SetTicksPerPixel(double wanted) noexcept;

  TickTime start;
  TickTime frameDuration{TickTime::kTicksPerSecond / 24};
  double ticksPerPixel = TickTime::kTicksPerSecond / 10.0;
  double width = 1;
};

}  // namespace standalone
