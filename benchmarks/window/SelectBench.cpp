#include <cstddef>
#include <cstdint>

#include "common/Stage.h"
#include "window/ShownTable.h"

namespace {

using benchmarks::ShownTable;

/// The rows that are selected, all over the table.
constexpr std::size_t kSelected = 1000;

// A thousand rows are selected one by one, named again as a list, and deselected.
void Select(benchmark::State& state) {
  ShownTable& table = ShownTable::Get(static_cast<std::size_t>(state.range()));
  auto& tree = table.GetTree();
  const std::size_t step = std::max<std::size_t>(table.CountRows() / kSelected, 1);
  for (auto _ : state) {
    for (std::size_t i = 0; i < kSelected; ++i) {
      if (auto* const row = tree.GetRow(i * step)) tree.SelectRow(row, true);
    }
    benchmark::DoNotOptimize(tree.GetSelectedRows());
    tree.DeselectAllRows(true);
    table.GetWidget().Follow();
  }
  table.Settle();
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kSelected));
}

// All rows are selected, and then only one, by keys and pointer: the module hears of both.
void SelectAll(benchmark::State& state) {
  ShownTable& table = ShownTable::Get(static_cast<std::size_t>(state.range()));
  auto& control = table.GetTree().GetControl();
  for (auto _ : state) {
    control.SelectAll();
    control.Click(table.CountRows() / 2, 0);
    table.GetWidget().Follow();
  }
  table.GetTree().DeselectAllRows(true);
  table.Settle();
}

void Scroll(benchmark::State& state) {
  ShownTable& table = ShownTable::Get(static_cast<std::size_t>(state.range()));
  auto& tree = table.GetTree();
  constexpr std::size_t kStride = 617'843;
  std::size_t position = 0;
  for (auto _ : state) {
    position = (position + kStride) % table.CountRows();
    tree.ScrollRowIntoView(tree.GetRow(position), true, true, true);
    table.GetWidget().Follow();
  }
  table.Settle();
}

const bool isRegistered = benchmarks::RegisterStage("select", Select) &&
                          benchmarks::RegisterStage("select_all", SelectAll) &&
                          benchmarks::RegisterStage("scroll", Scroll);

}  // namespace
