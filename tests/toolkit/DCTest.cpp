#include "host/UIF/DC.h"

#include <gtest/gtest.h>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "toolkit/OffMainThread.h"

namespace {

TEST(DC, FillsARectangleWithAColour) {
  const standalone::Runtime runtime;
  standalone::RecordingDrawbot drawbot;
  UIF::DC::FillRect(drawbot, {1, 2, 3, 4}, {0.25F, 0.5F, 0.75F, 1});
  ASSERT_EQ(drawbot.GetFills().size(), 1U);
  EXPECT_EQ(drawbot.GetFills()[0].area, (qelui::Rect{1, 2, 3, 4}));
  EXPECT_EQ(drawbot.GetFills()[0].color, (qelui::ColorRGBA{0.25F, 0.5F, 0.75F, 1}));
}

TEST(DC, FillingStopsOffTheMainThread) {
  const standalone::Runtime runtime;
  standalone::RecordingDrawbot drawbot;
  EXPECT_STOPS_OFF_MAIN_THREAD(UIF::DC::FillRect(drawbot, {}, {}), "DC::FillRect");
}

}  // namespace
