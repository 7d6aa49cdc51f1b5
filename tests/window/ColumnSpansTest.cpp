#include "standalone/window/ColumnSpans.h"

#include <gtest/gtest.h>

#include "support/SteppedHost.h"

namespace standalone {
namespace {

using HeaderRow = qelui::controls::UI_MultiColumnTreeHeaderRow;

class Spans : public testing::Test {
 protected:
  Spans() { headerRow->SetColumnWidth(HeaderRow::kHierarchyColumnID, 0); }
  void Append(std::uint32_t id, float width) {
    headerRow->AppendColumn({}, id);
    headerRow->SetColumnWidth(id, width);
  }
  const std::vector<ColumnSpan>& Read() {
    spans.Read(*headerRow);
    return spans.GetShown();
  }

  SteppedHost host;
  qelcore::Ref<HeaderRow> headerRow{new HeaderRow(nullptr)};
  ColumnSpans spans;
};

TEST_F(Spans, ColumnsStandSideBySideWithoutThoseThatHaveNoWidth) {
  Append(7, 30);
  Append(8, 0);
  Append(9, 10);
  EXPECT_EQ(Read(), (std::vector<ColumnSpan>{{1, 7, 0, 30}, {3, 9, 30, 10}}));
  EXPECT_EQ(spans.GetTotalWidth(), 40);
}

TEST_F(Spans, FractionsNeverAddUp) {
  for (std::uint32_t id = 1; id <= 4; ++id) Append(id, 10.25F);
  EXPECT_EQ(Read().back().left, 31);
  EXPECT_EQ(spans.GetTotalWidth(), 41);
}

TEST_F(Spans, AColumnIsFoundAtEachOfItsPixels) {
  Append(7, 30);
  Append(8, 10);
  Read();
  EXPECT_EQ(spans.FindAt(-1), std::nullopt);
  EXPECT_EQ(spans.FindAt(0), 0U);
  EXPECT_EQ(spans.FindAt(29), 0U);
  EXPECT_EQ(spans.FindAt(30), 1U);
  EXPECT_EQ(spans.FindAt(39), 1U);
  EXPECT_EQ(spans.FindAt(40), std::nullopt);
}

TEST_F(Spans, AColumnIsFoundByItsDisplayIndex) {
  Append(7, 30);
  Read();
  EXPECT_EQ(spans.FindColumn(1), 0U);
  EXPECT_EQ(spans.FindColumn(0), std::nullopt);
}

TEST_F(Spans, HugeWidthsStayCountable) {
  for (std::uint32_t id = 1; id <= 1100; ++id) Append(id, 1e30F);
  Read();
  EXPECT_EQ(spans.GetTotalWidth(), 1'000'000'000);
}

}  // namespace
}  // namespace standalone
