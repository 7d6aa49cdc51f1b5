#include <malloc.h>

#include <cstddef>
#include <cstdint>
#include <unordered_set>

#include "common/Inputs.h"
#include "common/Stage.h"
#include "data/TrackItemRowData.h"
#include "module/SearchTexts.h"
#include "scaling/AllocationWatch.h"
#include "table/SequenceIndexTree.h"
#include "window/QtTable.h"

/// Bytes of a row, not times.
namespace {

using benchmarks::Inputs;
using benchmarks::SearchTexts;
using qelcore::UTF8String;
using Vantrel::TrackItemDataList;
using Vantrel::TrackItemRowData;

/// Bytes that the system's allocator holds for the program, with what it adds to each block.
std::size_t CountHeldBytes() {
  const auto held = mallinfo2();
  return held.uordblks + held.hblkhd;
}

const TrackItemDataList& GetRows(const benchmark::State& state) {
  return Inputs::Get().GetRows(static_cast<std::size_t>(state.range()));
}

void Report(benchmark::State& state, const char* name, std::size_t bytes, std::size_t rows) {
  state.counters[name] = static_cast<double>(bytes) / static_cast<double>(rows);
}

/// What distinct texts take: their bytes, a count and a size, in blocks as the host's recycling
/// allocator rounds them.
class TextBytes {
 public:
  void Add(const UTF8String& text) {
    constexpr std::size_t kHeader = 8;
    constexpr std::size_t kStep = 16;
    if (text.Empty() || !known.insert(text.View().data()).second) return;
    bytes += (text.Size() + kHeader + kStep - 1) / kStep * kStep;
  }
  std::size_t Get() const noexcept { return bytes; }

 private:
  std::unordered_set<const char*> known;
  std::size_t bytes = 0;
};

// A full list as if it shared no text with the timeline it came from: its rows, and each text once that
// they share.
void Rows(benchmark::State& state) {
  const TrackItemDataList& rows = GetRows(state);
  TextBytes texts;
  for (auto _ : state) {
    for (const TrackItemRowData& row : rows) {
      for (const UTF8String* const text :
           {&row.name, &row.codec, &row.sourceClipName, &row.proxyPath, &row.proxyStatus,
            &row.effectsMissing, &row.effects, &row.transitions, &row.fontsUsed, &row.fontsMissing}) {
        texts.Add(*text);
      }
    }
  }
  Report(state, "bytes", rows.size() * sizeof(rows.front()) + texts.Get(), rows.size());
}

// The texts that a search looks at, as a plain table of the toolkit's keeps them.
void QtRows(benchmark::State& state) {
  const SearchTexts texts(GetRows(state));
  for (auto _ : state) {
    const std::size_t before = CountHeldBytes();
    const benchmarks::QtTable table(texts);
    Report(state, "bytes", CountHeldBytes() - before, texts.CountRows());
  }
}

// What a table takes beside its timeline, gaps included: at most while it is built anew and the rows
// before are still shown, and afterwards.
void Refresh(benchmark::State& state) {
  const auto& sequence = Inputs::Get().GetSequence(static_cast<std::size_t>(state.range()));
  SteppedHost& host = Inputs::Get().GetHost();
  for (auto _ : state) {
    const std::size_t before = CountHeldBytes();
    const auto tree = qelcore::Ref(new Vantrel::SequenceIndexTree({}, 0, 18));
    MZ::SequenceIndex::Options options;
    options.isKeepingGaps = true;
    tree->SetOptions(options);
    tree->SetSequence(sequence);
    host.Settle();
    const std::size_t rows = tree->CountRows();
    const std::size_t held = CountHeldBytes() - before;
    Report(state, "bytes", held, rows);
    const scaling::AllocationWatch watch;
    tree->RefreshDataListsAndTreeViewAsync();
    host.Settle();
    Report(state, "peak_bytes", held + watch.Take().peakBytes, rows);
  }
}

bool RegisterCount(const char* name, benchmarks::StageFunction count) {
  benchmark::RegisterBenchmark(name, count)
      ->Arg(100'000)
      ->Arg(1'000'000)
      ->Iterations(1)
      ->Unit(benchmark::kMillisecond);
  return true;
}

const bool isRegistered = RegisterCount("memory/row", Rows) && RegisterCount("memory/row_qt", QtRows) &&
                          RegisterCount("memory/table", Refresh);

}  // namespace
