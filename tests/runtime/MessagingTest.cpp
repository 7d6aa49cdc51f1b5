#include "host/qelcore/Messaging.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "host/qelcore/Shareable.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/StationRegistry.h"

namespace {

using namespace qelcore::messaging;
using standalone::Runtime;
using testing::ElementsAre;
using testing::IsEmpty;

class TestMessage final : public Message {
 public:
  explicit TestMessage(MessageID id = 1) : Message(id) {}
};

class Recorder final : public Listener {
 public:
  void ReceiveMessage(const Message& message) override {
    received.push_back(message.GetID());
    if (onMessage) onMessage();
  }
  std::vector<MessageID> received;
  std::function<void()> onMessage;
};

class Stations : public testing::Test {
 protected:
  Stations() { RegisterStation(station); }

  std::shared_ptr<Recorder> AddRecorder() {
    auto recorder = std::make_shared<Recorder>();
    AddWeakPtrListener(station, recorder);
    return recorder;
  }
  void Broadcast(MessageID id = 1) { BroadcastMessageOnMainThread(station, TestMessage(id)); }

  Runtime runtime;
  const StationID station = UniqueStationID();
};

TEST_F(Stations, DeliverBeforeTheBroadcastReturns) {
  const auto recorder = AddRecorder();
  Broadcast(5);
  EXPECT_THAT(recorder->received, ElementsAre(5U));
}

TEST_F(Stations, AreSetsOfListeners) {
  const auto recorder = AddRecorder();
  AddWeakPtrListener(station, recorder);
  Broadcast();
  EXPECT_EQ(recorder->received.size(), 1U);
  RemoveListener(station, recorder);
  Broadcast();
  EXPECT_EQ(recorder->received.size(), 1U);
}

TEST_F(Stations, RemovingAnAbsentListenerIsNoError) {
  const auto recorder = std::make_shared<Recorder>();
  RemoveListener(station, recorder);
  RemoveListener(StationID("nobody registered this"), recorder);
  RemoveListener(station, std::weak_ptr<Listener>());
}

/// A listener that is only one base of what is owned.
class Panel final : public qelcore::memory::Shareable, public Listener {
 public:
  void ReceiveMessage(const Message&) override { ++count; }
  int count = 0;
};

TEST_F(Stations, TellListenersApartByTheirOwner) {
  const auto panel = qelcore::memory::MakeShareable<Panel>();
  AddWeakPtrListener(station, panel);
  AddWeakPtrListener(station, std::shared_ptr<Listener>(panel->SharedFrom(panel.get())));
  Broadcast();
  EXPECT_EQ(panel->count, 1);
  EXPECT_EQ(runtime.GetStations().CountListeners(station), 1U);
}

TEST_F(Stations, ForgetTheListenersOfADisposedStation) {
  const auto recorder = AddRecorder();
  DisposeStation(station);
  Broadcast();
  RegisterStation(station);
  Broadcast();
  EXPECT_THAT(recorder->received, IsEmpty());
}

TEST_F(Stations, IgnoreBroadcastsAndListenersUnderUnknownNames) {
  const auto recorder = std::make_shared<Recorder>();
  const StationID unknown("nobody registered this");
  AddWeakPtrListener(unknown, recorder);
  BroadcastMessageOnMainThread(unknown, TestMessage());
  DisposeStation(unknown);
  EXPECT_THAT(recorder->received, IsEmpty());
}

TEST_F(Stations, ANameIsRegisteredOnce) {
  EXPECT_THROW(RegisterStation(station), qelcore::config::qel_exception);
  DisposeStation(station);
  EXPECT_NO_THROW(RegisterStation(station));
}

TEST_F(Stations, UniqueNamesDiffer) {
  EXPECT_NE(UniqueStationID(), UniqueStationID());
}

TEST_F(Stations, DoNotKeepListenersAlive) {
  auto recorder = AddRecorder();
  const std::weak_ptr<Recorder> weak = recorder;
  recorder.reset();
  EXPECT_TRUE(weak.expired());
  Broadcast();
}

TEST_F(Stations, IgnoreListenersThatAreGoneWhenAdded) {
  std::weak_ptr<Listener> gone;
  gone = std::make_shared<Recorder>();
  AddWeakPtrListener(station, gone);
  EXPECT_EQ(runtime.GetStations().CountListeners(station), 0U);
}

TEST_F(Stations, SkipAListenerThatAnEarlierOneRemoved) {
  const auto first = AddRecorder();
  const auto second = AddRecorder();
  first->onMessage = [&] { RemoveListener(station, second); };
  Broadcast();
  EXPECT_THAT(second->received, IsEmpty());
}

TEST_F(Stations, SkipAListenerThatAnEarlierOneDestroyed) {
  const auto first = AddRecorder();
  auto second = AddRecorder();
  first->onMessage = [&] { second.reset(); };
  Broadcast();
  EXPECT_EQ(first->received.size(), 1U);
}

TEST_F(Stations, DoNotDeliverToAListenerAddedMeanwhile) {
  const auto first = AddRecorder();
  const auto late = std::make_shared<Recorder>();
  first->onMessage = [&] { AddWeakPtrListener(station, late); };
  Broadcast(1);
  EXPECT_THAT(late->received, IsEmpty());
  Broadcast(2);
  EXPECT_THAT(late->received, ElementsAre(2U));
}

TEST_F(Stations, AListenerMayRemoveAndAddItself) {
  const auto recorder = AddRecorder();
  recorder->onMessage = [&] {
    RemoveListener(station, recorder);
    AddWeakPtrListener(station, recorder);
  };
  for (MessageID id = 1; id <= 10; ++id) Broadcast(id);
  EXPECT_EQ(recorder->received.size(), 10U);
}

TEST_F(Stations, ADisposalEndsTheRunningDelivery) {
  const auto first = AddRecorder();
  const auto second = AddRecorder();
  first->onMessage = [&] {
    DisposeStation(station);
    RegisterStation(station);
    AddWeakPtrListener(station, second);
  };
  Broadcast();
  EXPECT_THAT(second->received, IsEmpty());
}

TEST_F(Stations, HoldAListenerWhileItIsCalled) {
  auto recorder = AddRecorder();
  const std::weak_ptr<Recorder> weak = recorder;
  recorder->onMessage = [&] {
    recorder.reset();
    EXPECT_FALSE(weak.expired());
  };
  Broadcast();
  EXPECT_TRUE(weak.expired());
}

TEST_F(Stations, AListenerMayBroadcastOnTheSameStation) {
  const auto first = AddRecorder();
  const auto second = AddRecorder();
  first->onMessage = [&] {
    if (first->received.size() == 1) Broadcast(2);
  };
  Broadcast(1);
  EXPECT_THAT(first->received, ElementsAre(1U, 2U));
  EXPECT_THAT(second->received, ElementsAre(2U, 1U));
}

TEST_F(Stations, AListenersFailureGoesToTheLogAndTheOthersStillGetTheMessage) {
  const auto first = AddRecorder();
  const auto second = AddRecorder();
  first->onMessage = [] { throw std::runtime_error("no sequence"); };
  Broadcast();
  EXPECT_EQ(second->received.size(), 1U);
  EXPECT_THAT(runtime.GetLog().TakeFailures(), ElementsAre("message listener: no sequence"));
}

TEST_F(Stations, PurgingLetsGoOfListenersThatAreGone) {
  const auto kept = AddRecorder();
  AddRecorder().reset();
  EXPECT_EQ(runtime.GetStations().CountListeners(station), 2U);
  runtime.GetStations().PurgeExpired();
  EXPECT_EQ(runtime.GetStations().CountListeners(station), 1U);
}

TEST_F(Stations, AQueuedBroadcastIsDeliveredByTheMainQueue) {
  const auto recorder = AddRecorder();
  AsyncBroadcastMessagePtr(station, std::make_shared<TestMessage>(9));
  EXPECT_THAT(recorder->received, IsEmpty()) << "also on the main thread";
  runtime.Drain();
  EXPECT_THAT(recorder->received, ElementsAre(9U));
}

TEST_F(Stations, AQueuedBroadcastMayComeFromAnyThreadAndTooLate) {
  const auto recorder = AddRecorder();
  std::thread([this] { AsyncBroadcastMessagePtr(station, std::make_shared<TestMessage>()); }).join();
  DisposeStation(station);
  runtime.Drain();
  EXPECT_THAT(recorder->received, IsEmpty());
}

TEST_F(Stations, ABroadcastOffTheMainThreadStopsTheProgram) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_DEATH(std::thread([this] { Broadcast(); }).join(),
               "BroadcastMessageOnMainThread was called off the main thread");
}

class Counter final : public Listener {
 public:
  void ReceiveMessage(const Message&) override { ++count; }
  std::atomic<int> count = 0;
};

TEST_F(Stations, MayChangeFromManyThreadsDuringBroadcasts) {
  const auto steady = std::make_shared<Counter>();
  AddWeakPtrListener(station, steady);
  std::atomic<bool> stop = false;
  std::vector<std::thread> threads;
  for (int i = 0; i < 3; ++i) {
    threads.emplace_back([&] {
      const auto kept = std::make_shared<Counter>();
      while (!stop) {
        const StationID own = UniqueStationID();
        RegisterStation(own);
        const auto brief = std::make_shared<Counter>();
        AddWeakPtrListener(station, brief);
        AddWeakPtrListener(station, kept);
        AddWeakPtrListener(own, kept);
        RemoveListener(station, kept);
        DisposeStation(own);
        runtime.GetStations().PurgeExpired();
      }
    });
  }
  constexpr int kBroadcasts = 500;
  for (int i = 0; i < kBroadcasts; ++i) Broadcast();
  stop = true;
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(steady->count, kBroadcasts);
}

struct MessageNameForOneThing {};
struct MessageNameForAnother {};

TEST(MessageIDs, DifferByTypeAndAreNeverZero) {
  const MessageID one = HashMessageTypeNameToMessageID(typeid(MessageNameForOneThing).name());
  EXPECT_EQ(one, HashMessageTypeNameToMessageID(typeid(MessageNameForOneThing).name()));
  EXPECT_NE(one, HashMessageTypeNameToMessageID(typeid(MessageNameForAnother).name()));
  EXPECT_NE(one, 0U);
}

TEST(MessageIDs, AreTheFNVHashOfTheName) {
  // Published test values of the 32-bit FNV-1a hash; the last name hashes to 0.
  EXPECT_EQ(HashMessageTypeNameToMessageID(""), 0x811C9DC5U);
  EXPECT_EQ(HashMessageTypeNameToMessageID("a"), 0xE40C292CU);
  EXPECT_EQ(HashMessageTypeNameToMessageID("foobar"), 0xBF9CF968U);
  EXPECT_EQ(HashMessageTypeNameToMessageID("\xCC\x24\x31\xC4"), 1U);
}

TEST(StationsWithoutRuntime, AreClosedWithoutError) {
  DisposeStation(StationID("late"));
}

}  // namespace
