#include "common/Inputs.h"
#include "common/Stage.h"

namespace {

using benchmarks::Inputs;

// Visiting every item and deriving the texts of its row. The rows die outside the measured part.
void Collect(benchmark::State& state) {
  const auto clips = static_cast<std::size_t>(state.range());
  Inputs::Get().GetSequence(clips);
  std::size_t rowCount = 0;
  for (auto _ : state) {
    auto rows = Inputs::Get().CollectRows(clips);
    rowCount += rows.size();
    state.PauseTiming();
    rows = {};
    state.ResumeTiming();
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(rowCount));
}

const bool isRegistered = benchmarks::RegisterStage("collect", Collect);

}  // namespace
