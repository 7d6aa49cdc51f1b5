#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "host/qelui/Resources.h"
#include "host/qelui/Theme.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "support/HostCalls.h"
#include "table/ColumnFixture.h"
#include "table/DrawingWatch.h"
#include "table/GreenTheme.h"

namespace Vantrel {
namespace {

class HeaderRowDrawing : public ColumnFixture {
 protected:
  const standalone::RecordingDrawbot& Draw(const qelui::Rect& bounds) {
    header->UI_SetBounds(bounds);
    drawbot.Clear();
    header->UI_Draw(drawbot);
    return drawbot;
  }
  /// The last line drawn along edges.
  const standalone::RecordingDrawbot::Stroke& DrawOutline(const qelui::Rect& bounds) {
    return Draw(bounds).GetStrokes().back();
  }

  const Ref<SequenceIndexTree> tree = MakeTree();
  const Ref<qelui::controls::UI_MultiColumnTreeHeaderRow> header = tree->GetHeaderRow();
  standalone::RecordingDrawbot drawbot;
};

TEST_F(HeaderRowDrawing, TheBaseIsDrawnFirstThenALineOfOnePixelAlongTheEdges) {
  const hostcalls::Recording recording;
  Draw({0, 0, 400, 20});
  EXPECT_EQ(recording.GetCalls({"UI_Draw", "StrokeRect"}),
            (Names{"UI_Draw()", "StrokeRect(0.0, 0.0, 400.0, 20.0, 1.0)"}));
}

TEST_F(HeaderRowDrawing, TheBaseShowsTheColumns) {
  Draw({0, 0, 2000, 20});
  Names texts;
  for (const auto& line : drawbot.GetTextLines()) texts.emplace_back(line.text.View());
  for (const std::string& column : kDefaultColumns) {
    EXPECT_NE(std::ranges::find(texts, column), texts.end()) << column;
  }
}

TEST_F(HeaderRowDrawing, TheLineRunsAroundTheRowWhereverTheRowStands) {
  EXPECT_EQ(DrawOutline({17, 40, 300, 22}).area, (qelui::Rect{0, 0, 300, 22}));
}

TEST_F(HeaderRowDrawing, TheLineStandsOnWholePixels) {
  EXPECT_EQ(DrawOutline({0.5F, 0.5F, 300.9F, 22.5F}).area, (qelui::Rect{0, 0, 300, 22}));
  EXPECT_EQ(DrawOutline({0, 0, 0.9F, 0}).area, (qelui::Rect{0, 0, 0, 0}));
}

TEST_F(HeaderRowDrawing, TheLineHasTheThemesDividerColour) {
  EXPECT_EQ(DrawOutline({0, 0, 400, 20}).color,
            qelui::skins::utilities::GetDividerColor(*qelui::ui::GetDefaultThemeProvider()));
  DrawingWatch watch;
  watch.theme = std::make_shared<const GreenTheme>();
  EXPECT_EQ(DrawOutline({0, 0, 400, 20}).color, GreenTheme().GetDividerColor());
  EXPECT_EQ(DrawOutline({0, 0, 400, 20}).lineWidth, 1.0F);
}

TEST_F(HeaderRowDrawing, ItsStyleIsTheThirdVariantOfTheHostsTenth) {
  const auto& resources = qelui::utility::GetResourceManager();
  EXPECT_EQ(header->GetStyleResource(), resources.GetResource(10, 3));
  EXPECT_FALSE(header->GetStyleResource() == resources.GetResource(10, 0))
      << "or the test proves nothing";
}

}  // namespace
}  // namespace Vantrel
