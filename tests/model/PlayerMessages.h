#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <utility>
#include <vector>

#include "host/ML/Player.h"
#include "host/qelcore/Messaging.h"
#include "support/Drafts.h"

/// A message of a player as a test reads it: the kind, and the position in ticks.
struct PlayerNote {
  ML::PlayerMessageKind kind;
  std::int64_t ticks;
  friend bool operator==(const PlayerNote&, const PlayerNote&) = default;
};

inline void PrintTo(const PlayerNote& note, std::ostream* out) {
  *out << "{kind " << static_cast<std::uint32_t>(note.kind) << " at " << note.ticks << '}';
}

inline PlayerNote StartedAt(qelmediatypes::TickTime position) {
  return {ML::PlayerMessageKind::kStarted, position.GetTicks()};
}
inline PlayerNote StoppedAt(qelmediatypes::TickTime position) {
  return {ML::PlayerMessageKind::kStopped, position.GetTicks()};
}
inline PlayerNote SetTo(qelmediatypes::TickTime position) {
  return {ML::PlayerMessageKind::kPositionSet, position.GetTicks()};
}
inline PlayerNote PlayedTo(qelmediatypes::TickTime position) {
  return {ML::PlayerMessageKind::kPositionPlayed, position.GetTicks()};
}

/// Writes down what a player announces, then does what the test wants.
class PlayerRecorder final : public qelcore::messaging::Listener {
 public:
  static std::shared_ptr<PlayerRecorder> ListenTo(const ML::IPlayer& player) {
    auto recorder = std::make_shared<PlayerRecorder>();
    qelcore::messaging::AddWeakPtrListener(player.GetStationID(), recorder);
    return recorder;
  }

  void ReceiveMessage(const qelcore::messaging::Message& message) override {
    const auto& changed = dynamic_cast<const ML::PlayerPositionChangedMessage&>(message);
    notes.push_back({changed.GetKind(), changed.GetPosition().GetTicks()});
    if (react) react(changed);
  }

  std::vector<PlayerNote> Take() { return std::exchange(notes, {}); }

  std::function<void(const ML::PlayerPositionChangedMessage&)> react;

 private:
  std::vector<PlayerNote> notes;
};
