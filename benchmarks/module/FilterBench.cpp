#include <cstring>
#include <string>
#include <vector>

#include "common/Inputs.h"
#include "common/Stage.h"
#include "data/FilterGroups.h"
#include "data/FilterPredicates.h"

namespace {

using benchmarks::Inputs;
using Vantrel::FilterGroup;
using Vantrel::TrackItemDataList;

constexpr bool kIsKeepingGaps = true;

const TrackItemDataList& GetRows(const benchmark::State& state) {
  return Inputs::Get().GetRows(static_cast<std::size_t>(state.range()));
}

void CountRows(benchmark::State& state, const TrackItemDataList& rows) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(rows.size()));
}

// The list that comes out dies outside the measured part.
void Filter(benchmark::State& state, const std::vector<FilterGroup>& groups) {
  const TrackItemDataList& rows = GetRows(state);
  for (auto _ : state) {
    auto kept = Vantrel::FilterTrackItemDataList(rows, groups, kIsKeepingGaps);
    benchmark::DoNotOptimize(kept);
    state.PauseTiming();
    kept.reset();
    state.ResumeTiming();
  }
  CountRows(state, rows);
}

void Copy(benchmark::State& state) {
  Filter(state, {});
}

void CopyBytes(benchmark::State& state) {
  const TrackItemDataList& rows = GetRows(state);
  const std::size_t size = rows.size() * sizeof(rows.front());
  std::vector<char> bytes(size);
  for (auto _ : state) {
    std::memcpy(bytes.data(), static_cast<const void*>(rows.data()), size);
    benchmark::ClobberMemory();
  }
  CountRows(state, rows);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}

template <std::uint32_t id>
void FilterBy(benchmark::State& state) {
  FilterGroup group;
  group.predicates.push_back(Vantrel::GetFilterPredicates().at(id));
  Filter(state, {group});
}

// Every filter asks every row, whatever the others say: the most that any choice of filters can cost.
void AskEverything(benchmark::State& state) {
  const TrackItemDataList& rows = GetRows(state);
  std::size_t passes = 0;
  for (auto _ : state) {
    for (const auto& row : rows) {
      for (const auto& [id, predicate] : Vantrel::GetFilterPredicates()) passes += predicate(row);
    }
    benchmark::DoNotOptimize(passes);
  }
  CountRows(state, rows);
}

bool RegisterFilters() {
  using benchmarks::RegisterStage;
  return RegisterStage("filter/video", FilterBy<0>) && RegisterStage("filter/audio", FilterBy<1>) &&
         RegisterStage("filter/graphics", FilterBy<2>) &&
         RegisterStage("filter/offline-media", FilterBy<3>) &&
         RegisterStage("filter/effects", FilterBy<4>) &&
         RegisterStage("filter/effects-missing", FilterBy<5>) &&
         RegisterStage("filter/fonts-missing", FilterBy<6>) &&
         RegisterStage("filter/transitions", FilterBy<7>) &&
         RegisterStage("filter/speed-change", FilterBy<8>) &&
         RegisterStage("filter/nested-sequence", FilterBy<9>) &&
         RegisterStage("filter/disabled-or-muted-tracks", FilterBy<10>) &&
         RegisterStage("filter/disabled-clips", FilterBy<11>) &&
         RegisterStage("filter/multicam", FilterBy<12>) &&
         RegisterStage("filter/still-image", FilterBy<14>) &&
         RegisterStage("filter/all", AskEverything);
}

const bool isRegistered = benchmarks::RegisterStage("copy", Copy) &&
                          benchmarks::RegisterStage("copy_memcpy", CopyBytes) && RegisterFilters();

}  // namespace
