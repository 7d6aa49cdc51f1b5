#pragma once

#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Geometry.h"

namespace qelui {

/// A line of text to draw. What it refers to is lent for the call that draws: a table draws thousands
/// of cells at once, and none of them needs a share of its text.
struct TextLine {
  const qelcore::UTF8String& text;
  /// The line begins at the left edge and is cut, with `ellipsis` behind what is left, where it would
  /// pass the right one. The height plays no part.
  Rect room{};
  /// The line is centred on this height, in pixels.
  float centre = 0;
  ColorRGBA color{};
  const qelcore::UTF8String& fontName;
  /// UTF-16; empty: the toolkit's own ("…").
  std::u16string_view ellipsis{};
};

/// What a view draws with: a surface, and the operations on it. Made by the host and lent for the call
/// that draws; coordinates are pixels of the view. All operations are [main-thread].
class HOST_API Drawbot {
 public:
  virtual ~Drawbot();
  Drawbot(const Drawbot&) = delete;
  Drawbot& operator=(const Drawbot&) = delete;

  /// Fills all of `area`, without border.
  virtual void FillRect(const Rect& area, const ColorRGBA& color) = 0;
  /// Draws a line along the inside of the edges of `area`.
  /// @param lineWidth pixels
  virtual void StrokeRect(const Rect& area, const ColorRGBA& color, float lineWidth) = 0;
  virtual void DrawTextLine(const TextLine& line) = 0;

 protected:
  Drawbot();
};

/// Outlines a rectangle: a line along the inside of its edges, `lineWidth` pixels wide. [main-thread]
HOST_API void StrokeRect(Drawbot& drawbot, const Rect& area, const ColorRGBA& color, float lineWidth);

}  // namespace qelui
