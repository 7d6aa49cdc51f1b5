#pragma once

#include <QGlyphRun>
#include <QList>
#include <QRectF>
#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

struct TextFont;

/// A line of text as glyphs at their places, cut to its room: all that is left to do is to draw them.
/// Places are in pixels from where the line begins on its baseline.
struct ShapedLine {
  /// None when there is nothing to see.
  QList<QGlyphRun> runs;
  /// Holds every pixel that drawing touches.
  QRectF ink;
};

/// Shapes a text in UTF-8 as DecodeLine and CutLine make a line of it. [main-thread]
STANDALONE_API ShapedLine ShapeLine(std::string_view utf8, const TextFont& font, qreal width,
                                    std::u16string_view ellipsis);

}  // namespace standalone
