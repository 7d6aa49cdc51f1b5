#include "standalone/window/PainterDrawbot.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include "host/qelui/Theme.h"
#include "support/SteppedHost.h"

namespace standalone {
namespace {

constexpr qelui::ColorRGBA kRed{1, 0, 0, 1};
constexpr qelui::ColorRGBA kBlue{0, 0, 1, 1};
constexpr qelui::ColorRGBA kBlack{0, 0, 0, 1};

/// White paper of 100 × 60 pixels, at a device pixel ratio.
class Paper {
 public:
  explicit Paper(int scale = 1) : scale(scale), image(100 * scale, 60 * scale, QImage::Format_RGB32) {
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
  }

  template <typename Function>
  void Draw(Function&& function) {
    QPainter painter(&image);
    TextFonts fonts;
    PainterDrawbot drawbot(painter, fonts);
    function(drawbot);
  }
  /// What is not white, in device pixels.
  QRect FindInk() const {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) != qRgb(255, 255, 255)) ink |= QRect(x, y, 1, 1);
      }
    }
    return ink;
  }
  int Count(QRgb color) const {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == color ? 1 : 0;
    }
    return count;
  }

  int scale;
  QImage image;
};

class OnPaper : public testing::TestWithParam<int> {
 protected:
  static void DrawLine(PainterDrawbot& drawbot, std::string_view text, const qelui::Rect& room,
                       float centre = 30, const qelui::ColorRGBA& color = kBlack) {
    drawbot.DrawTextLine(
        {qelcore::UTF8String(text), room, centre, color, qelui::ui::GetFontName(0), {}});
  }
  /// A rectangle in pixels as one in device pixels.
  QRect OnDevice(int left, int top, int width, int height) const {
    return {left * GetParam(), top * GetParam(), width * GetParam(), height * GetParam()};
  }

  SteppedHost host;
  Paper paper{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Scales, OnPaper, testing::Values(1, 2));

TEST_P(OnPaper, AFilledRectangleHasSharpEdges) {
  paper.Draw([](PainterDrawbot& drawbot) { drawbot.FillRect({10, 20, 30, 15}, kRed); });
  EXPECT_EQ(paper.FindInk(), OnDevice(10, 20, 30, 15));
  EXPECT_EQ(paper.Count(qRgb(255, 0, 0)), 30 * 15 * GetParam() * GetParam());
}

TEST_P(OnPaper, NeighboursWithAFractionMeetWithoutAGapOrABlend) {
  paper.Draw([](PainterDrawbot& drawbot) {
    drawbot.FillRect({10, 0, 20, 23.75F}, kRed);
    drawbot.FillRect({10, 23.75F, 20, 23.75F}, kBlue);
  });
  const QRect ink = paper.FindInk();
  EXPECT_EQ(paper.Count(qRgb(255, 0, 0)) + paper.Count(qRgb(0, 0, 255)), ink.width() * ink.height());
}

TEST_P(OnPaper, ALineRunsInsideTheEdges) {
  paper.Draw([](PainterDrawbot& drawbot) { drawbot.StrokeRect({10, 20, 30, 15}, kRed, 1); });
  EXPECT_EQ(paper.FindInk(), OnDevice(10, 20, 30, 15));
  EXPECT_EQ(paper.Count(qRgb(255, 0, 0)), (30 * 15 - 28 * 13) * GetParam() * GetParam());
}

TEST_P(OnPaper, ATranslucentLineIsNowhereLaidTwice) {
  paper.Draw([](PainterDrawbot& drawbot) { drawbot.StrokeRect({10, 20, 30, 15}, {1, 0, 0, 0.5F}, 2); });
  const QRgb once = paper.image.pixel(OnDevice(20, 20, 1, 1).topLeft());
  EXPECT_EQ(paper.Count(once), (30 * 15 - 26 * 11) * GetParam() * GetParam());
}

TEST_P(OnPaper, NothingIsDrawnWithoutRoom) {
  paper.Draw([](PainterDrawbot& drawbot) {
    drawbot.FillRect({10, 10, 0, 10}, kRed);
    drawbot.FillRect({10, 10, 10, -5}, kRed);
    drawbot.StrokeRect({10, 10, 0, 10}, kRed, 1);
    DrawLine(drawbot, "text", {10, 0, 0, 60});
    DrawLine(drawbot, "", {10, 0, 50, 60});
  });
  EXPECT_TRUE(paper.FindInk().isNull());
}

TEST_P(OnPaper, ATextStandsAtTheLeftEdgeInTheMiddleOfItsHeight) {
  paper.Draw([](PainterDrawbot& drawbot) { DrawLine(drawbot, "H", {10, 0, 80, 60}); });
  const QRect ink = paper.FindInk();
  EXPECT_GE(ink.left(), 10 * GetParam());
  EXPECT_LE(ink.left(), 13 * GetParam());
  EXPECT_NEAR(ink.top() + ink.bottom() + 1, 2 * 30 * GetParam(), 3 * GetParam());
}

TEST_P(OnPaper, ATextIsCutAtTheRoomsRightEdge) {
  paper.Draw([](PainterDrawbot& drawbot) {
    DrawLine(drawbot, "A text that is much too long", {10, 0, 60, 60});
  });
  EXPECT_LT(paper.FindInk().right(), 70 * GetParam());
  EXPECT_GT(paper.FindInk().right(), 55 * GetParam());
}

TEST_P(OnPaper, AMillionLettersAreCutAsAHundredAre) {
  const auto drawTimes = [&](int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "dé";
    paper.image.fill(Qt::white);
    paper.Draw([&](PainterDrawbot& drawbot) { DrawLine(drawbot, text, {10, 0, 60, 60}); });
    return paper.image.copy();
  };
  const QImage few = drawTimes(100);
  EXPECT_EQ(drawTimes(1'000'000), few);
}

TEST_P(OnPaper, TextsFromRightToLeftStayInTheirRoom) {
  paper.Draw([](PainterDrawbot& drawbot) {
    DrawLine(drawbot, "שלום עולם שלום עולם", {20, 0, 60, 60});
  });
  const QRect ink = paper.FindInk();
  EXPECT_FALSE(ink.isNull());
  EXPECT_GE(ink.left(), 19 * GetParam());
  EXPECT_LE(ink.right(), 80 * GetParam());
}

TEST_P(OnPaper, EmojiAndBrokenTextDrawSomething) {
  paper.Draw([](PainterDrawbot& drawbot) {
    DrawLine(drawbot, "\xF0\x9F\x8E\xAC\xFF", {10, 0, 60, 60});
  });
  EXPECT_FALSE(paper.FindInk().isNull());
}

TEST_P(OnPaper, EachTextHasItsOwnColour) {
  paper.Draw([](PainterDrawbot& drawbot) {
    DrawLine(drawbot, "MMM", {10, 0, 80, 30}, 15, kRed);
    DrawLine(drawbot, "MMM", {10, 0, 80, 30}, 45, kBlue);
  });
  EXPECT_GT(paper.Count(qRgb(255, 0, 0)), 0);
  EXPECT_GT(paper.Count(qRgb(0, 0, 255)), 0);
}

TEST_P(OnPaper, ATextThatWasDrawnBeforeIsDrawnAlike) {
  TextFonts fonts;
  const auto draw = [&] {
    paper.image.fill(Qt::white);
    QPainter painter(&paper.image);
    PainterDrawbot drawbot(painter, fonts);
    DrawLine(drawbot, "A text that is much too long", {10, 0, 60, 60});
    DrawLine(drawbot, "A text", {10, 0, 60, 60}, 10);
    return paper.image.copy();
  };
  const QImage first = draw();
  EXPECT_EQ(draw(), first);
}

TEST_P(OnPaper, NothingIsDrawnBeyondTheConfines) {
  paper.Draw([](PainterDrawbot& drawbot) {
    drawbot.Confine({20, 20, 30, 20});
    drawbot.FillRect({0, 0, 100, 60}, kRed);
    drawbot.StrokeRect({0, 0, 100, 60}, kRed, 5);
    DrawLine(drawbot, "MMMMMMMM", {10, 0, 80, 60}, 20);
  });
  EXPECT_EQ(paper.FindInk(), OnDevice(20, 20, 30, 20));
}

TEST_P(OnPaper, ConfinesHoldUntilOthersAreSet) {
  paper.Draw([](PainterDrawbot& drawbot) {
    drawbot.Confine({20, 20, 30, 20});
    drawbot.FillRect({10, 10, 60, 40}, kRed);
    drawbot.FillRect({30, 25, 5, 5}, kBlue);
    drawbot.FillRect({10, 10, 60, 40}, kBlack);
    drawbot.Confine({60, 20, 10, 10});
    drawbot.FillRect({60, 20, 10, 10}, kBlue);
    drawbot.Unconfine();
    drawbot.FillRect({0, 0, 5, 5}, kBlue);
  });
  const int perPixel = GetParam() * GetParam();
  EXPECT_EQ(paper.Count(qRgb(0, 0, 0)), 30 * 20 * perPixel);
  EXPECT_EQ(paper.Count(qRgb(0, 0, 255)), (10 * 10 + 5 * 5) * perPixel);
  EXPECT_EQ(paper.Count(qRgb(255, 0, 0)), 0);
}

TEST(TextFonts, PlainTextIsInTheApplicationsFont) {
  const SteppedHost host;
  TextFonts fonts;
  EXPECT_EQ(fonts.Find(qelui::ui::GetFontName(0)).font, QApplication::font());
  EXPECT_EQ(fonts.Find({}).font, QApplication::font());
}

TEST(TextFonts, EachFontIsMadeOnce) {
  const SteppedHost host;
  TextFonts fonts;
  const TextFont& mono = fonts.Find(qelcore::UTF8String("DejaVu Sans Mono"));
  EXPECT_EQ(mono.font.family(), QString("DejaVu Sans Mono"));
  fonts.Find(qelui::ui::GetFontName(0));
  EXPECT_EQ(&fonts.Find(qelcore::UTF8String("DejaVu Sans Mono")), &mono);
}

}  // namespace
}  // namespace standalone
