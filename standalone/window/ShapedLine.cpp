#include "standalone/window/ShapedLine.h"

#include <QTextLayout>
#include <QTextOption>
#include <algorithm>

#include "standalone/window/LineText.h"
#include "standalone/window/TextFonts.h"

namespace standalone {

namespace {

/// Pixels by which the glyphs of a font may pass their own measures: rounding, and smooth edges.
constexpr qreal kInkMargin = 1;

/// The places of a layout's glyphs are from the top of a line of that ascent, and what it calls their
/// bounds is the line's: without them, they are the glyphs' own.
QGlyphRun MoveToBaseline(QGlyphRun run, qreal ascent) {
  auto places = run.positions();
  for (QPointF& place : places) place.ry() -= ascent;
  run.setPositions(places);
  run.setBoundingRect({});
  return run;
}

QTextLine LayOut(QTextLayout& layout, const QString& text, const QFont& font) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setTextDirection(Qt::LayoutDirectionAuto);
  layout.setTextOption(option);
  layout.setText(text);
  layout.setFont(font);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  return line;
}

/// Most lines do, and need not be measured. A line does not count the spaces at its end.
bool FitsSurely(const QTextLine& line, const QString& text, qreal width) {
  return line.isValid() && !text.endsWith(QChar::Space) && line.horizontalAdvance() <= width - 1;
}

ShapedLine TakeGlyphs(const QTextLine& line) {
  ShapedLine shaped;
  for (const QGlyphRun& run : line.glyphRuns()) {
    shaped.runs.append(MoveToBaseline(run, line.y() + line.ascent()));
    shaped.ink |= shaped.runs.back().boundingRect();
  }
  shaped.ink.adjust(-kInkMargin, -kInkMargin, kInkMargin, kInkMargin);
  return shaped;
}

}  // namespace

ShapedLine ShapeLine(std::string_view utf8, const TextFont& font, qreal width,
                     std::u16string_view ellipsis) {
  QString text;
  DecodeLine(utf8, text);
  QTextLayout layout;
  QTextLine line = LayOut(layout, text, font.font);
  if (!FitsSurely(line, text, width)) {
    CutLine(text, font.metrics, width, ellipsis);
    if (text != layout.text()) line = LayOut(layout, text, font.font);
  }
  return line.isValid() ? TakeGlyphs(line) : ShapedLine();
}

}  // namespace standalone
