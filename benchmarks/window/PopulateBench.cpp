#include <QAccessible>
#include <cstdint>

#include "common/Stage.h"
#include "window/ShownTable.h"

namespace {

using benchmarks::Inputs;
using benchmarks::ShownTable;

// What the main thread does once a build is done, up to where the window only has to be painted. The
// build, and the death of the lists before, run elsewhere.
void Populate(benchmark::State& state) {
  ShownTable& table = ShownTable::Get(static_cast<std::size_t>(state.range()));
  SteppedHost& host = Inputs::Get().GetHost();
  QAccessible::setActive(true);
  for (auto _ : state) {
    state.PauseTiming();
    table.GetTree().RefreshDataListsAndTreeViewAsync();
    host.GetPool().RunUntilEmpty();
    state.ResumeTiming();
    host.GetMainQueue().RunUntilEmpty();
    table.GetWidget().Follow();
    state.PauseTiming();
    table.Settle();
    state.ResumeTiming();
  }
  QAccessible::setActive(false);
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(table.CountRows()));
}

// A build takes a hundred times as long as what is measured, so that there can't be many.
bool RegisterPopulate() {
  constexpr std::int64_t kRowsBuilt = 2'000'000;
  for (const std::size_t size : benchmarks::kSizes) {
    const auto clips = static_cast<std::int64_t>(size);
    benchmark::RegisterBenchmark("populate", Populate)
        ->Arg(clips)
        ->Iterations(std::min<std::int64_t>(kRowsBuilt / clips, 100))
        ->Unit(benchmark::kMillisecond);
  }
  return true;
}

const bool isRegistered = RegisterPopulate();

}  // namespace
