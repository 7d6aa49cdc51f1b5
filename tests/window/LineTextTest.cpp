#include "standalone/window/LineText.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <string>

namespace standalone {
namespace {

QString Decode(std::string_view utf8) {
  QString line;
  DecodeLine(utf8, line);
  return line;
}

QFontMetricsF GetMetrics() {
  return QFontMetricsF(QApplication::font());
}

TEST(LineText, EveryScriptIsDecoded) {
  EXPECT_EQ(Decode("Straße 東京 עברית \xF0\x9F\x8E\xAC"), QString::fromUtf8("Straße 東京 עברית 🎬"));
}

TEST(LineText, LineBreaksAndControlCharactersBecomeSpaces) {
  EXPECT_EQ(Decode("a\nb\r\tc\xC2\x9C"
                   "d\xE2\x80\xA8"
                   "e"),
            QString("a b  c d e"));
}

TEST(LineText, BytesThatAreNoTextBecomeReplacementCharacters) {
  EXPECT_EQ(Decode("a\xFF"
                   "b"),
            QString::fromUtf8("a\xEF\xBF\xBD"
                              "b"));
}

TEST(LineText, TheRoomOfALineIsUsedAgain) {
  QString line;
  DecodeLine(std::string(100, 'x'), line);
  const auto* const room = line.constData();
  DecodeLine("short", line);
  EXPECT_EQ(line, QString("short"));
  EXPECT_EQ(line.constData(), room);
}

TEST(LineText, ATextThatFitsIsNotCut) {
  QString line("Interview");
  CutLine(line, GetMetrics(), GetMetrics().horizontalAdvance(line), {});
  EXPECT_EQ(line, QString("Interview"));
}

TEST(LineText, ALongTextEndsInAnEllipsisAndFits) {
  QString line(100, 'm');
  CutLine(line, GetMetrics(), 120, {});
  EXPECT_TRUE(line.endsWith(QChar(0x2026)));
  EXPECT_LE(GetMetrics().horizontalAdvance(line), 120);
  EXPECT_GT(GetMetrics().horizontalAdvance(line), 100);
}

TEST(LineText, AnotherEllipsisStandsWhereOneIsGiven) {
  QString line(100, 'm');
  CutLine(line, GetMetrics(), 120, u"~~");
  EXPECT_TRUE(line.endsWith("m~~"));
  EXPECT_LE(GetMetrics().horizontalAdvance(line), 120);
}

TEST(LineText, ACharacterOfSeveralPartsIsNeverCutApart) {
  const QString letter = QString::fromUtf8("e\u0301");
  QString line;
  for (int i = 0; i < 50; ++i) line += letter;
  CutLine(line, GetMetrics(), 100, u">");
  line.chop(1);
  EXPECT_GT(line.size(), 0);
  EXPECT_EQ(line.size() % letter.size(), 0);
}

TEST(LineText, NothingIsLeftWhereNoEllipsisFits) {
  for (const std::u16string_view ellipsis : {std::u16string_view(), std::u16string_view(u"....")}) {
    QString line("Interview");
    CutLine(line, GetMetrics(), 2, ellipsis);
    EXPECT_TRUE(line.isEmpty());
  }
}

}  // namespace
}  // namespace standalone
