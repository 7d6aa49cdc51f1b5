#include <QHeaderView>
#include <QImage>
#include <QTableView>
#include <cstdint>

#include "common/Stage.h"
#include "window/CellTexts.h"
#include "window/ShownTable.h"

namespace {

using benchmarks::CellTexts;
using benchmarks::ShownTable;

constexpr std::int64_t kFewRows = 1'000;

// The picture of one viewport, whose texts were all seen before.
void Paint(benchmark::State& state, QWidget& viewport) {
  QImage picture(ShownTable::kViewport, QImage::Format_RGB32);
  viewport.render(&picture);
  for (auto _ : state) viewport.render(&picture);
  state.SetItemsProcessed(state.iterations() * CellTexts::kShownRows);
}

ShownTable& GetTable(const benchmark::State& state) {
  return state.range() == kFewRows ? ShownTable::GetBeginning(kFewRows)
                                   : ShownTable::Get(static_cast<std::size_t>(state.range()));
}

void PaintTable(benchmark::State& state) {
  Paint(state, *GetTable(state).GetWidget().viewport());
}

// Each picture shows rows that no other did, as when somebody drags the scroll bar.
void PaintFreshRows(benchmark::State& state) {
  ShownTable& table = GetTable(state);
  QImage picture(ShownTable::kViewport, QImage::Format_RGB32);
  auto& control = table.GetTree().GetControl();
  for (auto _ : state) {
    state.PauseTiming();
    const bool isAtEnd =
        control.GetScrollPosition() + 2 * ShownTable::kViewport.height() > control.GetContentHeight();
    control.ScrollTo(isAtEnd ? 0 : control.GetScrollPosition() + ShownTable::kViewport.height());
    state.ResumeTiming();
    table.GetWidget().viewport()->render(&picture);
  }
  control.ScrollTo(0);
  table.Settle();
  state.SetItemsProcessed(state.iterations() * CellTexts::kShownRows);
}

std::unique_ptr<QTableView> MakeView(CellTexts& texts, ShownTable& table) {
  auto view = std::make_unique<QTableView>();
  view->setShowGrid(false);
  view->setWordWrap(false);
  view->setModel(&texts);
  view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view->setFrameShape(QFrame::NoFrame);
  view->verticalHeader()->hide();
  view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view->verticalHeader()->setDefaultSectionSize(static_cast<int>(ShownTable::kRowHeight));
  view->horizontalHeader()->setMinimumSectionSize(1);
  int section = 0;
  for (const auto& column : table.GetWidget().GetColumns().GetShown()) {
    view->setColumnWidth(section++, column.width);
  }
  view->resize(ShownTable::kViewport);
  view->show();
  table.Settle();
  view->resize(ShownTable::kViewport + view->size() - view->viewport()->size());
  table.Settle();
  return view;
}

void PaintTableView(benchmark::State& state) {
  ShownTable& table = GetTable(state);
  CellTexts texts(table);
  const auto view = MakeView(texts, table);
  Paint(state, *view->viewport());
}

bool RegisterPaint(const char* name, benchmarks::StageFunction paint) {
  benchmark::RegisterBenchmark(name, paint)
      ->Arg(kFewRows)
      ->Arg(1'000'000)
      ->Unit(benchmark::kMillisecond);
  return true;
}

const bool isRegistered = RegisterPaint("paint", PaintTable) &&
                          RegisterPaint("paint_qtableview", PaintTableView) &&
                          RegisterPaint("paint_fresh_rows", PaintFreshRows);

}  // namespace
