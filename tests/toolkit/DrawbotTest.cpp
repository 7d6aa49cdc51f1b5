#include "host/qelui/Drawbot.h"

#include <gtest/gtest.h>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "toolkit/OffMainThread.h"

namespace {

TEST(Outline, IsDrawnWithTheDrawbotAsGiven) {
  const standalone::Runtime runtime;
  standalone::RecordingDrawbot drawbot;
  qelui::StrokeRect(drawbot, {1, 2, 30, 40}, {0.25F, 0.5F, 0.75F, 1}, 1.5F);
  ASSERT_EQ(drawbot.GetStrokes().size(), 1U);
  EXPECT_EQ(drawbot.GetStrokes()[0].area, (qelui::Rect{1, 2, 30, 40}));
  EXPECT_EQ(drawbot.GetStrokes()[0].color, (qelui::ColorRGBA{0.25F, 0.5F, 0.75F, 1}));
  EXPECT_EQ(drawbot.GetStrokes()[0].lineWidth, 1.5F);
}

TEST(Outline, StopsOffTheMainThread) {
  const standalone::Runtime runtime;
  standalone::RecordingDrawbot drawbot;
  EXPECT_STOPS_OFF_MAIN_THREAD(qelui::StrokeRect(drawbot, {}, {}, 1), "StrokeRect");
}

}  // namespace
