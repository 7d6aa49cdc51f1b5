#include "standalone/toolkit/RecordingDrawbot.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using qelcore::UTF8String;
using standalone::RecordingDrawbot;

void Draw(RecordingDrawbot& drawbot, const UTF8String& text) {
  drawbot.DrawTextLine({text, {6, 20, 94, 30}, 35, {1, 0, 0, 1}, UTF8String("Sans"), u"..."});
}
void Draw(RecordingDrawbot& drawbot, const char* text) {
  Draw(drawbot, UTF8String(text));
}

TEST(RecordingDrawbotTest, BeginsEmpty) {
  const RecordingDrawbot drawbot;
  EXPECT_TRUE(drawbot.GetTextLines().empty());
  EXPECT_TRUE(drawbot.GetFills().empty());
  EXPECT_TRUE(drawbot.GetStrokes().empty());
}

TEST(RecordingDrawbotTest, KeepsLinesInTheOrderDrawnWithAllTheySay) {
  RecordingDrawbot drawbot;
  Draw(drawbot, "one");
  Draw(drawbot, "two");
  ASSERT_EQ(drawbot.GetTextLines().size(), 2U);
  EXPECT_EQ(drawbot.GetTextLines()[0].text, "one");
  const RecordingDrawbot::Line& line = drawbot.GetTextLines()[1];
  EXPECT_EQ(line.text, "two");
  EXPECT_EQ(line.room, (qelui::Rect{6, 20, 94, 30}));
  EXPECT_EQ(line.centre, 35);
  EXPECT_EQ(line.color, (qelui::ColorRGBA{1, 0, 0, 1}));
  EXPECT_EQ(line.fontName, "Sans");
}

TEST(RecordingDrawbotTest, KeepsFillsInTheOrderDrawn) {
  RecordingDrawbot drawbot;
  drawbot.FillRect({1, 2, 3, 4}, {1, 0, 0, 1});
  drawbot.FillRect({5, 6, 7, 8}, {0, 0, 1, 0.5F});
  ASSERT_EQ(drawbot.GetFills().size(), 2U);
  EXPECT_EQ(drawbot.GetFills()[0].area, (qelui::Rect{1, 2, 3, 4}));
  EXPECT_EQ(drawbot.GetFills()[1].color, (qelui::ColorRGBA{0, 0, 1, 0.5F}));
  EXPECT_TRUE(drawbot.GetTextLines().empty());
}

TEST(RecordingDrawbotTest, KeepsOutlinesInTheOrderDrawn) {
  RecordingDrawbot drawbot;
  drawbot.StrokeRect({1, 2, 3, 4}, {1, 0, 0, 1}, 1);
  drawbot.StrokeRect({5, 6, 7, 8}, {0, 0, 1, 0.5F}, 2.5F);
  ASSERT_EQ(drawbot.GetStrokes().size(), 2U);
  EXPECT_EQ(drawbot.GetStrokes()[0].area, (qelui::Rect{1, 2, 3, 4}));
  EXPECT_EQ(drawbot.GetStrokes()[1].color, (qelui::ColorRGBA{0, 0, 1, 0.5F}));
  EXPECT_EQ(drawbot.GetStrokes()[1].lineWidth, 2.5F);
  EXPECT_TRUE(drawbot.GetFills().empty());
}

TEST(RecordingDrawbotTest, ForgetsWhenCleared) {
  RecordingDrawbot drawbot;
  Draw(drawbot, "one");
  drawbot.FillRect({}, {});
  drawbot.StrokeRect({}, {}, 1);
  drawbot.Clear();
  EXPECT_TRUE(drawbot.GetTextLines().empty());
  EXPECT_TRUE(drawbot.GetFills().empty());
  EXPECT_TRUE(drawbot.GetStrokes().empty());
}

TEST(RecordingDrawbotTest, ATextIsKeptByCountingNotByCopying) {
  RecordingDrawbot drawbot;
  const UTF8String text("one");
  Draw(drawbot, text);
  EXPECT_TRUE(drawbot.GetTextLines().at(0).text.SharesBufferWith(text));
}

}  // namespace
