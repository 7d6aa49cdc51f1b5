#include "standalone/model/PlaybackClock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "model/ModelFixture.h"
#include "model/PlayerMessages.h"
#include "standalone/model/PlayerNode.h"

namespace {

using namespace std::chrono_literals;
using qelcore::Ref;
using qelmediatypes::TickTime;
using standalone::PlaybackClock;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t kTicksPerMillisecond = TickTime::kTicksPerSecond / 1000;

/// A clock whose time a test sets. Its functions wait in the main queue as long as they would.
class Clock : public testing::Test {
 protected:
  void RunNext() {
    ASSERT_TRUE(queue.WaitForWork(60s));
    EXPECT_TRUE(queue.RunOne());
  }

  standalone::Runtime runtime;
  standalone::MainQueue& queue = runtime.GetMainQueue();
  std::chrono::steady_clock::time_point time;
  std::vector<std::int64_t> told;
  std::function<void()> react = [] {};
  Ref<PlaybackClock> clock{new PlaybackClock([this] { return time; },
                                             [this](TickTime elapsed) {
                                               told.push_back(elapsed.GetTicks());
                                               react();
                                             })};
};

TEST_F(Clock, WaitsForItsStart) {
  EXPECT_FALSE(clock->IsRunning());
  EXPECT_EQ(queue.CountWaiting(), 0U);
}

TEST_F(Clock, SaysNothingInsideItsStartNorBeforeItsTime) {
  clock->Start();
  EXPECT_TRUE(clock->IsRunning());
  EXPECT_THAT(told, IsEmpty());
  const auto untilDue = queue.GetTimeUntilDue();
  ASSERT_TRUE(untilDue);
  EXPECT_LE(*untilDue, PlaybackClock::kInterval);
}

TEST_F(Clock, SaysAgainAndAgainHowMuchTimePassed) {
  time += 5s;
  clock->Start();
  time += 41ms;
  RunNext();
  time += 1s;
  RunNext();
  RunNext();
  EXPECT_THAT(told, ElementsAre(41 * kTicksPerMillisecond, TickTime::kTicksPerSecond, 0));
}

TEST_F(Clock, CountsInWholeTicks) {
  clock->Start();
  time += 1ns;
  RunNext();
  time += 2h + 999999999ns;
  RunNext();
  // 254.016 ticks are a nanosecond.
  EXPECT_THAT(told, ElementsAre(254, 7200 * TickTime::kTicksPerSecond + 254015999745));
}

TEST_F(Clock, ATimeBeyondAllTimelinesDoesNotWrap) {
  clock->Start();
  time += std::chrono::hours(24 * 365 * 50);
  RunNext();
  EXPECT_THAT(told, ElementsAre(qelmediatypes::kOneHundredHours.GetTicks()));
}

TEST_F(Clock, ATimeThatRunsBackwardsIsNoTime) {
  clock->Start();
  time -= 1s;
  RunNext();
  EXPECT_THAT(told, ElementsAre(0));
}

TEST_F(Clock, HasAtMostOneFunctionInTheQueue) {
  for (int i = 0; i < 3; ++i) {
    clock->Start();
    clock->Start();
    EXPECT_EQ(queue.CountWaiting(), 1U);
    clock->Stop();
    EXPECT_EQ(queue.CountWaiting(), 1U);
  }
  clock->Start();
  RunNext();
  EXPECT_EQ(queue.CountWaiting(), 1U);
}

TEST_F(Clock, AStoppedClockLeavesTheQueueByItself) {
  clock->Start();
  clock->Stop();
  EXPECT_FALSE(clock->IsRunning());
  RunNext();
  EXPECT_THAT(told, IsEmpty());
  EXPECT_EQ(queue.CountWaiting(), 0U);
}

TEST_F(Clock, TheTimeBetweenAStopAndAStartIsNotCounted) {
  clock->Start();
  time += 10ms;
  clock->Stop();
  time += 1h;
  clock->Start();
  time += 7ms;
  RunNext();
  EXPECT_THAT(told, ElementsAre(7 * kTicksPerMillisecond));
}

TEST_F(Clock, ARunningClockThatIsStartedAgainLosesNoTime) {
  clock->Start();
  time += 10ms;
  clock->Start();
  time += 10ms;
  RunNext();
  EXPECT_THAT(told, ElementsAre(20 * kTicksPerMillisecond));
}

TEST_F(Clock, MayBeStoppedWhileItSpeaks) {
  react = [this] { clock->Stop(); };
  clock->Start();
  RunNext();
  EXPECT_EQ(queue.CountWaiting(), 0U);
}

TEST_F(Clock, MayBeStoppedAndStartedWhileItSpeaks) {
  react = [this] {
    clock->Stop();
    clock->Start();
  };
  clock->Start();
  RunNext();
  EXPECT_EQ(queue.CountWaiting(), 1U);
  RunNext();
  EXPECT_EQ(told.size(), 2U);
}

TEST_F(Clock, IsNotKeptByTheQueue) {
  clock->Start();
  clock.Reset();
  RunNext();
  EXPECT_THAT(told, IsEmpty());
  EXPECT_EQ(queue.CountWaiting(), 0U);
}

TEST_F(Clock, MayGoWhileItSpeaks) {
  react = [this] { clock.Reset(); };
  clock->Start();
  RunNext();
  runtime.Drain();
  EXPECT_EQ(told.size(), 1U);
}

TEST_F(Clock, GoesOnWhileAMenuIsOpen) {
  clock->Start();
  const standalone::MainQueue::NestedLoop menu(queue);
  RunNext();
  EXPECT_EQ(told.size(), 1U);
}

/// A player in the hands of its clock.
class Playback : public testing::Test {
 protected:
  Playback() {
    player->SetEnd(drafts::Frame(100));
    player->Open();
  }
  void RunNext() {
    ASSERT_TRUE(queue.WaitForWork(60s));
    queue.RunOne();
  }

  standalone::Runtime runtime;
  standalone::MainQueue& queue = runtime.GetMainQueue();
  std::chrono::steady_clock::time_point time;
  Ref<standalone::PlayerNode> player{new standalone::PlayerNode([this] { return time; })};
};

TEST_F(Playback, FollowsTheTime) {
  player->Play(2);
  time += 40ms;
  RunNext();
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(2));
  time += 120ms;
  RunNext();
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(8));
}

TEST_F(Playback, LeavesTheQueueAtTheEnd) {
  player->Play(1);
  time += 1h;
  RunNext();
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(100));
  EXPECT_FALSE(player->IsPlaying());
  EXPECT_EQ(queue.CountWaiting(), 0U);
}

TEST_F(Playback, LeavesTheQueueWhenItIsStopped) {
  player->Play(1);
  player->Stop();
  time += 1s;
  RunNext();
  EXPECT_EQ(player->GetCurrentPosition(), TickTime());
  EXPECT_EQ(queue.CountWaiting(), 0U);
}

TEST_F(Playback, ShuttlingKeepsOneFunctionInTheQueue) {
  for (const int speed : {1, 2, 4, 8, -1, -2, 0, 1}) player->Play(speed);
  EXPECT_EQ(queue.CountWaiting(), 1U);
}

TEST_F(Playback, APlayerThatIsLetGoWhileItAnnouncesStaysWholeUntilTheEndOfTheCall) {
  const auto recorder = PlayerRecorder::ListenTo(*player);
  player->Play(1);
  recorder->react = [this](const auto&) { player.Reset(); };
  time += 1h;
  RunNext();
  EXPECT_EQ(recorder->Take(), (std::vector{StartedAt(TickTime()), PlayedTo(drafts::Frame(100)),
                                           StoppedAt(drafts::Frame(100))}));
}

}  // namespace
