#include "standalone/window/LineText.h"

#include <QStringDecoder>
#include <QTextBoundaryFinder>

namespace standalone {

namespace {

bool BreaksLine(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      return false;
  }
}

/// How many code units of `line` fit into `width`, whole characters as people see them only.
qsizetype CountFitting(const QString& line, const QFontMetricsF& metrics, qreal width) {
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line);
  qsizetype fitting = 0;
  for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
    if (metrics.horizontalAdvance(line, static_cast<int>(end)) > width) break;
    fitting = end;
  }
  return fitting;
}

}  // namespace

void DecodeLine(std::string_view utf8, QString& line) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  line.resize(decoder.requiredSpace(static_cast<qsizetype>(utf8.size())));
  const QByteArrayView bytes(utf8.data(), static_cast<qsizetype>(utf8.size()));
  QChar* const begin = line.data();
  QChar* const end = decoder.appendToBuffer(begin, bytes);
  for (QChar* character = begin; character != end; ++character) {
    if (BreaksLine(*character)) *character = QChar::Space;
  }
  line.truncate(end - begin);
}

void CutLine(QString& line, const QFontMetricsF& metrics, qreal width, std::u16string_view ellipsis) {
  if (ellipsis.empty()) {
    line = metrics.elidedText(line, Qt::ElideRight, width);
    return;
  }
  if (metrics.horizontalAdvance(line) <= width) return;
  const QStringView end(ellipsis.data(), static_cast<qsizetype>(ellipsis.size()));
  const qreal left = width - metrics.horizontalAdvance(end.toString());
  if (left < 0) return line.clear();
  line.truncate(CountFitting(line, metrics, left));
  line.append(end);
}

}  // namespace standalone
