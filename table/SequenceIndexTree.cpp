#include "table/SequenceIndexTree.h"

#include <type_traits>
#include <utility>

#include "data/GenerateFilters.h"
#include "table/ColumnLayout.h"
#include "table/DataMutexLock.h"
#include "table/HeaderRow.h"

namespace Vantrel {

namespace {

// One build at a time, in the order asked for.
constexpr int kConcurrentBuilds = 1;

constexpr bool kWantsKeyboardFocus = true;
constexpr bool kIsSelectingSeveralRows = true;
constexpr bool kIsMovingColumns = true;
constexpr bool kIncludingFirstColumn = false;
constexpr bool kIsSortIndicatorShown = false;

}  // namespace

SequenceIndexTree::SequenceIndexTree(std::weak_ptr<qelcore::messaging::Listener> owner, unsigned style,
                                     float rowHeight)
    : UI_MultiColumnTree(style, rowHeight),
      owner(std::move(owner)),
      refreshExecutor(qelcore::threads::CreateQueueBasedSubExecutor(
          qelcore::threads::GetCPUBoundExecutor(), kConcurrentBuilds)) {
  SetWantsKeyboardFocus(kWantsKeyboardFocus);
  SetUpHeaderRow();
  SetUpDrawing();
  SetUpSelection();
}

SequenceIndexTree::~SequenceIndexTree() = default;

void SequenceIndexTree::SetUpHeaderRow() {
  SetSupportMultipleSelections(kIsSelectingSeveralRows);
  const auto headerRow = qelcore::Ref(new SequenceIndexTreeMultiColumnTreeHeaderRow(this));
  SetHeaderRow(headerRow);
  ReapplyColumnLayout(headerRow);
  headerRow->SetAllowColumnMovingByUser(kIsMovingColumns, kIncludingFirstColumn);
  headerRow->ShowSortIndicator(kIsSortIndicatorShown);
}

void SequenceIndexTree::ReapplyColumnLayout(
    qelcore::Ref<qelui::controls::UI_MultiColumnTreeHeaderRow> headerRow) {
  ApplyColumnLayout(std::move(headerRow));
}

void SequenceIndexTree::SetSequence(const qelcore::Ref<BE::ISequence>& newSequence) {
  // The one before is let go of outside the lock: its destruction may call into the host.
  qelcore::Ref<BE::ISequence> previous = newSequence;
  {
    const DataMutexLock lock(dataMutex);
    std::swap(sequence, previous);
  }
  RefreshDataListsAndTreeViewAsync();
  AttachOwnerToPlayer();
}

// Only the main thread, which is the caller's, changes the sequence.
qelcore::Ref<BE::ISequence> SequenceIndexTree::GetSequence() const {
  return sequence;
}

void SequenceIndexTree::SetOptions(const MZ::SequenceIndex::Options& newOptions) {
  // Made before the lock, so that nothing inside it can fail half-way: options and groups always
  // belong together. Those before are let go of after it.
  std::vector<FilterGroup> groups = GenerateFiltersFromOptions(newOptions);
  MZ::SequenceIndex::Options copy = newOptions;
  static_assert(std::is_nothrow_swappable_v<MZ::SequenceIndex::Options>);
  const DataMutexLock lock(dataMutex);
  std::swap(options, copy);
  filterGroups.swap(groups);
  shortGapThreshold = options.shortGapThreshold;
  RefreshDataListsAndTreeViewAsync();
}

void SequenceIndexTree::SetSearchText(const qelcore::UTF8String& loweredText) {
  const DataMutexLock lock(dataMutex);
  searchText = loweredText;
  RefreshDataListsAndTreeViewAsync();
}

}  // namespace Vantrel
