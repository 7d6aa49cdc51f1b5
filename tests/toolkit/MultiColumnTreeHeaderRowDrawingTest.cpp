#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "host/qelui/Theme.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "standalone/toolkit/ThemeColors.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::Ref;
using qelcore::UTF8String;
using qelui::Rect;
using qelui::controls::UI_MultiColumnTree;
using qelui::controls::UI_MultiColumnTreeHeaderRow;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kHierarchy = UI_MultiColumnTreeHeaderRow::kHierarchyColumnID;

/// Three columns of 100, 50 and 100 pixels behind a hierarchy column without width, in a view 300
/// pixels wide.
class HeaderRowDrawing : public testing::Test {
 protected:
  HeaderRowDrawing() {
    header->SetColumnWidth(kHierarchy, 0);
    header->AppendColumn(UTF8String("Name"), 11);
    header->AppendColumn(UTF8String("Start"), 12);
    header->AppendColumn(UTF8String("End"), 13);
    header->SetColumnWidth(12, 50);
    header->UI_SetBounds({40, 30, 300, 24});
  }

  void Draw() {
    drawbot.Clear();
    header->UI_Draw(drawbot);
  }
  std::vector<std::string> GetTexts() const {
    std::vector<std::string> texts;
    for (const auto& line : drawbot.GetTextLines()) texts.emplace_back(line.text.View());
    return texts;
  }
  std::vector<Rect> GetDividers() const {
    std::vector<Rect> dividers;
    for (const auto& fill : drawbot.GetFills()) {
      if (fill.color == standalone::GetThemeColors().divider) dividers.push_back(fill.area);
    }
    return dividers;
  }

  standalone::Runtime runtime;
  standalone::RecordingDrawbot drawbot;
  Ref<UI_MultiColumnTree> tree{new UI_MultiColumnTree(0, 18)};
  Ref<UI_MultiColumnTreeHeaderRow> header{new UI_MultiColumnTreeHeaderRow(tree.Get())};
};

TEST_F(HeaderRowDrawing, FillsItsBoundsFirst) {
  Draw();
  ASSERT_FALSE(drawbot.GetFills().empty());
  EXPECT_EQ(drawbot.GetFills()[0].area, (Rect{0, 0, 300, 24}));
  EXPECT_EQ(drawbot.GetFills()[0].color, standalone::GetThemeColors().headerBackground);
}

TEST_F(HeaderRowDrawing, DrawsTheTextsInDisplayOrder) {
  header->SetAllowColumnMovingByUser(true, false);
  header->MoveColumnByUser(3, 1);
  Draw();
  EXPECT_THAT(GetTexts(), ElementsAre("End", "Name", "Start"));
}

TEST_F(HeaderRowDrawing, ATextIsCentredBehindTheInsetAndCutAtItsColumnsEnd) {
  Draw();
  ASSERT_EQ(drawbot.GetTextLines().size(), 3U);
  const standalone::RecordingDrawbot::Line& line = drawbot.GetTextLines()[1];
  EXPECT_EQ(line.text, "Start");
  EXPECT_EQ(line.room, (Rect{106, 0, 44, 24}));
  EXPECT_EQ(line.centre, 12);
  EXPECT_EQ(line.color, standalone::GetThemeColors().headerText);
  EXPECT_EQ(line.fontName, qelui::ui::GetFontName(0));
}

TEST_F(HeaderRowDrawing, ADividerEndsEachColumn) {
  Draw();
  EXPECT_THAT(GetDividers(), ElementsAre(Rect{99, 0, 1, 24}, Rect{149, 0, 1, 24}, Rect{249, 0, 1, 24}));
}

TEST_F(HeaderRowDrawing, ScrolledItsColumnsStandFurtherLeft) {
  header->SetScrollOffset(30);
  Draw();
  EXPECT_EQ(drawbot.GetTextLines().at(0).room, (Rect{-24, 0, 94, 24}));
  EXPECT_EQ(GetDividers().at(0), (Rect{69, 0, 1, 24}));
}

TEST_F(HeaderRowDrawing, OnlyColumnsInViewAreDrawn) {
  header->UI_SetBounds({0, 0, 30, 24});
  header->SetScrollOffset(110);
  Draw();
  EXPECT_THAT(GetTexts(), ElementsAre("Start"));
  EXPECT_THAT(GetDividers(), ElementsAre(Rect{39, 0, 1, 24}));
}

TEST_F(HeaderRowDrawing, AColumnThatOnlyTouchesTheViewIsNotInIt) {
  header->UI_SetBounds({0, 0, 50, 24});
  header->SetScrollOffset(100);
  Draw();
  EXPECT_THAT(GetTexts(), ElementsAre("Start"));
}

TEST_F(HeaderRowDrawing, AColumnWithoutWidthDrawsNothing) {
  header->SetColumnName(kHierarchy, UTF8String("Tree"));
  header->SetColumnWidth(12, 0);
  Draw();
  EXPECT_THAT(GetTexts(), ElementsAre("Name", "End"));
  EXPECT_EQ(GetDividers().size(), 2U);
}

TEST_F(HeaderRowDrawing, AColumnWithoutTextStillHasItsDivider) {
  header->SetColumnName(12, {});
  Draw();
  EXPECT_THAT(GetTexts(), ElementsAre("Name", "End"));
  EXPECT_EQ(GetDividers().size(), 3U);
}

TEST_F(HeaderRowDrawing, AColumnNarrowerThanItsInsetHasNoRoomForText) {
  header->SetColumnWidth(12, 4);
  Draw();
  EXPECT_EQ(drawbot.GetTextLines().at(1).room.width, 0);
}

class WideInset final : public UI_MultiColumnTreeHeaderRow {
 public:
  using UI_MultiColumnTreeHeaderRow::UI_MultiColumnTreeHeaderRow;
  qelui::utility::StyleResource GetStyleResource() const override {
    return {.height = 40, .textInset = 15};
  }
};

TEST_F(HeaderRowDrawing, TheInsetIsThatOfItsStyle) {
  header = Ref<UI_MultiColumnTreeHeaderRow>(new WideInset(tree.Get()));
  header->SetColumnName(kHierarchy, UTF8String("Tree"));
  header->UI_SetBounds({0, 0, 300, 40});
  Draw();
  EXPECT_EQ(drawbot.GetTextLines().at(0).room, (Rect{15, 0, 85, 40}));
}

TEST_F(HeaderRowDrawing, APlainHeaderRowHasThePlainStyle) {
  EXPECT_EQ(header->GetStyleResource(),
            qelui::utility::GetResourceManager().GetResource(qelui::utility::kHeaderRowStyle,
                                                             qelui::utility::kPlainHeaderRow));
}

TEST_F(HeaderRowDrawing, TheSortIndicatorDrawsNothing) {
  header->ShowSortIndicator(false);
  Draw();
  const std::size_t fills = drawbot.GetFills().size();
  header->ShowSortIndicator(true);
  Draw();
  EXPECT_EQ(drawbot.GetFills().size(), fills);
  EXPECT_THAT(drawbot.GetStrokes(), IsEmpty());
}

TEST_F(HeaderRowDrawing, StopsOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(Draw(), "UI_MultiColumnTreeHeaderRow::UI_Draw");
}

}  // namespace
