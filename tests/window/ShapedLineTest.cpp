#include "standalone/window/ShapedLine.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <string>
#include <vector>

#include "standalone/window/LineText.h"
#include "standalone/window/TextFonts.h"

namespace standalone {
namespace {

constexpr QPoint kBegin(40, 40);
constexpr QSize kPaper(600, 80);

const std::vector<std::string> kTexts{"Harbour before dawn",
                                      "To AVAIL: fi fl ffi",
                                      "  spaces before and behind  ",
                                      "e\u0301a\u0308 combining",
                                      "\u65E5\u672C\u8A9E\u306E\u540D\u524D",
                                      "\u05E9\u05DC\u05D5\u05DD first, \u05E2\u05D5\u05DC\u05DD last",
                                      "clip \U0001F3AC \U0001F469\u200D\U0001F469 of \xFF",
                                      "a\tb\nc",
                                      "j"};

class ShapedLineTest : public testing::Test {
 protected:
  ShapedLine Shape(std::string_view text, qreal width = 500, std::u16string_view ellipsis = {}) const {
    return ShapeLine(text, font, width, ellipsis);
  }
  template <typename Function>
  QImage Draw(qreal scale, Function&& function) const {
    QImage image((QSizeF(kPaper) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font.font);
    function(painter);
    return image;
  }
  static void DrawRuns(QPainter& painter, const ShapedLine& line) {
    for (const QGlyphRun& run : line.runs) painter.drawGlyphRun(kBegin, run);
  }
  static QRect FindInk(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != qRgb(255, 255, 255)) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink;
  }

  TextFont font{QApplication::font(), QFontMetricsF(QApplication::font()), {}};
};

TEST_F(ShapedLineTest, ALineLooksAsThePainterWritesIt) {
  for (const std::string& utf8 : kTexts) {
    for (const qreal width : {500.0, 90.0, 31.5, 12.0, 3.0}) {
      QString text;
      DecodeLine(utf8, text);
      CutLine(text, font.metrics, width, {});
      const ShapedLine line = Shape(utf8, width);
      for (const qreal scale : {1.0, 1.25, 2.0}) {
        const QImage written =
            Draw(scale, [&](QPainter& painter) { painter.drawText(QPointF(kBegin), text); });
        EXPECT_EQ(Draw(scale, [&](QPainter& painter) { DrawRuns(painter, line); }), written)
            << utf8 << " " << width << " " << scale;
      }
    }
  }
}

TEST_F(ShapedLineTest, TheInkHoldsAllThatIsDrawnAndLittleMore) {
  constexpr qreal kAround = 3;
  for (const std::string& text : kTexts) {
    const ShapedLine line = Shape(text);
    const QRectF ink = line.ink.translated(kBegin);
    for (const qreal scale : {1.0, 1.25, 2.0}) {
      const QRect pixels = FindInk(Draw(scale, [&](QPainter& painter) { DrawRuns(painter, line); }));
      const QRectF drawn(QPointF(pixels.topLeft()) / scale, QSizeF(pixels.size()) / scale);
      EXPECT_TRUE(ink.contains(drawn)) << text << " " << scale;
      EXPECT_TRUE(drawn.adjusted(0, -kAround, 0, kAround)
                      .contains(QRectF(drawn.left(), ink.top(), 1, ink.height())))
          << text << " " << scale;
    }
  }
}

TEST_F(ShapedLineTest, ALineWithoutRoomHasNothingToSee) {
  EXPECT_TRUE(Shape("text", 1, u"~~").runs.isEmpty());
  EXPECT_TRUE(Shape("").runs.isEmpty());
}

TEST_F(ShapedLineTest, ALineIsCutWithTheEllipsisAskedFor) {
  const qreal width = font.metrics.horizontalAdvance("Harbo~~");
  const QImage cut = Draw(
      1, [&](QPainter& painter) { DrawRuns(painter, Shape("Harbour before dawn", width, u"~~")); });
  EXPECT_EQ(cut, Draw(1, [&](QPainter& painter) { DrawRuns(painter, Shape("Harbo~~")); }));
}

}  // namespace
}  // namespace standalone
