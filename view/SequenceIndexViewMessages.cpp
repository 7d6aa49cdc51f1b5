#include <algorithm>
#include <vector>

#include "host/BE/Messages.h"
#include "host/ML/Player.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "host/qelmediatypes/TickTime.h"
#include "table/MessageIDs.h"
#include "table/SelectionChangedMessage.h"
#include "view/SequenceIndexView.h"
#include "view/StatusText.h"

namespace Vantrel {

namespace {

using qelcore::messaging::AddWeakPtrListener;
using qelcore::messaging::RemoveListener;
using WeakListener = std::weak_ptr<qelcore::messaging::Listener>;
using qelcore::messaging::StationID;

// The player that the user sees.
constexpr int kPlaybackPreference = 0;

/// Where a sequence announces what the panel wants to hear of it; one that was never opened has no
/// player.
std::vector<StationID> RequireStations(const qelcore::Ref<BE::ISequence>& sequence) {
  const auto content = qelcore::RequireInterface<BE::ISequenceContent>(sequence);
  const auto trackGroups = qelcore::RequireInterface<BE::ISequenceTrackGroups>(sequence);
  std::vector<StationID> stations{content->GetStationID(), trackGroups->GetStationID()};
  if (const auto player = MZ::GetSequencePlayer(sequence, kPlaybackPreference)) {
    stations.push_back(player->GetStationID());
  }
  return stations;
}

bool IsPositionKind(ML::PlayerMessageKind kind) {
  return kind == ML::PlayerMessageKind::kPositionSet || kind == ML::PlayerMessageKind::kPositionPlayed;
}

}  // namespace

void SequenceIndexView::SubscribeToStations() {
  const WeakListener self = GetSelf();
  AddWeakPtrListener(MZ::kStation_Info, self);
  AddWeakPtrListener(MZ::kStation_SequenceActivation, self);
  AddWeakPtrListener(MZ::kStation_TrackItemActivation, self);
  const auto notification = qelcore::RequireInterface<BE::INotification>(MZ::GetActiveProject());
  AddWeakPtrListener(notification->GetStationID(), self);
}

void SequenceIndexView::ReceiveMessage(const qelcore::messaging::Message& message) {
  if (!tree) return;
  const auto id = message.GetID();
  if (id == MessageIDOf<MZ::MessageNameForSequenceOpenedMessage>()) {
    const auto& opened = static_cast<const MZ::SequenceOpenedMessage&>(message);
    SequenceOpened(opened.GetSequence(), opened.IsToBeShown());
  } else if (id == MessageIDOf<MZ::MessageNameForSequenceActivatedMessage>()) {
    SequenceActivated(static_cast<const MZ::SequenceActivatedMessage&>(message).GetSequence());
  } else if (id == MessageIDOf<MZ::MessageNameForSequenceClosedMessage>()) {
    SequenceClosed(static_cast<const MZ::SequenceClosedMessage&>(message).GetSequence());
  } else if (id == MessageIDOf<ML::MessageNameForPlayerPositionChangedMessage>()) {
    PlayerPositionChanged(static_cast<const ML::PlayerPositionChangedMessage&>(message));
  } else if (id == MessageIDOf<BE::MessageNameForSequenceChangedMessage>() ||
             id == MessageIDOf<BE::MessageNameForTrackGroupChangedMessage>()) {
    tree->RefreshDataListsAndTreeViewAsync();
  } else if (id == MessageIDOf<MessageNameForTreeViewItemsSelectionChangedMessage>()) {
    SelectionChanged(static_cast<const TreeViewItemsSelectionChangedMessage&>(message));
  }
}

void SequenceIndexView::SequenceOpened(const Sequence& sequence, bool isToBeShown) {
  MoveSequenceSubscriptions(tree->GetSequence(), sequence);
  if (isToBeShown) tree->SetSequence(sequence);
}

void SequenceIndexView::SequenceActivated(const Sequence& sequence) {
  MoveSequenceSubscriptions(tree->GetSequence(), sequence);
  tree->SetSequence(sequence);
}

void SequenceIndexView::SequenceClosed(const Sequence& sequence) {
  MoveSequenceSubscriptions(tree->GetSequence(), sequence);
  tree->SetSequence({});
}

void SequenceIndexView::PlayerPositionChanged(const ML::PlayerPositionChangedMessage& message) {
  if (!IsPositionKind(message.GetKind())) return;
  tree->FollowPlayerPosition(std::max(message.GetPosition(), qelmediatypes::TickTime()));
}

void SequenceIndexView::SelectionChanged(const TreeViewItemsSelectionChangedMessage& message) {
  statusText->SetValue(MakeStatusText(message.GetSelectedCount(), message.GetRowCount()));
}

void SequenceIndexView::MoveSequenceSubscriptions(const Sequence& from, const Sequence& to) {
  const WeakListener self = GetSelf();
  if (from) {
    for (const auto& station : RequireStations(from)) RemoveListener(station, self);
  }
  if (to) {
    for (const auto& station : RequireStations(to)) AddWeakPtrListener(station, self);
  }
}

}  // namespace Vantrel
