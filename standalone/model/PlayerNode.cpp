#include "standalone/model/PlayerNode.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "standalone/model/SequenceNode.h"
#include "standalone/runtime/Runtime.h"

namespace standalone {
namespace {

using ML::PlayerMessageKind;
using qelmediatypes::TickTime;

TickTime Scale(TickTime elapsed, int speed) {
  std::int64_t product = 0;
  if (!__builtin_mul_overflow(elapsed.GetTicks(), std::int64_t{speed}, &product)) {
    return TickTime(product);
  }
  return speed < 0 ? TickTime::Lowest() : TickTime::Highest();
}

}  // namespace

// The clock's function must not keep the player alive, and the player must outlast a call of it.
PlayerNode::PlayerNode(PlaybackClock::Now now)
    : station(qelcore::messaging::UniqueStationID()),
      clock(new PlaybackClock(std::move(now),
                              [weak = qelcore::WeakRef<PlayerNode>(this)](TickTime elapsed) {
                                if (const auto player = weak.Lock()) player->Advance(elapsed);
                              })) {
  qelcore::messaging::RegisterStation(station);
}

PlayerNode::~PlayerNode() {
  qelcore::messaging::DisposeStation(station);
}

void* PlayerNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  if (id == ML::IPlayer::kInterfaceID) return static_cast<ML::IPlayer*>(this);
  if (id == kInterfaceID) return this;
  return nullptr;
}

TickTime PlayerNode::GetCurrentPosition() const {
  AssertMainThread("IPlayer::GetCurrentPosition");
  return position;
}

void PlayerNode::SetCurrentPosition(TickTime newPosition) {
  AssertMainThread("IPlayer::SetCurrentPosition");
  position = newPosition;
  Announce(PlayerMessageKind::kPositionSet);
}

void PlayerNode::Play(int newSpeed) {
  AssertMainThread("PlayerNode::Play");
  if (newSpeed == 0) return Stop();
  if (!isOpen || speed == newSpeed) return;
  speed = newSpeed;
  clock->Start();
  Announce(PlayerMessageKind::kStarted);
}

void PlayerNode::Stop() {
  AssertMainThread("PlayerNode::Stop");
  clock->Stop();
  if (std::exchange(speed, 0) != 0) Announce(PlayerMessageKind::kStopped);
}

bool PlayerNode::IsPlaying() const {
  return GetSpeed() != 0;
}

int PlayerNode::GetSpeed() const {
  AssertMainThread("PlayerNode::GetSpeed");
  return speed;
}

void PlayerNode::Advance(TickTime elapsed) {
  AssertMainThread("PlayerNode::Advance");
  const TickTime next = FindPlayedPosition(elapsed);
  if (next != position) {
    position = next;
    Announce(PlayerMessageKind::kPositionPlayed);
  }
  // A listener may have put the playhead elsewhere, or have stopped or turned playback.
  if (IsAtEdge()) Stop();
}

TickTime PlayerNode::FindPlayedPosition(TickTime elapsed) const {
  if (speed == 0 || IsAtEdge()) return position;
  return std::clamp(position + Scale(std::max(elapsed, TickTime()), speed), TickTime(), end);
}

bool PlayerNode::IsAtEdge() const {
  return speed > 0 ? position >= end : speed < 0 && position <= TickTime();
}

void PlayerNode::SetEnd(TickTime newEnd) {
  AssertMainThread("PlayerNode::SetEnd");
  end = std::max(newEnd, TickTime());
}

void PlayerNode::Open() {
  AssertMainThread("PlayerNode::Open");
  isOpen = true;
}

void PlayerNode::Close() {
  AssertMainThread("PlayerNode::Close");
  isOpen = false;
  Stop();
}

void PlayerNode::Announce(PlayerMessageKind kind) const {
  // Held beyond the host's end, there is nobody left to tell.
  if (!Runtime::Exists()) return;
  const ML::PlayerPositionChangedMessage message(kind, position);
  qelcore::messaging::BroadcastMessageOnMainThread(station, message);
}

qelcore::Ref<PlayerNode> FindPlayer(const qelcore::Ref<BE::ISequence>& sequence) {
  AssertMainThread("FindPlayer");
  const SequenceNode* const node = FindSequenceNode(sequence);
  return node == nullptr ? qelcore::Ref<PlayerNode>() : node->GetPlayer();
}

}  // namespace standalone
