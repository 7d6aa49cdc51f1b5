#include <cstddef>

#include "common/Inputs.h"
#include "common/Stage.h"
#include "host/qelcore/UTF8String.h"
#include "table/SequenceIndexTree.h"

namespace {

using benchmarks::Inputs;

constexpr float kRowHeight = 18;

/// A table that shows a sequence, and of it the gaps and the rows that were searched for.
class SearchedTable {
 public:
  explicit SearchedTable(std::size_t clips) {
    MZ::SequenceIndex::Options options;
    options.isKeepingGaps = true;
    tree->SetOptions(options);
    tree->SetSequence(Inputs::Get().GetSequence(clips));
    tree->SetSearchText(qelcore::UTF8String(benchmarks::kSevenLetters));
    host.Settle();
  }

  /// From the visit of the sequence to the lists that the table shows next.
  void Build() {
    tree->RefreshDataListsAndTreeViewAsync();
    host.GetPool().RunUntilEmpty();
  }

  /// What the main thread does with the lists, and the end of the lists before.
  void Apply() { host.Settle(); }

  std::size_t CountRows() const { return tree->GetFullList().size(); }

 private:
  SteppedHost& host = Inputs::Get().GetHost();
  qelcore::Ref<Vantrel::SequenceIndexTree> tree{new Vantrel::SequenceIndexTree({}, 0, kRowHeight)};
};

void BuildTable(benchmark::State& state) {
  SearchedTable table(static_cast<std::size_t>(state.range()));
  for (auto _ : state) {
    table.Build();
    state.PauseTiming();
    table.Apply();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(table.CountRows()));
}

const bool isRegistered = benchmarks::RegisterStage("build", BuildTable);

}  // namespace
