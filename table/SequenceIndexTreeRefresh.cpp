#include <chrono>
#include <exception>
#include <utility>

#include "data/RowCollection.h"
#include "data/SearchPredicate.h"
#include "data/ShortGaps.h"
#include "host/BE/MediaTypes.h"
#include "host/qelcore/CountedObject.h"
#include "table/DataMutexLock.h"
#include "table/RowOrder.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

namespace {

using qelcore::utility::WeakBind;
using WeakTree = qelcore::WeakRef<SequenceIndexTree>;
using SharedItemDataList = std::shared_ptr<TrackItemDataList>;

constexpr std::chrono::milliseconds kNoDelay{0};
constexpr unsigned kSoon = 0;
constexpr bool kAlsoInNestedLoops = true;

/// The next build is expected to make as many rows as the last, and one in so many more: growing a list
/// of a million rows while it is filled costs as much as filling it.
constexpr std::size_t kMoreRowsFraction = 64;

constexpr bool kIsNotifying = true;
constexpr bool kIsRedrawing = true;
constexpr bool kIsVisible = true;
constexpr bool kIsDeferringLayout = true;
constexpr bool kIsAligningToTop = true;
constexpr bool kIsImmediate = true;

/// Holds a flag for its lifetime.
class FlagUntilEnd {
 public:
  explicit FlagUntilEnd(bool& flag) : flag(flag) { flag = true; }
  ~FlagUntilEnd() { flag = false; }
  FlagUntilEnd(const FlagUntilEnd&) = delete;
  FlagUntilEnd& operator=(const FlagUntilEnd&) = delete;

 private:
  bool& flag;
};

// Exchanges the shown rows for the next ones, if there are any; returns the list that now holds the
// rows shown before.
SharedItemDataList TakeNextList(SharedItemDataList& next, TrackItemDataList& current) noexcept {
  if (next != nullptr) current.swap(*next);
  return std::exchange(next, nullptr);
}

// Letting go of a million rows takes tens of milliseconds, which the main thread does not have.
void LetDieOnPool(SharedItemDataList fullList, SharedItemDataList filteredList) {
  try {
    qelcore::threads::GetCPUBoundExecutor()->Submit(
        [fullList = std::move(fullList), filteredList = std::move(filteredList)] {});
  } catch (const std::exception&) {
    // Not queued: they have died here, which is only slower.
  }
}

FilterGroup MakeSearchGroup(const qelcore::UTF8String& loweredText) {
  FilterGroup group;
  group.kind = kFilterGroupKind_Any;
  group.predicates.push_back(MakeSearchPredicate(loweredText));
  return group;
}

}  // namespace

void SequenceIndexTree::RefreshDataListsAndTreeViewAsync() {
  const qelcore::Ref<SequenceIndexTree> self(this);
  const DataMutexLock lock(dataMutex);
  refreshFuture = {};
  auto build = WeakBind(&SequenceIndexTree::BuildNextItemDataLists, WeakTree(self));
  auto update = WeakBind(&SequenceIndexTree::UpdateTreeRows, WeakTree(self));
  const auto future = qelcore::async::AsyncWithExecutorAndContinuationExecutorAndDelay(
      refreshExecutor, kNoDelay, refreshExecutor, std::move(build));
  refreshFuture = future;
  // A failed build has stored nothing, but lists of an earlier one may still wait to be shown. Reading
  // the outcome passes the failure on into the continuation's own result, which nobody reads, so that
  // it ends in the host's log.
  future.MakeContinuation([update = std::move(update)](const qelcore::async::Future<void>& built,
                                                       qelcore::async::Promise<void>&) {
    update();
    built.Get();
  });
}

void SequenceIndexTree::BuildNextItemDataLists() {
  SharedItemDataList fullList = MakeFullList();
  SharedItemDataList filteredList = MakeFilteredList(*fullList);
  LatestEnds latestEnds(*filteredList);
  StoreNextItemDataLists(std::move(fullList), std::move(filteredList), std::move(latestEnds));
}

TrackItemDataList SequenceIndexTree::CollectRawList() {
  qelcore::Ref<BE::ISequence> visited;
  {
    const DataMutexLock lock(dataMutex);
    visited = sequence;
  }
  TrackItemDataList rawList;
  rawList.reserve(expectedRows);
  CollectRows(visited, {BE::kMediaType_Video, BE::kMediaType_Audio}, rawList);
  expectedRows = rawList.size() + rawList.size() / kMoreRowsFraction;
  return rawList;
}

SequenceIndexTree::SharedItemDataList SequenceIndexTree::MakeFullList() {
  TrackItemDataList rows = CollectRawList();
  bool isKeepingGaps = false;
  std::int32_t threshold = 0;
  {
    const DataMutexLock lock(dataMutex);
    isKeepingGaps = options.isKeepingGaps;
    threshold = shortGapThreshold;
  }
  OrderAndNumberRows(rows, isKeepingGaps);
  MarkShortGaps(rows, threshold);
  return std::make_shared<TrackItemDataList>(std::move(rows));
}

SequenceIndexTree::SharedItemDataList SequenceIndexTree::MakeFilteredList(
    const TrackItemDataList& fullList) {
  std::vector<FilterGroup> groups;
  qelcore::UTF8String wantedText;
  bool isKeepingGaps = false;
  {
    const DataMutexLock lock(dataMutex);
    groups = filterGroups;
    wantedText = searchText;
    isKeepingGaps = options.isKeepingGaps;
  }
  if (!wantedText.Empty()) groups.push_back(MakeSearchGroup(wantedText));
  return FilterTrackItemDataList(fullList, groups, isKeepingGaps);
}

// Takes the lists by value: those they replace leave with the arguments, after the lock was given back.
void SequenceIndexTree::StoreNextItemDataLists(SharedItemDataList fullList,
                                               SharedItemDataList filteredList, LatestEnds latestEnds) {
  const DataMutexLock lock(dataMutex);
  nextFullList.swap(fullList);
  nextFilteredList.swap(filteredList);
  nextLatestEnds.Swap(latestEnds);
}

void SequenceIndexTree::UpdateTreeRows() {
  qelcore::threads::CallFromMainThread(
      WeakBind(&SequenceIndexTree::ShowNextItemDataLists, WeakTree(this)), kSoon, kAlsoInNestedLoops);
}

void SequenceIndexTree::ShowNextItemDataLists() {
  if (ApplyNextItemDataLists()) PopulateTreeRows();
}

bool SequenceIndexTree::ApplyNextItemDataLists() {
  SharedItemDataList fullList;
  SharedItemDataList filteredList;
  {
    // One hold for both lists, or a build that ends in between would leave lists of two builds.
    const DataMutexLock lock(dataMutex);
    fullList = TakeNextList(nextFullList, currentFullList);
    filteredList = TakeNextList(nextFilteredList, currentFilteredList);
    if (filteredList != nullptr) currentLatestEnds.Swap(nextLatestEnds);
  }
  if (fullList == nullptr && filteredList == nullptr) return false;
  LetDieOnPool(std::move(fullList), std::move(filteredList));
  return true;
}

// Who hears that the old rows are deselected may run an event loop, and with it a step that brings
// newer lists. That step leaves the rows to this one, which knows the row at the top.
void SequenceIndexTree::PopulateTreeRows() {
  areListsNewer = true;
  if (isFillingRows) return;
  FillRows();
  if (!SyncToPlayerPosition()) BroadcastCounts();
}

void SequenceIndexTree::FillRows() {
  const FlagUntilEnd filling(isFillingRows);
  const std::size_t firstVisible = GetFirstVisiblePosition();
  while (std::exchange(areListsNewer, false)) ReplaceRows();
  ScrollToPosition(firstVisible);
}

void SequenceIndexTree::ReplaceRows() {
  ++synchronisationNumber;
  RemoveAllRows(kIsNotifying, kIsRedrawing);
  for (std::size_t i = currentFilteredList.size(); i > 0; --i) {
    CreateAndAppendRow(nullptr, kIsVisible, kIsDeferringLayout);
  }
  LayoutAfterAppendRow();
}

void SequenceIndexTree::ScrollToPosition(std::size_t position) {
  if (Row* const row = GetRow(position)) {
    ScrollRowIntoView(row, kIsAligningToTop, kIsImmediate, kIsRedrawing);
  }
}

std::size_t SequenceIndexTree::GetFirstVisiblePosition() const {
  const auto visible = GetVisibleRows();
  return visible.empty() ? 0 : GetRowIndex(visible.front());
}

}  // namespace Vantrel
