#pragma once

#include <cstdint>

#include "host/HostAPI.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "host/qelmediatypes/TickTime.h"

/// Playing media.
namespace ML {

/// Plays a sequence: holds its playhead. All operations are [main-thread], except counting.
class HOST_API IPlayer : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("ML::IPlayer");

  /// Where the player announces its position.
  virtual qelcore::messaging::StationID GetStationID() const = 0;

  /// The playhead's time in the sequence, without the sequence's zero point.
  virtual qelmediatypes::TickTime GetCurrentPosition() const = 0;

  /// Puts the playhead at exactly that time, which may be negative, and announces it before it returns.
  virtual void SetCurrentPosition(qelmediatypes::TickTime position) = 0;

 protected:
  ~IPlayer() override;
};

struct HOST_API MessageNameForPlayerPositionChangedMessage {};

/// What a player announces. The numbers are the host's.
enum class PlayerMessageKind : std::uint32_t {
  kStarted = 1,         ///< Playback began.
  kStopped = 2,         ///< Playback ended.
  kPositionSet = 3,     ///< The playhead was put somewhere: a click, a scrub, a step.
  kPositionPlayed = 5,  ///< Playback moved the playhead on.
};

/// The playhead of a player. Station: the player's.
class HOST_API PlayerPositionChangedMessage final : public qelcore::messaging::Message {
 public:
  PlayerPositionChangedMessage(PlayerMessageKind kind, qelmediatypes::TickTime position);
  ~PlayerPositionChangedMessage() override;
  PlayerMessageKind GetKind() const noexcept { return kind; }
  /// As IPlayer::GetCurrentPosition at the time of the broadcast.
  qelmediatypes::TickTime GetPosition() const noexcept { return position; }

 private:
  PlayerMessageKind kind;
  qelmediatypes::TickTime position;
};

}  // namespace ML
