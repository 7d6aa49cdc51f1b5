#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::UTF8String;
using qelui::ColorRGBA;
using qelui::Rect;
using qelui::TextLine;
using qelui::controls::UI_MultiColumnTree;
using standalone::RecordingDrawbot;

constexpr Rect kCell{40, 120, 200, 30};
constexpr ColorRGBA kBlue{0, 0.25F, 1, 0.5F};
constexpr float kInset = 5;
constexpr float kCentre = 12;

/// Looks at lines while they are drawn: what they refer to is lent for the call only.
class WatchingDrawbot final : public qelui::Drawbot {
 public:
  void FillRect(const Rect&, const ColorRGBA&) override { ++fillCount; }
  void StrokeRect(const Rect&, const ColorRGBA&, float) override { ++fillCount; }
  void DrawTextLine(const TextLine& line) override {
    lines.push_back({line.text, line.room, line.centre, line.color, line.fontName});
    ellipses.emplace_back(line.ellipsis);
  }

  std::vector<RecordingDrawbot::Line> lines;
  std::vector<std::u16string> ellipses;
  int fillCount = 0;
};

class DrawCellString : public testing::Test {
 protected:
  void Draw(std::string_view text, const Rect& cell = kCell, std::u16string_view ellipsis = {}) {
    UI_MultiColumnTree::DrawCellString(drawbot, cell, UTF8String(text), kBlue, kCentre, kInset,
                                       UTF8String("Serif"), ellipsis, UI_MultiColumnTree::kAlignLeft,
                                       UI_MultiColumnTree::kCutAtEnd);
  }

  standalone::Runtime runtime;
  WatchingDrawbot drawbot;
};

TEST_F(DrawCellString, DrawsTheTextInItsColourAndFont) {
  Draw(
      "Gr\xC3\xB6\xC3\x9F"
      "e");
  ASSERT_EQ(drawbot.lines.size(), 1U);
  EXPECT_EQ(drawbot.lines[0].text,
            "Gr\xC3\xB6\xC3\x9F"
            "e");
  EXPECT_EQ(drawbot.lines[0].color, kBlue);
  EXPECT_EQ(drawbot.lines[0].fontName, "Serif");
  EXPECT_EQ(drawbot.fillCount, 0);
}

TEST_F(DrawCellString, CountsTheMiddleOfTheLineFromTheTopOfTheCell) {
  Draw("text");
  EXPECT_EQ(drawbot.lines.at(0).centre, 120 + kCentre);
}

TEST_F(DrawCellString, BeginsBehindTheInsetAndEndsWithTheCell) {
  Draw("text");
  EXPECT_EQ(drawbot.lines.at(0).room, (Rect{45, 120, 195, 30}));
}

TEST_F(DrawCellString, ACellNarrowerThanItsInsetHasNoRoom) {
  for (const float width : {5.0F, 3.0F, 0.0F, -10.0F}) {
    Draw("text", {40, 120, width, 30});
    EXPECT_EQ(drawbot.lines.back().room.width, 0) << width;
  }
}

TEST_F(DrawCellString, HandsTheEllipsisOver) {
  Draw("text");
  Draw("text", kCell, u"...");
  EXPECT_EQ(drawbot.ellipses, (std::vector<std::u16string>{u"", u"..."}));
}

TEST_F(DrawCellString, AnEmptyTextDrawsNothing) {
  Draw("");
  EXPECT_TRUE(drawbot.lines.empty());
}

TEST_F(DrawCellString, TheToolkitLeavesRoomBeforeTheTextOfACell) {
  EXPECT_GT(UI_MultiColumnTree::GetCellTextLeftInset(), 0);
}

TEST_F(DrawCellString, StopsOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(Draw("text"), "UI_MultiColumnTree::DrawCellString");
  EXPECT_STOPS_OFF_MAIN_THREAD(UI_MultiColumnTree::GetCellTextLeftInset(),
                               "UI_MultiColumnTree::GetCellTextLeftInset");
}

}  // namespace
