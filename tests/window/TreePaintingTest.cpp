#include <gtest/gtest.h>

#include <QScrollBar>
#include <stdexcept>
#include <string>
#include <tuple>

#include "data/ColumnIdentifiers.h"
#include "support/Drafts.h"
#include "table/ColumnLayout.h"
#include "table/DrawingFixture.h"
#include "window/WindowFixture.h"

/// What a window shows of the module's table, pixel by pixel: at three row heights, two device pixel
/// ratios and in both themes.
namespace standalone {
namespace {

using Looks = std::tuple<float, int, ThemeName>;
constexpr QColor kShortGapRed(255, 0, 0);
/// Pixels.
constexpr int kModuleHeaderHeight = 20;

class TablePicture : public WindowFixture, public testing::WithParamInterface<Looks> {
 protected:
  TablePicture() {
    Vantrel::GetColumnLayoutStore().clear();
    tree = qelcore::Ref(new Vantrel::SequenceIndexTree({}, 0, std::get<float>(GetParam())));
    const auto headerRow = tree->GetHeaderRow();
    headerRow->AppendColumn(qelcore::UTF8String("End Time"), Vantrel::kColumnEndTime);
    tree->SetOptions(Vantrel::KeepingGaps());
    tree->SetSequence(AddSequence(MakeOpaqueSequence()));
    host.Settle();
    widget = Show(tree, {1100, 420});
  }
  static SequenceDraft MakeOpaqueSequence() {
    SequenceDraft draft = Vantrel::MakeRichSequence();
    draft.tracks.front().items.front().clip->labelColor = {0x3F, 0x7F, 0xBF, 0xFF};
    return draft;
  }
  int GetScale() const { return std::get<int>(GetParam()); }
  Picture Take() { return Picture(*widget, GetScale()); }
  QRect FindCell(std::size_t position, Vantrel::ColumnID column) {
    const auto displayIndex = static_cast<std::size_t>(tree->GetHeaderRow()->GetIndexOfColumn(column));
    const auto index = widget->GetColumns().FindColumn(displayIndex);
    return FindCellInPicture(*widget, position, index.value());
  }
  static QColor GetRowColor(std::size_t position) {
    const ThemeColors& colors = GetThemeColors();
    return ToQColor(position % 2 == 0 ? colors.rowBackground : colors.otherRowBackground);
  }
  static QColor GetTextColor() { return ToQColor(GetThemeColors().text); }
  int CountText(const QRect& cell, const QColor& color) {
    return Take().CountIf(cell, [&](const QColor& found) { return found == color; });
  }

  ThemeChoice theme{std::get<ThemeName>(GetParam())};
  qelcore::Ref<Vantrel::SequenceIndexTree> tree;
  std::unique_ptr<TreeWidget> widget;
};

std::string NameLooks(const testing::TestParamInfo<Looks>& info) {
  const auto& [height, scale, theme] = info.param;
  const std::string name = theme == ThemeName::kDark ? "Dark" : "Light";
  return name + std::to_string(static_cast<int>(height)) + "PixelsTimes" + std::to_string(scale);
}

INSTANTIATE_TEST_SUITE_P(Looks, TablePicture,
                         testing::Combine(testing::Values(25.0F, 47.5F, 70.0F), testing::Values(1, 2),
                                          testing::Values(ThemeName::kDark, ThemeName::kLight)),
                         NameLooks);

// The rows: Interview, Sound, Gap, Lost, Title.

TEST_P(TablePicture, TheLabelColourFillsItsCellEdgeToEdge) {
  const QColor clipColor = ToQColor(tree->GetFilteredList()[0].labelColor);
  EXPECT_TRUE(Take().IsAll(FindCell(0, Vantrel::kColumnLabelColor), clipColor));
  const QColor soundColor = ToQColor(tree->GetFilteredList()[1].labelColor);
  EXPECT_TRUE(Take().IsAll(FindCell(1, Vantrel::kColumnLabelColor), soundColor));
}

TEST_P(TablePicture, AGapsLabelColourIsBlack) {
  EXPECT_TRUE(Take().IsAll(FindCell(2, Vantrel::kColumnLabelColor), QColor(Qt::black)));
}

TEST_P(TablePicture, TheTimesBesideAShortGapAreRedAndOtherCellsAreNot) {
  tree->SetOptions({});
  host.Settle();
  Settle();
  // The rows: Interview, Sound, Lost, Title.
  EXPECT_GT(CountText(FindCell(0, Vantrel::kColumnEndTime), kShortGapRed), 0);
  EXPECT_GT(CountText(FindCell(2, Vantrel::kColumnStartTime), kShortGapRed), 0);
  for (const auto column :
       {Vantrel::kColumnEndTime, Vantrel::kColumnClipName, Vantrel::kColumnDuration}) {
    EXPECT_EQ(CountText(FindCell(2, column), kShortGapRed), 0) << column;
    EXPECT_GT(CountText(FindCell(2, column), GetTextColor()), 0) << column;
  }
}

TEST_P(TablePicture, OtherTextsAreInTheThemesColour) {
  for (const auto column :
       {Vantrel::kColumnIndex, Vantrel::kColumnClipName, Vantrel::kColumnTrack,
        Vantrel::kColumnStartTime, Vantrel::kColumnDuration, Vantrel::kColumnEffects}) {
    EXPECT_GT(CountText(FindCell(0, column), GetTextColor()), 0) << column;
    EXPECT_EQ(CountText(FindCell(0, column), kShortGapRed), 0) << column;
  }
}

TEST_P(TablePicture, RowsFollowEachOtherWithoutAGapAndAlternate) {
  const auto& columns = widget->GetColumns();
  const int right = columns.GetTotalWidth() + 5;
  int bottom = kModuleHeaderHeight;
  for (std::size_t i = 0; i < tree->CountRows(); ++i) {
    const QRect cell = FindCell(i, Vantrel::kColumnIndex);
    EXPECT_EQ(cell.top(), bottom);
    bottom = cell.top() + cell.height();
    EXPECT_TRUE(Take().IsAll(QRect(right, cell.top(), 20, cell.height()), GetRowColor(i))) << i;
  }
  EXPECT_EQ(bottom - kModuleHeaderHeight, std::lround(5 * std::get<float>(GetParam()) + 0.01));
}

TEST_P(TablePicture, TextsStandInTheMiddleOfTheirRow) {
  tree->GetHeaderRow()->SetColumnWidth(Vantrel::kColumnIndex, 60);
  Settle();
  const QRect cell = FindCell(0, Vantrel::kColumnTrack);
  const QRect ink = Take().FindInk(cell, GetRowColor(0));
  ASSERT_FALSE(ink.isNull());
  EXPECT_NEAR(ink.top() + ink.bottom() + 1, cell.height() * GetScale(), 3 * GetScale());
}

TEST_P(TablePicture, ACutTextNeverPassesItsCell) {
  tree->GetHeaderRow()->SetColumnWidth(Vantrel::kColumnClipName, 40);
  tree->GetHeaderRow()->SetColumnWidth(Vantrel::kColumnTrack, 0);
  tree->GetHeaderRow()->SetColumnWidth(Vantrel::kColumnStartTime, 8);
  Settle();
  const QRect name = FindCell(0, Vantrel::kColumnClipName);
  const QRect ink = Take().FindInk(name, GetRowColor(0));
  EXPECT_FALSE(ink.isNull());
  EXPECT_LT(ink.right(), name.width() * GetScale());
  // The start time next to it has no room for a letter.
  EXPECT_EQ(Take().CountOther(FindCell(0, Vantrel::kColumnStartTime), GetRowColor(0)), 0);
}

TEST_P(TablePicture, TheHeaderIsTwentyPixelsHighAndHasAnOutlineOfOne) {
  EXPECT_EQ(widget->GetHeader().height(), kModuleHeaderHeight);
  EXPECT_EQ(widget->viewport()->y(), kModuleHeaderHeight);
  const QColor line = ToQColor(GetThemeColors().divider);
  const int width = widget->GetHeader().width();
  const Picture picture = Take();
  EXPECT_TRUE(picture.IsAll(QRect(0, 0, width, 1), line));
  EXPECT_TRUE(picture.IsAll(QRect(0, kModuleHeaderHeight - 1, width, 1), line));
  EXPECT_TRUE(picture.IsAll(QRect(0, 0, 1, kModuleHeaderHeight), line));
  EXPECT_TRUE(picture.IsAll(QRect(width - 1, 0, 1, kModuleHeaderHeight), line));
  EXPECT_TRUE(picture.IsAll(QRect(width - 20, 1, 18, kModuleHeaderHeight - 2),
                            ToQColor(GetThemeColors().headerBackground)));
}

TEST_P(TablePicture, SelectedRowsAreSeenWithFocusAndWithout) {
  tree->GetControl().Click(0, 0);
  Settle();
  const QRect inside = QRect(widget->GetColumns().GetTotalWidth() + 5, kModuleHeaderHeight + 3, 20, 15);
  ASSERT_TRUE(widget->hasFocus());
  EXPECT_TRUE(Take().IsAll(inside, ToQColor(GetThemeColors().selection)));
  widget->clearFocus();
  EXPECT_TRUE(Take().IsAll(inside, ToQColor(GetThemeColors().restingSelection)));
}

TEST_P(TablePicture, TheCurrentRowHasAFrame) {
  tree->GetControl().Click(1, 0);
  Settle();
  const QRect row = FindCell(1, Vantrel::kColumnIndex);
  const int left = widget->GetColumns().GetTotalWidth() + 5;
  const QColor frame = ToQColor(GetThemeColors().currentRow);
  EXPECT_TRUE(Take().IsAll(QRect(left, row.top(), 20, 1), frame));
  EXPECT_TRUE(Take().IsAll(QRect(left, row.bottom(), 20, 1), frame));
  EXPECT_EQ(Take().At({left, row.top() + 2}), ToQColor(GetThemeColors().selection));
}

TEST_P(TablePicture, MovedColumnsAreDrawnAtTheirNewPlace) {
  const auto headerRow = tree->GetHeaderRow();
  const auto from = static_cast<std::size_t>(headerRow->GetIndexOfColumn(Vantrel::kColumnLabelColor));
  ASSERT_TRUE(headerRow->MoveColumnByUser(from, 1));
  Settle();
  const QRect cell = FindCell(0, Vantrel::kColumnLabelColor);
  EXPECT_EQ(cell.left(), 0);
  EXPECT_TRUE(Take().IsAll(cell, ToQColor(tree->GetFilteredList()[0].labelColor)));
}

class PlainPicture : public WindowFixture {};

TEST_F(PlainPicture, ACellThatFailsIsLoggedAndTheOthersAreDrawn) {
  const auto tree = MakeTree(3);
  Draw(*tree, [tree = tree.Get()](qelui::Drawbot& drawbot, Tree::Row* row, std::size_t column,
                                  const qelui::Rect& cell) {
    if (tree->GetRowIndex(row) == 1 && column == 2) throw std::runtime_error("no such clip");
    drawbot.FillRect(cell, {0, 1, 0, 1});
  });
  const auto widget = Show(tree);
  host.TakeFailures();
  const Picture picture(*widget);
  const auto failures = host.TakeFailures();
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_NE(failures[0].find("no such clip"), std::string::npos);
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      const bool isDrawn = picture.IsAll(FindCellInPicture(*widget, row, column), QColor(0, 255, 0));
      EXPECT_EQ(isDrawn, row != 1 || column != 1) << row << " " << column;
    }
  }
}

TEST_F(PlainPicture, AFailingHeaderRowIsLoggedAndTheRowsAreDrawn) {
  class FailingHeaderRow final : public HeaderRow {
   public:
    using HeaderRow::HeaderRow;
    void UI_Draw(qelui::Drawbot&) override { throw std::runtime_error("no header"); }
  };
  const auto tree = MakeTree(1);
  const auto headerRow = qelcore::Ref<HeaderRow>(new FailingHeaderRow(tree.Get()));
  headerRow->AppendColumn({}, 5);
  tree->SetHeaderRow(headerRow);
  Draw(*tree, [](qelui::Drawbot& drawbot, Tree::Row*, std::size_t, const qelui::Rect& cell) {
    drawbot.FillRect(cell, {0, 1, 0, 1});
  });
  const auto widget = Show(tree);
  host.TakeFailures();
  const Picture picture(*widget);
  EXPECT_EQ(host.TakeFailures().size(), 1U);
  EXPECT_TRUE(picture.IsAll(FindCellInPicture(*widget, 0, 0), QColor(0, 255, 0)));
}

TEST_F(PlainPicture, WhatACellDrawsBeyondItsEdgesIsCutOff) {
  const auto tree = MakeTree(2);
  Draw(*tree, [](qelui::Drawbot& drawbot, Tree::Row*, std::size_t column, const qelui::Rect& cell) {
    if (column != 2) return;
    drawbot.FillRect({cell.left - 50, cell.top - 50, cell.width + 100, cell.height + 100},
                     {0, 1, 0, 1});
  });
  const auto widget = Show(tree);
  const Picture picture(*widget);
  const QColor row = ToQColor(GetThemeColors().rowBackground);
  EXPECT_TRUE(picture.IsAll(FindCellInPicture(*widget, 0, 1), QColor(0, 255, 0)));
  EXPECT_TRUE(picture.IsAll(FindCellInPicture(*widget, 0, 0), row));
  EXPECT_TRUE(picture.IsAll(FindCellInPicture(*widget, 0, 2), row));
}

TEST_F(PlainPicture, CellsMeetWithoutASeamAtEveryPixelRatio) {
  const auto tree = MakeTree(20, 47.5F);
  for (std::uint32_t id = 1; id <= 3; ++id) {
    tree->GetHeaderRow()->SetColumnWidth(id, 101.0F + static_cast<float>(id) * 22);
  }
  Draw(*tree, [](qelui::Drawbot& drawbot, Tree::Row*, std::size_t, const qelui::Rect& cell) {
    drawbot.FillRect(cell, {0, 1, 0, 1});
  });
  const auto widget = Show(tree);
  widget->horizontalScrollBar()->setValue(13);
  widget->verticalScrollBar()->setValue(33);
  for (const qreal ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    QWidget& surface = *widget->viewport();
    QImage image((QSizeF(surface.size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    surface.render(&image);
    int otherCount = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x)
        otherCount += image.pixel(x, y) == qRgb(0, 255, 0) ? 0 : 1;
    }
    EXPECT_EQ(otherCount, 0) << ratio;
  }
}

TEST_F(PlainPicture, CellsAreGivenTheirPlaceInTheControl) {
  const auto tree = MakeTree(2);
  std::vector<qelui::Rect> cells;
  Draw(*tree, [&](qelui::Drawbot&, Tree::Row*, std::size_t, const qelui::Rect& cell) {
    cells.push_back(cell);
  });
  const auto widget = Show(tree);
  cells.clear();
  const Picture picture(*widget);
  ASSERT_EQ(cells.size(), 6U);
  EXPECT_EQ(cells[0], (qelui::Rect{0, kHeaderHeight, 100, 20}));
  EXPECT_EQ(cells[4], (qelui::Rect{100, kHeaderHeight + 20, 100, 20}));
}

TEST_F(PlainPicture, ACallbackThatRemovesTheRowsEndsThePaint) {
  const auto tree = MakeTree(5);
  Draw(*tree, [tree = tree.Get()](qelui::Drawbot&, Tree::Row*, std::size_t, const qelui::Rect&) {
    tree->RemoveAllRows(false, true);
  });
  const auto widget = Show(tree);
  AppendRows(*tree, 5);
  const Picture picture(*widget);
  EXPECT_EQ(tree->CountRows(), 0U);
}

}  // namespace
}  // namespace standalone
