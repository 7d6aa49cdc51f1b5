#include "host/qelcore/CountedObject.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

using qelcore::CountedObject;
using qelcore::Ref;
using qelcore::WeakRef;

class Node final : public CountedObject {
 public:
  explicit Node(std::atomic<int>& destroyed) : destroyed(destroyed) {}
  ~Node() override { ++destroyed; }
  void Touch() { ++touches; }

  int touches = 0;

 private:
  std::atomic<int>& destroyed;
};

TEST(CountedObject, TheLastReferenceDestroysIt) {
  std::atomic<int> destroyed = 0;
  Ref<Node> one(new Node(destroyed));
  Ref<Node> two = one;
  one.Reset();
  EXPECT_EQ(destroyed, 0);
  two.Reset();
  EXPECT_EQ(destroyed, 1);
}

TEST(WeakRef, LocksOnlyWhileTheObjectLives) {
  std::atomic<int> destroyed = 0;
  Ref<Node> strong(new Node(destroyed));
  const WeakRef<Node> weak = strong;
  EXPECT_EQ(weak.Lock(), strong);
  strong.Reset();
  EXPECT_FALSE(weak.Lock());
  EXPECT_FALSE(WeakRef<Node>().Lock());
}

TEST(WeakRef, CopiesOutliveTheObject) {
  std::atomic<int> destroyed = 0;
  Ref<Node> strong(new Node(destroyed));
  WeakRef<Node> weak = strong;
  strong.Reset();
  WeakRef<Node> copy = weak;
  weak = WeakRef<Node>();
  const WeakRef<Node> moved = std::move(copy);
  EXPECT_FALSE(moved.Lock());
}

/// Remembers itself weakly from its constructor and looks at itself while it goes.
class Introspective final : public CountedObject {
 public:
  explicit Introspective(int& destroyed) : self(this), destroyed(destroyed) {
    EXPECT_FALSE(self.Lock()) << "nobody owns the object yet";
  }
  ~Introspective() override {
    ++destroyed;
    EXPECT_FALSE(self.Lock()) << "the object is going";
    const Ref<Introspective> transient(this);
  }

 private:
  WeakRef<Introspective> self;
  int& destroyed;
};

TEST(CountedObject, IsNeitherRevivedNorDestroyedTwiceByItsOwnDestructor) {
  int destroyed = 0;
  Ref<Introspective>(new Introspective(destroyed)).Reset();
  EXPECT_EQ(destroyed, 1);
}

class Failing final : public CountedObject {
 public:
  Failing() { throw std::runtime_error("not built"); }
};

TEST(CountedObject, AFailedConstructionLeavesNothing) {
  EXPECT_THROW(Ref<Failing>(new Failing), std::runtime_error);
}

class Kept final : public CountedObject {
 public:
  explicit Kept(int& deletions) : deletions(deletions) {}
  void Destroy() { delete this; }

 private:
  void DeleteSelf() noexcept override { ++deletions; }
  int& deletions;
};

TEST(CountedObject, ADerivedClassDecidesHowItGoes) {
  int deletions = 0;
  Kept* const kept = new Kept(deletions);
  const WeakRef<Kept> weak(kept);
  Ref<Kept>(kept).Reset();
  EXPECT_EQ(deletions, 1);
  EXPECT_FALSE(weak.Lock()) << "an object that waits for its end is gone";
  kept->Destroy();
}

TEST(WeakBind, CallsTheMemberOnlyWhileTheObjectLives) {
  std::atomic<int> destroyed = 0;
  Ref<Node> node(new Node(destroyed));
  const std::function<void()> touch = qelcore::utility::WeakBind(&Node::Touch, WeakRef<Node>(node));
  touch();
  EXPECT_EQ(node->touches, 1);
  node.Reset();
  EXPECT_EQ(destroyed, 1) << "a bound function does not keep the object";
  touch();
}

struct Plain {
  int touches = 0;
  void Touch() { ++touches; }
};

TEST(WeakBind, TakesWeakPointersToo) {
  auto object = std::make_shared<Plain>();
  const std::function<void()> touch =
      qelcore::utility::WeakBind(&Plain::Touch, std::weak_ptr<Plain>(object));
  touch();
  EXPECT_EQ(object->touches, 1);
  object.reset();
  touch();
}

TEST(CountedObject, WeakLocksRaceWithTheLastRelease) {
  for (int round = 0; round < 300; ++round) {
    std::atomic<int> destroyed = 0;
    std::atomic<bool> go = false;
    Ref<Node> strong(new Node(destroyed));
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i) {
      threads.emplace_back([&go, weak = WeakRef<Node>(strong)] {
        while (!go) std::this_thread::yield();
        for (int turn = 0; turn < 20; ++turn) {
          const Ref<Node> locked = weak.Lock();
          const WeakRef<Node> copy = weak;
        }
      });
    }
    go = true;
    strong.Reset();
    for (std::thread& thread : threads) thread.join();
    ASSERT_EQ(destroyed, 1);
  }
}

}  // namespace
