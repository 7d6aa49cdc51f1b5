#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "host/MZ/Messages.h"
#include "table/Broadcast.h"
#include "table/DataMutexLock.h"
#include "table/SelectionChangedMessage.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

using qelmediatypes::TickTime;

// Weakly, like the function that draws cells.
void SequenceIndexTree::SetUpSelection() {
  const qelcore::WeakRef<SequenceIndexTree> weakTree(this);
  SetRowsSelectionChangedCallback(
      std::make_shared<const RowsSelectionChangedFunction>([weakTree](const std::vector<Row*>&) {
        if (const auto tree = weakTree.Lock()) tree->HandleSelection();
      }));
  SetRowVisibilityChangedCallback(
      std::make_shared<const RowVisibilityChangedFunction>([weakTree](Row* row) {
        if (const auto tree = weakTree.Lock()) tree->NoteRowVisibility(row);
      }));
}

// A hook: nothing depends on which rows are visible.
void SequenceIndexTree::NoteRowVisibility(const Row* row) const {
  if (row != nullptr) static_cast<void>(IsRowVisible(row));
}

void SequenceIndexTree::HandleSelection() {
  const std::vector<std::size_t> positions = GetSelectedPositions();
  const bool isTellingTimeline = isUpdatingTimelineSelection;
  // Taken before the player moves, as those who hear of that may bring other rows.
  std::vector<MZ::ActivatedTrackItem> items;
  if (isTellingTimeline) items = GetTrackItems(positions);
  if (isOnDuty && positions.size() == 1) {
    if (const auto start = GetStart(positions.front())) MovePlayer(*start);
  }
  if (isTellingTimeline) {
    Broadcast(MZ::kStation_TrackItemActivation,
              std::make_shared<const MZ::TrackItemActivationMessage>(std::move(items)));
  }
  BroadcastCounts();
}

std::vector<std::size_t> SequenceIndexTree::GetSelectedPositions() const {
  const std::vector<Row*> rows = GetSelectedRows();
  std::vector<std::size_t> positions(rows.size());
  std::ranges::transform(rows, positions.begin(), [this](const Row* row) { return GetRowIndex(row); });
  // Hosts name rows from the top as a rule; looking is one pass over what may be a million rows.
  if (!std::ranges::is_sorted(positions)) std::ranges::sort(positions);
  return positions;
}

// These two copy what they need under the mutex: on the main thread the lists could be read without it,
// but nothing here depends on that.
std::vector<MZ::ActivatedTrackItem> SequenceIndexTree::GetTrackItems(
    const std::vector<std::size_t>& positions) {
  const DataMutexLock lock(dataMutex);
  std::vector<MZ::ActivatedTrackItem> items;
  items.reserve(positions.size());
  for (const std::size_t position : positions) {
    const TrackItemRowData* const data = FindRowData(position);
    if (data != nullptr) items.push_back({data->trackItem, data->sequence});
  }
  return items;
}

std::optional<TickTime> SequenceIndexTree::GetStart(std::size_t position) {
  const DataMutexLock lock(dataMutex);
  const TrackItemRowData* const data = FindRowData(position);
  return data == nullptr ? std::nullopt : std::optional(data->start);
}

// Counted anew: what the listeners of earlier broadcasts did counts, too.
void SequenceIndexTree::BroadcastCounts() const {
  const std::size_t selectedCount = GetSelectedRows().size();
  Broadcast(station.GetID(),
            std::make_shared<const TreeViewItemsSelectionChangedMessage>(selectedCount, CountRows()));
}

}  // namespace Vantrel
