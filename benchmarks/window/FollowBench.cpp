#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "common/Stage.h"
#include "window/ShownTable.h"

namespace {

using benchmarks::ShownTable;
using qelmediatypes::TickTime;
using Vantrel::TrackItemRowData;

/// Where the playhead goes, one after the other: all over the timeline.
class Positions {
 public:
  explicit Positions(const Vantrel::TrackItemDataList& rows)
      : step(std::max<std::int64_t>(rows.back().start.GetTicks() / kStops, 1)) {}

  TickTime GetNext() {
    constexpr std::int64_t kStride = 617;
    stop = (stop + kStride) % kStops;
    return TickTime(stop * step);
  }

 private:
  static constexpr std::int64_t kStops = 1000;

  std::int64_t step;
  std::int64_t stop = 0;
};

// The rows under the playhead are selected and brought into view, and the window takes it over.
void Follow(benchmark::State& state) {
  ShownTable& table = ShownTable::Get(static_cast<std::size_t>(state.range()));
  Positions positions(table.GetTree().GetFilteredList());
  for (auto _ : state) {
    table.GetTree().FollowPlayerPosition(positions.GetNext());
    table.GetWidget().Follow();
  }
  table.Settle();
}

// The same rows, found by nothing but a look at each.
void Pass(benchmark::State& state) {
  const auto& rows =
      ShownTable::Get(static_cast<std::size_t>(state.range())).GetTree().GetFilteredList();
  Positions positions(rows);
  for (auto _ : state) {
    const TickTime time = positions.GetNext();
    benchmark::DoNotOptimize(std::ranges::count_if(
        rows, [time](const TrackItemRowData& row) { return !(time < row.start) && time < row.end; }));
  }
}

const bool isRegistered =
    benchmarks::RegisterStage("follow", Follow) && benchmarks::RegisterStage("follow_pass", Pass);

}  // namespace
