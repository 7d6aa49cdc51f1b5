#pragma once

#include <chrono>

#include "host/BE/Model.h"
#include "host/ML/Player.h"
#include "host/qelcore/CountedObject.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/model/PlaybackClock.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The player of a sequence: its playhead, and the playback that moves it on. The sequence holds it;
/// whoever else holds it may do so for longer than the sequence lives. Registers its station when it is
/// made and disposes of it when the last reference is gone.
///
/// All operations are [main-thread], except counting and GetStationID. Each announces what it did on
/// the station before it returns; listeners may call the player again.
class STANDALONE_API PlayerNode final : public ML::IPlayer, public qelcore::CountedObject {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("standalone::PlayerNode");

  /// A closed player at 0. `now` tells the time that playback follows.
  explicit PlayerNode(PlaybackClock::Now now = std::chrono::steady_clock::now);

  void AddRef() const noexcept override { CountedObject::AddRef(); }
  void Release() const noexcept override { CountedObject::Release(); }
  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::messaging::StationID GetStationID() const override { return station; }
  qelmediatypes::TickTime GetCurrentPosition() const override;
  /// Playback goes on from there.
  void SetCurrentPosition(qelmediatypes::TickTime position) override;

  /// Plays at `speed` times the normal speed, backwards when it is negative; 0 stops. Announces the
  /// start, also when another speed was playing. Does nothing at the speed that plays already, or while
  /// the sequence is not open.
  void Play(int speed);
  /// Announces the stop, if anything was playing.
  void Stop();
  bool IsPlaying() const;
  /// The speed that plays; 0 when none does.
  int GetSpeed() const;

  /// Moves the playhead as playback does in `elapsed` of real time, never beyond 0 or the end in the
  /// direction of playback, and stops there. Does nothing while nothing plays.
  void Advance(qelmediatypes::TickTime elapsed);

  /// Where the last clip of the sequence ends: where playback does. 0 until it is set.
  void SetEnd(qelmediatypes::TickTime end);

  /// The sequence was opened, or is about to be closed: from then on playback is possible, or is not
  /// and has stopped.
  void Open();
  void Close();

 private:
  ~PlayerNode() override;
  qelmediatypes::TickTime FindPlayedPosition(qelmediatypes::TickTime elapsed) const;
  /// Whether playback can go no further.
  bool IsAtEdge() const;
  void Announce(ML::PlayerMessageKind kind) const;

  const qelcore::messaging::StationID station;
  const qelcore::Ref<PlaybackClock> clock;
  qelmediatypes::TickTime position;
  qelmediatypes::TickTime end;
  /// 0: nothing plays.
  int speed = 0;
  bool isOpen = false;
};

/// The player of a sequence that this host made, or empty: one that was never opened has none.
/// [main-thread]
STANDALONE_API qelcore::Ref<PlayerNode> FindPlayer(const qelcore::Ref<BE::ISequence>& sequence);

}  // namespace standalone
