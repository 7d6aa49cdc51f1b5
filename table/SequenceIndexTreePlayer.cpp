#include <cstddef>
#include <vector>

#include "host/ML/Player.h"
#include "host/MZ/Sequences.h"
#include "table/ListenerPause.h"
#include "table/RowsAtTime.h"
#include "table/ScrollTarget.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

namespace {

using qelmediatypes::TickTime;

constexpr int kPlayerTheUserSees = 0;

constexpr bool kIsNotifying = true;
constexpr bool kIsExtending = true;

}  // namespace

qelcore::Ref<ML::IPlayer> SequenceIndexTree::FindPlayer() const {
  const auto shown = GetSequence();
  return shown ? MZ::GetSequencePlayer(shown, kPlayerTheUserSees) : qelcore::Ref<ML::IPlayer>();
}

void SequenceIndexTree::AttachOwnerToPlayer() const {
  if (owner.expired()) return;
  const auto player = FindPlayer();
  if (player) qelcore::messaging::AddWeakPtrListener(player->GetStationID(), owner);
}

// The owner, which follows the player, does not hear of a move that comes from the table.
void SequenceIndexTree::MovePlayer(TickTime position) {
  const auto player = FindPlayer();
  if (!player) return;
  const ListenerPause pause(player->GetStationID(), owner);
  player->SetCurrentPosition(position);
  lastSynchronisedTime = position;
}

void SequenceIndexTree::FollowPlayerPosition(TickTime position) {
  // Those who hear that rows were deselected may close the panel.
  const qelcore::Ref<SequenceIndexTree> self(this);
  if (position == lastSynchronisedTime && !GetSelectedRows().empty()) return;
  lastSynchronisedTime = position;
  const std::size_t ownNumber = ++synchronisationNumber;
  const std::vector<std::size_t> positions =
      currentLatestEnds.FindRowsAtTime(currentFilteredList, position);
  DeselectAllRows(kIsNotifying);
  // They may also have followed another time, or brought other rows, which are in line already.
  if (ownNumber != synchronisationNumber) return;
  for (const std::size_t rowPosition : positions) {
    if (Row* const row = GetRow(rowPosition)) SelectRow(row, kIsExtending);
  }
  ScrollToTime(position);
  BroadcastCounts();
}

void SequenceIndexTree::ScrollToTime(TickTime time) {
  const std::vector<Row*> visible = GetVisibleRows();
  if (visible.empty()) return;
  const auto target = FindScrollTarget(currentFilteredList, time, GetRowIndex(visible.front()),
                                       GetRowIndex(visible.back()));
  if (target) ScrollToPosition(*target);
}

bool SequenceIndexTree::SyncToPlayerPosition() {
  const auto player = FindPlayer();
  if (!player) return false;
  FollowPlayerPosition(player->GetCurrentPosition());
  HandleSelection();
  return true;
}

}  // namespace Vantrel
