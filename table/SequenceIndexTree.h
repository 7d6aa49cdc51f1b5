#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "data/FilterGroups.h"
#include "data/TrackItemRowData.h"
#include "host/BE/Model.h"
#include "host/ML/Player.h"
#include "host/MZ/Messages.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelcore/Future.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/Threads.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "host/qelui/Drawbot.h"
#include "host/qelui/Geometry.h"
#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "table/OwnStation.h"
#include "table/RowsAtTime.h"

namespace Vantrel {

/// The table: shows a row for every clip and gap of a sequence that its options let through.
///
/// Every change ends in a refresh, which rebuilds all rows on the tree's refresh executor and then
/// replaces the table's rows on the main thread. Builds run one at a time in the order asked for, none
/// is left out or broken off, and what is shown is what the last finished one made. A build that fails
/// changes nothing. Until a new sequence's build is done, the rows of the one before stay.
///
/// Threads: [main-thread], except RefreshDataListsAndTreeViewAsync. The data mutex guards everything
/// that a build reads or stores: sequence, options, filter groups, search text, threshold, next and
/// current lists with their latest ends. The current lists change on the main thread only, so readers
/// there need no lock. Lock order: the data mutex before any lock of the host's; no broadcast, no move
/// of the player and no dialog under it.
///
/// Cells are drawn when the host asks, from the current filtered list.
///
/// Table and playhead follow each other. The user selects one row while the panel is on duty: the
/// playhead goes to its start, unheard by the owner. The playhead goes elsewhere: the rows under it are
/// selected, which moves nothing. New rows are in line with the playhead at once; if the panel is on
/// duty and one row is under it, this moves the playhead to that row's start, too. Where rows of the
/// sequence before still stand under a new one, they may for that moment be selected by the new
/// sequence's playhead, and move it; the new sequence's rows then correct the selection.
///
/// Broadcasts and player moves reach listeners that may run an event loop of their own, in which newer
/// rows arrive, or close the panel. So nothing of the lists is held across them, every row is looked up
/// by a checked position, and the exchange of rows starts over when newer ones arrived meanwhile.
///
/// Pending work, and the functions that the tree registers with the table control, hold the tree
/// weakly: once the tree is gone they do nothing.
class SequenceIndexTree final : public qelui::controls::UI_MultiColumnTree {
 public:
  /// `owner` is the view that creates the tree; it is never kept alive. The other two are the table
  /// control's: style mask, and height of a row in pixels. Throws: what registering the station,
  /// creating the executor and laying out the columns throw; nothing is left then.
  SequenceIndexTree(std::weak_ptr<qelcore::messaging::Listener> owner, unsigned style, float rowHeight);
  /// Waits for nothing.
  ~SequenceIndexTree() override;

  /// Shows another sequence, or none, and lets the owner hear its player, if it has one. Leaves the
  /// owner's other subscriptions as they are.
  void SetSequence(const qelcore::Ref<BE::ISequence>& newSequence);
  qelcore::Ref<BE::ISequence> GetSequence() const;

  /// Takes over a copy of the options, and refreshes. Throws: std::out_of_range when a filter is
  /// switched on that does not exist; nothing has changed then.
  void SetOptions(const MZ::SequenceIndex::Options& newOptions);

  /// From now on shows only rows of which a text contains this one, which is lowered already, and
  /// refreshes. An empty text lets every row through.
  void SetSearchText(const qelcore::UTF8String& loweredText);

  /// Schedules a rebuild and returns at once. [any-thread]
  void RefreshDataListsAndTreeViewAsync();

  /// Writes the rows as shown to a comma-separated file, replacing it. `path` is a path of the host's,
  /// with "\" between its parts; the second argument is the host's affair. True when the file was
  /// written; false, and nothing touched, when there is no column. Throws: what the host's file layer
  /// throws; qel_exception of kind kLimit for a text above 4294967295 bytes.
  bool ExportSequenceIndexToCSV(const qelcore::UTF8String& path, bool isOpenedAfterwards);

  /// The user begins, or ends, to work in the panel. On duty, selecting one row moves the playhead.
  void SetOnDuty(bool onDuty) noexcept { isOnDuty = onDuty; }
  /// Whether the timeline's selection follows the table's.
  void SetUpdateTimelineSelection(bool updates) noexcept { isUpdatingTimelineSelection = updates; }

  /// The playhead stands at `position`, a time of the sequence without its zero point: selects the rows
  /// under it, scrolls to it, and announces the counts. Nothing happens while rows are selected and it
  /// is the time that was synchronised last. Never moves the playhead.
  void FollowPlayerPosition(qelmediatypes::TickTime position);

  /// Lays out the columns of a header row anew. Throws: null_pointer_exception for an empty one.
  void ReapplyColumnLayout(qelcore::Ref<qelui::controls::UI_MultiColumnTreeHeaderRow> headerRow);

  /// Where the tree sends its own messages.
  const qelcore::messaging::StationID& GetStationID() const noexcept { return station.GetID(); }

  /// All rows of the sequence, ordered and numbered; and those the table shows, table row i being
  /// element i. Valid until the main thread is given back.
  const TrackItemDataList& GetFullList() const noexcept { return currentFullList; }
  const TrackItemDataList& GetFilteredList() const noexcept { return currentFilteredList; }

 private:
  using SharedItemDataList = std::shared_ptr<TrackItemDataList>;

  void SetUpHeaderRow();
  void SetUpDrawing();
  void DrawCell(qelui::Drawbot& drawbot, Row* row, std::size_t displayIndex,
                const qelui::Rect& cell) const;
  const TrackItemRowData* FindRowData(std::size_t position) const noexcept;

  void SetUpSelection();
  void HandleSelection();
  void NoteRowVisibility(const Row* row) const;
  std::vector<std::size_t> GetSelectedPositions() const;
  std::vector<MZ::ActivatedTrackItem> GetTrackItems(const std::vector<std::size_t>& positions);
  std::optional<qelmediatypes::TickTime> GetStart(std::size_t position);
  void BroadcastCounts() const;

  qelcore::Ref<ML::IPlayer> FindPlayer() const;
  void AttachOwnerToPlayer() const;
  void MovePlayer(qelmediatypes::TickTime position);
  void ScrollToTime(qelmediatypes::TickTime time);
  /// False, and nothing done, without a player.
  bool SyncToPlayerPosition();

  void BuildNextItemDataLists();
  TrackItemDataList CollectRawList();
  SharedItemDataList MakeFullList();
  SharedItemDataList MakeFilteredList(const TrackItemDataList& fullList);
  void StoreNextItemDataLists(SharedItemDataList fullList, SharedItemDataList filteredList,
                              LatestEnds latestEnds);

  void UpdateTreeRows();
  void ShowNextItemDataLists();
  bool ApplyNextItemDataLists();
  void PopulateTreeRows();
  void FillRows();
  void ReplaceRows();
  void ScrollToPosition(std::size_t position);
  std::size_t GetFirstVisiblePosition() const;

  std::weak_ptr<qelcore::messaging::Listener> owner;
  OwnStation station;
  qelcore::Ref<BE::ISequence> sequence;
  bool isOnDuty = false;
  std::shared_ptr<qelcore::threads::AsyncThreadedSubExecutor> refreshExecutor;
  qelcore::async::Future<void> refreshFuture;
  qelcore::threads::RecursiveMutex dataMutex;
  TrackItemDataList currentFullList;
  TrackItemDataList currentFilteredList;
  std::vector<FilterGroup> filterGroups;
  qelcore::UTF8String searchText;
  MZ::SequenceIndex::Options options;
  std::int32_t shortGapThreshold = 5;
  SharedItemDataList nextFullList;
  SharedItemDataList nextFilteredList;
  /// Read and written by builds only, of which there is one at a time.
  std::size_t expectedRows = 0;
  /// Of the filtered lists.
  LatestEnds currentLatestEnds;
  LatestEnds nextLatestEnds;
  bool isUpdatingTimelineSelection = false;
  qelmediatypes::TickTime lastSynchronisedTime;
  /// Counts what brings the whole selection into line: followed times and new rows.
  std::size_t synchronisationNumber = 0;
  /// Rows are being exchanged.
  bool isFillingRows = false;
  /// The lists are newer than the rows, which have to be exchanged, or exchanged once more.
  bool areListsNewer = false;
};

}  // namespace Vantrel
