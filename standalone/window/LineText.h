#pragma once

#include <QFontMetricsF>
#include <QString>
#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Puts a text in UTF-8 into `line`, whose room is used again, as one line: control characters and line
/// breaks become spaces. Bytes that are no UTF-8 become U+FFFD.
STANDALONE_API void DecodeLine(std::string_view utf8, QString& line);

/// Cuts `line` at its end so that it takes at most `width` pixels, `ellipsis` included (empty: "…").
/// A width that has no room for the ellipsis leaves nothing.
STANDALONE_API void CutLine(QString& line, const QFontMetricsF& metrics, qreal width,
                            std::u16string_view ellipsis);

}  // namespace standalone
