#include "table/ListenerPause.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "standalone/runtime/StationRegistry.h"
#include "support/SteppedHost.h"
#include "table/OwnStation.h"

namespace Vantrel {
namespace {

class Deaf final : public qelcore::messaging::Listener {
 public:
  void ReceiveMessage(const qelcore::messaging::Message&) override {}
};

class Pause : public testing::Test {
 protected:
  std::size_t CountListeners() {
    return host->GetRuntime().GetStations().CountListeners(station.GetID());
  }

  SteppedHost host;
  const OwnStation station;
  std::shared_ptr<Deaf> listener = std::make_shared<Deaf>();
};

TEST_F(Pause, TheListenerIsAwayForItsLifetime) {
  qelcore::messaging::AddWeakPtrListener(station.GetID(), listener);
  {
    const ListenerPause pause(station.GetID(), listener);
    EXPECT_EQ(CountListeners(), 0U);
  }
  EXPECT_EQ(CountListeners(), 1U);
}

TEST_F(Pause, TheListenerIsBackAfterAFailure) {
  qelcore::messaging::AddWeakPtrListener(station.GetID(), listener);
  const auto fail = [this] {
    const ListenerPause pause(station.GetID(), listener);
    throw std::runtime_error("in between");
  };
  EXPECT_THROW(fail(), std::runtime_error);
  EXPECT_EQ(CountListeners(), 1U);
}

TEST_F(Pause, AListenerThatWasNotThereIsAfterwards) {
  { const ListenerPause pause(station.GetID(), listener); }
  EXPECT_EQ(CountListeners(), 1U);
}

TEST_F(Pause, AListenerThatDiesMeanwhileIsNotAddedAgain) {
  {
    const ListenerPause pause(station.GetID(), listener);
    listener.reset();
  }
  EXPECT_EQ(CountListeners(), 0U);
}

TEST_F(Pause, NothingHappensWithoutAListener) {
  { const ListenerPause pause(station.GetID(), {}); }
  EXPECT_EQ(CountListeners(), 0U);
}

}  // namespace
}  // namespace Vantrel
