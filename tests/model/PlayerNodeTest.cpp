#include "standalone/model/PlayerNode.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "host/MZ/Sequences.h"
#include "model/ModelFixture.h"
#include "model/PlayerMessages.h"
#include "standalone/runtime/StationRegistry.h"
#include "support/SteppedHost.h"

namespace {

using drafts::Frame;
using qelcore::Ref;
using qelmediatypes::TickTime;
using standalone::PlayerNode;
using Notes = std::vector<PlayerNote>;

constexpr int kEndFrame = 100;

/// A player of 100 frames, open, whose time stands still unless a test advances it.
class Player : public testing::Test {
 protected:
  Player() {
    player->SetEnd(Frame(kEndFrame));
    player->Open();
  }
  void PlayFrom(std::int64_t frame, int speed) {
    player->SetCurrentPosition(Frame(frame));
    player->Play(speed);
    recorder->Take();
  }

  standalone::Runtime runtime;
  const Ref<PlayerNode> player{new PlayerNode([] { return std::chrono::steady_clock::time_point(); })};
  const std::shared_ptr<PlayerRecorder> recorder = PlayerRecorder::ListenTo(*player);
};

TEST_F(Player, StandsAtZeroAtFirst) {
  EXPECT_EQ(player->GetCurrentPosition(), TickTime());
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_EQ(player->GetSpeed(), 0);
}

TEST_F(Player, KeepsTheExactTickItIsGiven) {
  for (const std::int64_t tick : {std::int64_t{1}, drafts::kTicksPerFrame + 1, std::int64_t{-1},
                                  -3 * drafts::kTicksPerFrame - 7, Frame(10 * kEndFrame).GetTicks(),
                                  TickTime::Highest().GetTicks(), TickTime::Lowest().GetTicks()}) {
    player->SetCurrentPosition(TickTime(tick));
    EXPECT_EQ(player->GetCurrentPosition(), TickTime(tick));
    EXPECT_EQ(recorder->Take(), (Notes{SetTo(TickTime(tick))}));
  }
}

TEST_F(Player, AnnouncesThePositionInsideTheCallWithThePlayheadThereAlready) {
  std::optional<TickTime> seen;
  recorder->react = [&](const auto&) { seen = player->GetCurrentPosition(); };
  player->SetCurrentPosition(Frame(7));
  EXPECT_EQ(seen, Frame(7));
}

TEST_F(Player, AnnouncesTheSamePositionAgain) {
  player->SetCurrentPosition(Frame(7));
  player->SetCurrentPosition(Frame(7));
  player->SetCurrentPosition(Frame(7));
  EXPECT_EQ(recorder->Take(), (Notes{SetTo(Frame(7)), SetTo(Frame(7)), SetTo(Frame(7))}));
}

TEST_F(Player, SaysWhenPlaybackStartsAndStops) {
  player->SetCurrentPosition(Frame(3));
  recorder->Take();
  player->Play(1);
  EXPECT_TRUE(player->IsPlaying());
  EXPECT_EQ(player->GetSpeed(), 1);
  EXPECT_EQ(recorder->Take(), (Notes{StartedAt(Frame(3))}));
  player->Stop();
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_EQ(recorder->Take(), (Notes{StoppedAt(Frame(3))}));
}

TEST_F(Player, SaysNothingWhenItIsToldToStopTwice) {
  player->Stop();
  EXPECT_EQ(recorder->Take(), Notes());
  PlayFrom(3, 1);
  player->Stop();
  player->Stop();
  EXPECT_EQ(recorder->Take(), (Notes{StoppedAt(Frame(3))}));
}

TEST_F(Player, AnnouncesAnotherSpeedButNotTheSameOne) {
  PlayFrom(3, 1);
  player->Play(1);
  EXPECT_EQ(recorder->Take(), Notes());
  player->Play(2);
  player->Play(4);
  player->Play(-1);
  EXPECT_EQ(player->GetSpeed(), -1);
  EXPECT_EQ(recorder->Take(), (Notes{StartedAt(Frame(3)), StartedAt(Frame(3)), StartedAt(Frame(3))}));
}

TEST_F(Player, PlayingAtNoSpeedIsStopping) {
  PlayFrom(3, 8);
  player->Play(0);
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_EQ(recorder->Take(), (Notes{StoppedAt(Frame(3))}));
}

TEST_F(Player, PlaybackMovesThePlayheadOnByTheTimeThatPassed) {
  PlayFrom(3, 1);
  player->Advance(TickTime(Frame(1).GetTicks() + 1));
  EXPECT_EQ(player->GetCurrentPosition(), TickTime(Frame(4).GetTicks() + 1));
  player->Advance(Frame(2));
  const TickTime last(Frame(6).GetTicks() + 1);
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(TickTime(Frame(4).GetTicks() + 1)), PlayedTo(last)}));
}

TEST_F(Player, ShuttlesForwardsAndBackwards) {
  PlayFrom(50, 4);
  player->Advance(Frame(3));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(Frame(62))}));
  player->Play(-8);
  player->Advance(Frame(2));
  EXPECT_EQ(recorder->Take(), (Notes{StartedAt(Frame(62)), PlayedTo(Frame(46))}));
}

TEST_F(Player, NothingMovesWhileNothingPlays) {
  player->SetCurrentPosition(Frame(3));
  recorder->Take();
  player->Advance(Frame(5));
  EXPECT_EQ(player->GetCurrentPosition(), Frame(3));
  EXPECT_EQ(recorder->Take(), Notes());
}

TEST_F(Player, SaysNothingWhileNoTimePasses) {
  PlayFrom(3, 1);
  player->Advance(TickTime());
  player->Advance(TickTime(-5));
  EXPECT_EQ(recorder->Take(), Notes());
  EXPECT_TRUE(player->IsPlaying());
}

TEST_F(Player, StopsWhereTheLastClipEnds) {
  PlayFrom(kEndFrame - 2, 1);
  player->Advance(Frame(5));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(Frame(kEndFrame)), StoppedAt(Frame(kEndFrame))}));
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(Player, StopsAtZeroWhenItPlaysBackwards) {
  PlayFrom(2, -2);
  player->Advance(Frame(5));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(TickTime()), StoppedAt(TickTime())}));
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(Player, ReachingTheEndExactlyIsReachingIt) {
  PlayFrom(kEndFrame - 2, 1);
  player->Advance(Frame(2));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(Frame(kEndFrame)), StoppedAt(Frame(kEndFrame))}));
}

TEST_F(Player, StopsWithoutMovingWhereItCanGoNoFurther) {
  PlayFrom(kEndFrame, 1);
  player->Advance(Frame(1));
  EXPECT_EQ(recorder->Take(), (Notes{StoppedAt(Frame(kEndFrame))}));
  PlayFrom(kEndFrame + 50, 1);
  player->Advance(Frame(1));
  EXPECT_EQ(recorder->Take(), (Notes{StoppedAt(Frame(kEndFrame + 50))}));
  PlayFrom(-5, -1);
  player->Advance(Frame(1));
  EXPECT_EQ(recorder->Take(), (Notes{StoppedAt(Frame(-5))}));
}

TEST_F(Player, PlaybackFromOutsideEntersTheSequenceAtOnce) {
  PlayFrom(-50, 1);
  player->Advance(Frame(1));
  player->Advance(Frame(1));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(TickTime()), PlayedTo(Frame(1))}));
  player->Stop();
  PlayFrom(kEndFrame + 50, -1);
  player->Advance(Frame(1));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(Frame(kEndFrame))}));
  EXPECT_TRUE(player->IsPlaying());
}

TEST_F(Player, HugeStepsDoNotWrap) {
  PlayFrom(50, 1 << 30);
  player->Advance(TickTime::Highest());
  EXPECT_EQ(player->GetCurrentPosition(), Frame(kEndFrame));
  PlayFrom(50, -(1 << 30));
  player->Advance(TickTime::Highest());
  EXPECT_EQ(player->GetCurrentPosition(), TickTime());
}

TEST_F(Player, ASequenceWithoutClipsHasNothingToPlay) {
  player->SetEnd(TickTime());
  player->Play(1);
  player->Advance(Frame(1));
  EXPECT_EQ(recorder->Take(), (Notes{StartedAt(TickTime()), StoppedAt(TickTime())}));
}

TEST_F(Player, PlaybackGoesOnFromWhereThePlayheadIsPut) {
  PlayFrom(3, 1);
  player->SetCurrentPosition(Frame(40));
  EXPECT_TRUE(player->IsPlaying());
  player->Advance(Frame(1));
  EXPECT_EQ(recorder->Take(), (Notes{SetTo(Frame(40)), PlayedTo(Frame(41))}));
}

TEST_F(Player, AListenerMayPutThePlayheadElsewhere) {
  PlayFrom(kEndFrame - 1, 1);
  recorder->react = [this](const ML::PlayerPositionChangedMessage& message) {
    if (message.GetPosition() == Frame(kEndFrame)) player->SetCurrentPosition(TickTime());
  };
  player->Advance(Frame(3));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(Frame(kEndFrame)), SetTo(TickTime())}));
  EXPECT_TRUE(player->IsPlaying()) << "playback that is led back to the start goes round";
}

TEST_F(Player, AListenerMayStopPlayback) {
  PlayFrom(kEndFrame - 1, 1);
  recorder->react = [this](const auto&) { player->Stop(); };
  player->Advance(Frame(3));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(Frame(kEndFrame)), StoppedAt(Frame(kEndFrame))}));
  player->Play(1);
  EXPECT_EQ(recorder->Take(), (Notes{StartedAt(Frame(kEndFrame)), StoppedAt(Frame(kEndFrame))}));
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(Player, AListenerMayTurnPlaybackRound) {
  PlayFrom(kEndFrame - 1, 1);
  recorder->react = [this](const auto&) { player->Play(-1); };
  player->Advance(Frame(3));
  EXPECT_EQ(recorder->Take(), (Notes{PlayedTo(Frame(kEndFrame)), StartedAt(Frame(kEndFrame))}));
  EXPECT_EQ(player->GetSpeed(), -1);
}

TEST_F(Player, AListenerMayStartAgainWhatStopped) {
  PlayFrom(kEndFrame - 1, 1);
  recorder->react = [this](const ML::PlayerPositionChangedMessage& message) {
    if (message.GetKind() == ML::PlayerMessageKind::kStopped) player->Play(-1);
  };
  player->Advance(Frame(3));
  EXPECT_EQ(player->GetSpeed(), -1);
}

TEST_F(Player, AClosedPlayerStopsAndPlaysNoMore) {
  PlayFrom(3, 1);
  recorder->react = [this](const auto&) { player->Play(2); };
  player->Close();
  EXPECT_EQ(recorder->Take(), (Notes{StoppedAt(Frame(3))}));
  player->Play(1);
  EXPECT_FALSE(player->IsPlaying());
  player->Open();
  player->Play(1);
  EXPECT_TRUE(player->IsPlaying());
}

TEST_F(Player, AClosedPlayerStillHoldsAPlayhead) {
  player->Close();
  player->SetCurrentPosition(Frame(9));
  EXPECT_EQ(player->GetCurrentPosition(), Frame(9));
  EXPECT_EQ(recorder->Take(), (Notes{SetTo(Frame(9))}));
}

TEST_F(Player, AnswersItsInterfacesAlone) {
  const Ref<ML::IPlayer> asInterface(player);
  EXPECT_EQ(qelcore::QueryInterface<PlayerNode>(asInterface), player);
  EXPECT_EQ(qelcore::QueryInterface<ML::IPlayer>(player), asInterface);
  EXPECT_FALSE(qelcore::QueryInterface<BE::ISequence>(asInterface));
}

using PlayerDeathTest = Player;

TEST_F(PlayerDeathTest, IsRefusedOffTheMainThread) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto off = [](auto call) { std::thread(call).join(); };
  EXPECT_DEATH(off([this] { player->SetCurrentPosition(Frame(1)); }), "IPlayer::SetCurrentPosition");
  EXPECT_DEATH(off([this] { player->GetCurrentPosition(); }), "IPlayer::GetCurrentPosition");
  EXPECT_DEATH(off([this] { player->Play(1); }), "PlayerNode::Play");
  EXPECT_DEATH(off([this] { player->Stop(); }), "PlayerNode::Stop");
  EXPECT_DEATH(off([this] { player->Advance(Frame(1)); }), "PlayerNode::Advance");
}

TEST(PlayerLifetime, TheStationLivesAsLongAsThePlayer) {
  standalone::Runtime runtime;
  Ref<PlayerNode> player(new PlayerNode);
  const auto station = player->GetStationID();
  EXPECT_TRUE(runtime.GetStations().IsRegistered(station));
  player.Reset();
  EXPECT_FALSE(runtime.GetStations().IsRegistered(station));
}

TEST(PlayerLifetime, EachHasAStationOfItsOwn) {
  standalone::Runtime runtime;
  const Ref<PlayerNode> first(new PlayerNode);
  const Ref<PlayerNode> second(new PlayerNode);
  EXPECT_NE(first->GetStationID(), second->GetStationID());
}

TEST(PlayerLifetime, APlayerMayGoWhileItPlays) {
  standalone::Runtime runtime;
  Ref<PlayerNode> player(new PlayerNode);
  player->Open();
  player->Play(1);
  player.Reset();
  runtime.Drain();
  EXPECT_TRUE(runtime.GetLog().TakeFailures().empty());
}

TEST(PlayerLifetime, APlayerMayGoOnAnotherThread) {
  standalone::Runtime runtime;
  Ref<PlayerNode> player(new PlayerNode);
  const auto station = player->GetStationID();
  player->SetCurrentPosition(Frame(5));
  std::thread([held = std::exchange(player, {})]() mutable { held.Reset(); }).join();
  EXPECT_FALSE(runtime.GetStations().IsRegistered(station));
}

TEST(PlayerLifetime, AHostThatGoesDoesNotWaitForTheEndOfPlayback) {
  Ref<PlayerNode> player;
  {
    standalone::StandaloneHost host;
    auto draft = drafts::MakeSequence("A");
    constexpr std::int64_t kFramesInADay = std::int64_t{25} * 60 * 60 * 24;
    drafts::AddClip(drafts::AddTrack(draft), "A day", 0, kFramesInADay);
    const auto sequence = AddSequence(std::move(draft));
    host.GetProject().ActivateSequence(sequence);
    player = standalone::FindPlayer(sequence);
    player->Play(1);
  }
  EXPECT_FALSE(player->IsPlaying());
}

TEST(PlayerLifetime, APlayerHeldBeyondTheHostStillKeepsItsPosition) {
  Ref<ML::IPlayer> held;
  {
    Model model;
    const auto sequence = model.Add(drafts::MakeOneClip("A"));
    model.project.ActivateSequence(sequence);
    standalone::FindPlayer(sequence)->Play(1);
    held = MZ::GetSequencePlayer(sequence, 0);
  }
  EXPECT_EQ(held->GetCurrentPosition(), TickTime());
  held->SetCurrentPosition(Frame(4));
  EXPECT_EQ(held->GetCurrentPosition(), Frame(4));
  const auto player = qelcore::RequireInterface<PlayerNode>(held);
  EXPECT_FALSE(player->IsPlaying());
  player->Play(1);
  EXPECT_FALSE(player->IsPlaying());
}

}  // namespace
