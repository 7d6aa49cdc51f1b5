#include <QString>
#include <cstdint>

#include "common/Stage.h"
#include "module/SearchTexts.h"
#include "window/QtTable.h"
#include "window/ShownTable.h"

namespace {

using benchmarks::Inputs;
using benchmarks::kSevenLetters;
using benchmarks::QtDirectFilter;
using benchmarks::QtFilter;
using benchmarks::QtTable;
using benchmarks::SearchTexts;
using benchmarks::ShownTable;

// The whole of what follows a keystroke, off the main thread: the sequence is visited, all rows are
// built, ordered, numbered and marked anew, and those that contain the text are stored to be shown.
void Refresh(benchmark::State& state) {
  ShownTable& table = ShownTable::Get(static_cast<std::size_t>(state.range()));
  SteppedHost& host = Inputs::Get().GetHost();
  for (auto _ : state) {
    state.PauseTiming();
    table.GetTree().SetSearchText(qelcore::UTF8String(kSevenLetters));
    state.ResumeTiming();
    host.GetPool().RunUntilEmpty();
    state.PauseTiming();
    host.Settle();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() *
                          static_cast<std::int64_t>(table.GetTree().GetFullList().size()));
  table.GetTree().SetSearchText({});
  table.Settle();
}

// A plain table's filter, which rebuilds nothing: the texts stand ready.
template <typename Filter>
void RefreshQt(benchmark::State& state) {
  QtTable table(
      SearchTexts(ShownTable::Get(static_cast<std::size_t>(state.range())).GetTree().GetFullList()));
  Filter filter(table, kSevenLetters);
  for (auto _ : state) {
    table.Reset();
    benchmark::DoNotOptimize(filter.rowCount());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(table.rowCount()));
}

bool RegisterRefresh(const char* name, benchmarks::StageFunction refresh) {
  benchmark::RegisterBenchmark(name, refresh)
      ->Arg(100'000)
      ->Arg(1'000'000)
      ->Unit(benchmark::kMillisecond);
  return true;
}

const bool isRegistered = RegisterRefresh("refresh", Refresh) &&
                          RegisterRefresh("refresh_qt", RefreshQt<QtFilter>) &&
                          RegisterRefresh("refresh_qt_direct", RefreshQt<QtDirectFilter>);

}  // namespace
