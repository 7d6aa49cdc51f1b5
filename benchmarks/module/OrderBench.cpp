#include <algorithm>
#include <compare>
#include <cstdint>
#include <vector>

#include "common/Inputs.h"
#include "common/Stage.h"
#include "host/BE/MediaTypes.h"
#include "table/RowOrder.h"

namespace {

using benchmarks::Inputs;

// Which row stands where, as the keys of rows tell.
void FindOrder(benchmark::State& state) {
  const auto visited = Inputs::Get().CollectRows(static_cast<std::size_t>(state.range()));
  for (auto _ : state) {
    const auto keys = Vantrel::FindRowOrder(visited);
    benchmark::DoNotOptimize(keys.data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(visited.size()));
}

// The same, and all rows moved to where they belong and numbered.
void OrderAndNumber(benchmark::State& state) {
  const auto visited = Inputs::Get().CollectRows(static_cast<std::size_t>(state.range()));
  for (auto _ : state) {
    state.PauseTiming();
    auto rows = visited;
    state.ResumeTiming();
    Vantrel::OrderAndNumberRows(rows);
    benchmark::DoNotOptimize(rows.data());
    state.PauseTiming();
    rows = {};
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(visited.size()));
}

// As a plain program would order the same rows: by nothing but keys, which it already has.
struct Key {
  std::int64_t start;
  std::int64_t kind;
  std::int64_t track;
  std::int64_t position;
  auto operator<=>(const Key&) const = default;
};
static_assert(sizeof(Key) == 32);

std::vector<Key> MakeKeys(std::size_t clips) {
  std::vector<Key> keys;
  for (const auto& row : Inputs::Get().CollectRows(clips)) {
    keys.push_back({row.start.GetTicks(), row.mediaType == BE::kMediaType_Video ? 0 : 1,
                    static_cast<std::int64_t>(row.trackIndex), static_cast<std::int64_t>(keys.size())});
  }
  return keys;
}

void SortKeys(benchmark::State& state) {
  const std::vector<Key> visited = MakeKeys(static_cast<std::size_t>(state.range()));
  for (auto _ : state) {
    state.PauseTiming();
    auto keys = visited;
    state.ResumeTiming();
    std::sort(keys.begin(), keys.end());
    benchmark::DoNotOptimize(keys.data());
    state.PauseTiming();
    keys = {};
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(visited.size()));
}

const bool isRegistered = benchmarks::RegisterStage("order", FindOrder) &&
                          benchmarks::RegisterStage("order_and_number", OrderAndNumber) &&
                          benchmarks::RegisterStage("order_baseline", SortKeys);

}  // namespace
