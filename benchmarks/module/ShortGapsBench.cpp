#include "data/ShortGaps.h"

#include "common/Inputs.h"
#include "common/Stage.h"

namespace {

constexpr std::int32_t kThreshold = 5;

// Marking rows again changes nothing, and costs the same.
void ShortGaps(benchmark::State& state) {
  auto rows = benchmarks::Inputs::Get().GetRows(static_cast<std::size_t>(state.range()));
  for (auto _ : state) {
    Vantrel::MarkShortGaps(rows, kThreshold);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(rows.size()));
}

const bool isRegistered = benchmarks::RegisterStage("short_gaps", ShortGaps);

}  // namespace
