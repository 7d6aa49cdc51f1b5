#include "budgets/Stages.h"

#include <cstdint>
#include <utility>

#include "budgets/Input.h"
#include "budgets/InstructionCount.h"
#include "data/FilterGroups.h"
#include "data/FilterPredicates.h"
#include "data/SearchPredicate.h"
#include "data/ShortGaps.h"
#include "generator/TimelineFile.h"
#include "host/qelui/Events.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/PreparedDocument.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "standalone/toolkit/TreeControl.h"
#include "support/Process.h"

namespace budgets {
namespace {

using qelmediatypes::TickTime;
using Vantrel::TrackItemDataList;

constexpr bool kIsKeepingGaps = true;

void Import(std::size_t clips) {
  const process::Folder folder;
  const auto file = folder / "cut.otio";
  generator::WriteTimeline(file, {.clips = clips});
  const InstructionCount count;
  standalone::ReadTimelineFile(file);
}

void Publish(std::size_t clips) {
  SteppedHost host;
  standalone::DocumentDraft draft = generator::MakeDocument({.clips = clips});
  const InstructionCount count;
  host->GetProject().AddDocument(standalone::PreparedDocument(std::move(draft)));
}

void Collect(std::size_t clips) {
  const OpenSequence input(clips);
  // The first time looks for the machine's fonts.
  input.CollectRows();
  const InstructionCount count;
  input.CollectRows();
}

void Order(std::size_t clips) {
  const OpenSequence input(clips);
  TrackItemDataList rows = input.CollectRows();
  const InstructionCount count;
  Vantrel::OrderAndNumberRows(rows);
}

void MarkShortGaps(std::size_t clips) {
  constexpr std::int32_t kThreshold = 5;
  const OpenSequence input(clips);
  TrackItemDataList rows = input.MakeRows();
  const InstructionCount count;
  Vantrel::MarkShortGaps(rows, kThreshold);
}

void Search(std::size_t clips, const char* wanted) {
  const OpenSequence input(clips);
  const TrackItemDataList rows = input.MakeRows();
  Vantrel::FilterGroup group;
  group.predicates.push_back(Vantrel::MakeSearchPredicate(qelcore::UTF8String(wanted)));
  const std::vector groups{std::move(group)};
  const InstructionCount count;
  Vantrel::FilterTrackItemDataList(rows, groups, kIsKeepingGaps);
}

/// Every filter asks every row.
void Filter(std::size_t clips) {
  const OpenSequence input(clips);
  const TrackItemDataList rows = input.MakeRows();
  const auto& predicates = Vantrel::GetFilterPredicates();
  std::size_t passes = 0;
  const InstructionCount count;
  for (const auto& [id, predicate] : predicates) {
    for (const auto& row : rows) passes += predicate(row) ? 1 : 0;
  }
}

/// From the visit of the sequence to the lists that the table shows next.
void Build(std::size_t clips) {
  OpenTable table(clips);
  table.tree->SetSearchText(qelcore::UTF8String("terview"));
  const InstructionCount count;
  table.input.host.GetPool().RunUntilEmpty();
}

/// What the main thread does with these lists.
void Populate(std::size_t clips) {
  OpenTable table(clips);
  table.tree->RefreshDataListsAndTreeViewAsync();
  table.input.host.GetPool().RunUntilEmpty();
  const InstructionCount count;
  table.input.host.GetMainQueue().RunUntilEmpty();
}

void PaintViewport(std::size_t clips) {
  OpenTable table(clips);
  auto& tree = *table.tree;
  tree.ScrollRowIntoView(tree.GetRow(tree.CountRows() / 2), true, true, true);
  const std::size_t columns = tree.GetHeaderRow()->GetCountOfColumns();
  standalone::RecordingDrawbot drawbot;
  const InstructionCount count;
  for (auto* const row : tree.GetVisibleRows()) {
    for (std::size_t i = 0; i < columns; ++i) {
      tree.DrawCellOfRow(drawbot, row, i, {0, 0, 100, OpenTable::kRowHeight});
    }
  }
}

/// All over the timeline.
void FollowPlayhead(std::size_t clips) {
  constexpr std::int64_t kStops = 1000;
  constexpr std::int64_t kStride = 617;
  OpenTable table(clips);
  const std::int64_t step = table.tree->GetFilteredList().back().start.GetTicks() / kStops;
  const InstructionCount count;
  for (std::int64_t i = 1; i <= kStops; ++i) {
    table.tree->FollowPlayerPosition(TickTime(i * kStride % kStops * step));
  }
}

void SelectThousandRows(std::size_t clips) {
  OpenTable table(clips);
  auto& control = table.tree->GetControl();
  control.Click(0, 0);
  const InstructionCount count;
  control.Click(999, qelui::ui::kModifierShift);
  table.input.host.Settle();
}

void ExportTable(std::size_t clips) {
  const process::Folder folder;
  OpenTable table(clips);
  const qelcore::UTF8String file((folder / "index.csv").native());
  const InstructionCount count;
  table.tree->ExportSequenceIndexToCSV(file, false);
}

}  // namespace

const std::vector<Stage>& GetStages() {
  static const std::vector<Stage> stages = {
      {"import", 1000, Import},
      {"publish", 4000, Publish},
      {"collect rows", 4000, Collect},
      {"order and number", 20000, Order},
      {"mark short gaps", 20000, MarkShortGaps},
      {"search, absent", 10000, [](std::size_t clips) { Search(clips, "zyxwvut"); }},
      {"search, common", 10000, [](std::size_t clips) { Search(clips, "terview"); }},
      {"filters", 4000, Filter},
      {"build", 4000, Build},
      {"populate", 20000, Populate},
      {"paint a viewport", 8000, PaintViewport},
      {"follow the playhead", 4000, FollowPlayhead},
      {"select 1,000 rows", 16000, SelectThousandRows},
      {"export", 1000, ExportTable},
  };
  return stages;
}

}  // namespace budgets
