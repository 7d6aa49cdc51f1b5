#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/ML/Player.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "host/qelcore/Messaging.h"
#include "host/qelui/Events.h"
#include "standalone/toolkit/TreeControl.h"
#include "support/Fakes.h"
#include "table/MessageIDs.h"
#include "table/RefreshFixture.h"
#include "table/SelectionChangedMessage.h"

namespace Vantrel {

/// Hears messages and does with them what a test says.
class Ear final : public qelcore::messaging::Listener {
 public:
  using Function = std::function<void(const qelcore::messaging::Message&)>;
  explicit Ear(Function function = {}) : hear(std::move(function)) {}
  void ReceiveMessage(const qelcore::messaging::Message& message) override {
    // Held, in case it replaces itself.
    const Function held = hear;
    if (held) held(message);
  }

  Function hear;
};

/// A player with faults, and nobody at its station: it records its calls as the host's are.
class FakePlayer final : public fakes::Counted<ML::IPlayer> {
 public:
  void* QueryInterface(qelcore::InterfaceID) noexcept override { return nullptr; }
  qelcore::messaging::StationID GetStationID() const override { return station; }
  qelmediatypes::TickTime GetCurrentPosition() const override { return position; }
  void SetCurrentPosition(qelmediatypes::TickTime newPosition) override {
    hostcalls::Called("SetCurrentPosition", newPosition.GetTicks() / drafts::kTicksPerFrame);
    position = newPosition;
  }

  const qelcore::messaging::StationID station = qelcore::messaging::UniqueStationID();
  qelmediatypes::TickTime position;
};

/// A name of the clip of each item; "Gap" for one that has none.
inline Names GetNames(const std::vector<MZ::ActivatedTrackItem>& items) {
  Names names;
  for (const auto& item : items) {
    const auto clip = item.trackItem->GetClip();
    names.emplace_back(clip ? clip->GetName().View() : "Gap");
  }
  return names;
}

inline std::string Join(const Names& names) {
  std::string text;
  for (const std::string& name : names) text += " " + name;
  return text;
}

/// A table with an owner, and what is said while the user selects rows and the playhead moves.
class SelectionFixture : public RefreshFixture {
 protected:
  static constexpr std::size_t kVisibleRows = 11;

  SelectionFixture() {
    tree = qelcore::Ref(new SequenceIndexTree(owner, 0, kRowHeight));
    ShowRows(kVisibleRows);
    qelcore::messaging::AddWeakPtrListener(tree->GetStationID(), ear);
    qelcore::messaging::AddWeakPtrListener(MZ::kStation_TrackItemActivation, ear);
  }

  /// Makes room for so many rows.
  void ShowRows(std::size_t count) {
    tree->GetControl().SetViewportHeight(static_cast<std::int64_t>(count * std::size_t{18}));
  }
  /// Opens a sequence, which gives it a player, and shows its rows.
  void Open(standalone::SequenceDraft draft) {
    sequence = AddSequence(std::move(draft));
    host->GetProject().ActivateSequence(sequence);
    tree->SetSequence(sequence);
    host.Settle();
    heard.clear();
  }
  qelcore::Ref<ML::IPlayer> GetPlayer() const { return MZ::GetSequencePlayer(sequence, 0); }
  std::int64_t GetPlayerFrame() const {
    return GetPlayer()->GetCurrentPosition().GetTicks() / drafts::kTicksPerFrame;
  }
  void Follow(std::int64_t frame) { tree->FollowPlayerPosition(drafts::Frame(frame)); }

  /// The user clicks on a row, and then, holding Control, on others.
  void Click(std::size_t position, std::initializer_list<std::size_t> others = {}) {
    tree->GetControl().Click(position, 0);
    for (const std::size_t other : others) {
      tree->GetControl().Click(other, qelui::ui::kModifierControl);
    }
  }
  /// The user clicks below the rows.
  void ClickBelow() { tree->GetControl().Click(std::nullopt, 0); }

  std::vector<std::size_t> GetSelectedPositions() const {
    std::vector<std::size_t> positions;
    for (const auto* row : tree->GetSelectedRows()) positions.push_back(tree->GetRowIndex(row));
    return positions;
  }
  Names GetSelectedNames() const {
    Names names;
    for (const std::size_t position : GetSelectedPositions()) {
      names.emplace_back(tree->GetFilteredList().at(position).name.View());
    }
    return names;
  }
  std::string GetStation() const { return std::string(tree->GetStationID().View()); }
  std::size_t GetTopPosition() const { return tree->GetRowIndex(tree->GetVisibleRows().front()); }

  /// What the panel heard, in order: "counts 1/3", "activation A1 A2", "position 3 at 10" with the kind
  /// and the frame.
  Names heard;
  /// The panel: hears the player while it is subscribed.
  std::shared_ptr<Ear> owner = std::make_shared<Ear>([this](const auto& message) { Hear(message); });
  /// Hears the table and the timeline's station.
  std::shared_ptr<Ear> ear = std::make_shared<Ear>([this](const auto& message) { Hear(message); });
  /// What the last activation carried.
  std::vector<MZ::ActivatedTrackItem> activated;

 private:
  void Hear(const qelcore::messaging::Message& message) {
    if (message.GetID() == MessageIDOf<MessageNameForTreeViewItemsSelectionChangedMessage>()) {
      const auto& counts = static_cast<const TreeViewItemsSelectionChangedMessage&>(message);
      heard.push_back("counts " + std::to_string(counts.GetSelectedCount()) + "/" +
                      std::to_string(counts.GetRowCount()));
    } else if (message.GetID() == MessageIDOf<MZ::MessageNameForTrackItemActivationMessage>()) {
      activated = static_cast<const MZ::TrackItemActivationMessage&>(message).GetItems();
      heard.push_back("activation" + Join(GetNames(activated)));
    } else if (message.GetID() == MessageIDOf<ML::MessageNameForPlayerPositionChangedMessage>()) {
      const auto& position = static_cast<const ML::PlayerPositionChangedMessage&>(message);
      heard.push_back("position " + std::to_string(static_cast<std::uint32_t>(position.GetKind())) +
                      " at " +
                      std::to_string(position.GetPosition().GetTicks() / drafts::kTicksPerFrame));
    }
  }
};

}  // namespace Vantrel
