#include "host/qelui/Node.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::Ref;
using qelui::Rect;

/// Notes the thread on which it is destroyed.
class WatchedNode final : public qelui::ui::UI_SubView {
 public:
  explicit WatchedNode(std::atomic<std::thread::id>& destroyedOn) : destroyedOn(destroyedOn) {}
  ~WatchedNode() override { destroyedOn = std::this_thread::get_id(); }

 private:
  std::atomic<std::thread::id>& destroyedOn;
};

/// Counts its ends, and those off the main thread.
class CountedNode final : public qelui::ui::UI_SubView {
 public:
  CountedNode(std::atomic<int>& gone, std::atomic<int>& goneElsewhere)
      : gone(gone), goneElsewhere(goneElsewhere) {}
  ~CountedNode() override {
    if (!qelcore::threads::CurrentThreadIsMainThread()) ++goneElsewhere;
    ++gone;
  }

 private:
  std::atomic<int>& gone;
  std::atomic<int>& goneElsewhere;
};

void DropOnAnotherThread(Ref<WatchedNode> node) {
  std::thread([&node] { node.Reset(); }).join();
}

TEST(NodeToolTip, IsKeptWithItsWidth) {
  const standalone::Runtime runtime;
  std::atomic<std::thread::id> destroyedOn;
  const Ref node(new WatchedNode(destroyedOn));
  EXPECT_TRUE(node->UI_GetToolTip().Empty());
  node->UI_SetToolTip(qelcore::UTF8String("two\nlines"), 200);
  EXPECT_EQ(node->UI_GetToolTip().View(), "two\nlines");
  EXPECT_EQ(node->UI_GetToolTipWidth(), 200U);
}

TEST(NodeDeletion, AControlDroppedOnTheMainThreadGoesAtOnce) {
  standalone::Runtime runtime;
  std::atomic<std::thread::id> destroyedOn;
  Ref<WatchedNode> node(new WatchedNode(destroyedOn));
  node.Reset();
  EXPECT_EQ(destroyedOn.load(), std::this_thread::get_id());
}

TEST(NodeDeletion, AControlDroppedOnAnotherThreadGoesOnTheMainThread) {
  standalone::Runtime runtime;
  std::atomic<std::thread::id> destroyedOn;
  DropOnAnotherThread(Ref(new WatchedNode(destroyedOn)));
  EXPECT_EQ(destroyedOn.load(), std::thread::id());
  runtime.GetMainQueue().RunUntilEmpty();
  EXPECT_EQ(destroyedOn.load(), std::this_thread::get_id());
}

TEST(NodeDeletion, AMainThreadThatIsBusyDeletingNeverLeavesAControlToTheOther) {
  constexpr int kWorkers = 4;
  constexpr int kControls = 5000;  // Of each worker.
  standalone::Runtime runtime;
  std::atomic<int> gone = 0;
  std::atomic<int> goneElsewhere = 0;
  std::vector<std::thread> workers;
  for (int i = 0; i < kWorkers; ++i) {
    workers.emplace_back([&] {
      for (int j = 0; j < kControls; ++j) Ref(new CountedNode(gone, goneElsewhere)).Reset();
    });
  }
  while (gone < kWorkers * kControls) runtime.GetMainQueue().RunUntilEmpty();
  for (std::thread& worker : workers) worker.join();
  EXPECT_EQ(goneElsewhere.load(), 0);
}

TEST(NodeDeletion, AQueuedDeletionAlsoRunsInANestedLoop) {
  standalone::Runtime runtime;
  std::atomic<std::thread::id> destroyedOn;
  const standalone::MainQueue::NestedLoop loop(runtime.GetMainQueue());
  DropOnAnotherThread(Ref(new WatchedNode(destroyedOn)));
  runtime.GetMainQueue().RunUntilEmpty();
  EXPECT_EQ(destroyedOn.load(), std::this_thread::get_id());
}

TEST(NodeDeletion, AControlWhoseDeletionNeverRanGoesWithTheRuntime) {
  auto runtime = std::make_unique<standalone::Runtime>();
  std::atomic<std::thread::id> destroyedOn;
  DropOnAnotherThread(Ref(new WatchedNode(destroyedOn)));
  runtime.reset();
  EXPECT_EQ(destroyedOn.load(), std::this_thread::get_id());
}

TEST(NodeDeletion, AWeakReferenceFindsNothingOnceTheLastOwnerIsGone) {
  standalone::Runtime runtime;
  std::atomic<std::thread::id> destroyedOn;
  Ref<WatchedNode> node(new WatchedNode(destroyedOn));
  const qelcore::WeakRef<WatchedNode> weak(node);
  DropOnAnotherThread(std::move(node));
  EXPECT_FALSE(weak.Lock());
  runtime.GetMainQueue().RunUntilEmpty();
  EXPECT_FALSE(weak.Lock());
}

class NodeState : public testing::Test {
 protected:
  standalone::Runtime runtime;
  std::atomic<std::thread::id> destroyedOn;
  Ref<WatchedNode> node{new WatchedNode(destroyedOn)};
};

TEST_F(NodeState, BoundsAreKeptAsGiven) {
  node->UI_SetBounds({-3.5F, 2.25F, 10, 20.5F});
  EXPECT_EQ(node->UI_GetBounds(), (Rect{-3.5F, 2.25F, 10, 20.5F}));
}

TEST_F(NodeState, ANegativeSizeCountsAsZero) {
  node->UI_SetBounds({1, 2, -1, -0.5F});
  EXPECT_EQ(node->UI_GetBounds(), (Rect{1, 2, 0, 0}));
}

TEST_F(NodeState, IsEnabledUntilItIsDisabled) {
  EXPECT_TRUE(node->UI_IsEnabled());
  node->UI_SetEnabled(false);
  EXPECT_FALSE(node->UI_IsEnabled());
}

TEST_F(NodeState, APlainViewHandlesNoMouseEvent) {
  EXPECT_FALSE(node->UI_DoMouseEvent(
      {qelui::ui::PointerAction::kPress, {}, qelui::ui::MouseButton::kPrimary, 1}));
}

TEST_F(NodeState, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(node->UI_SetEnabled(true), "UI_Node::UI_SetEnabled");
  EXPECT_STOPS_OFF_MAIN_THREAD(node->UI_SetBounds({}), "UI_Node::UI_SetBounds");
  EXPECT_STOPS_OFF_MAIN_THREAD(node->UI_GetBounds(), "UI_Node::UI_GetBounds");
  EXPECT_STOPS_OFF_MAIN_THREAD(node->UI_SetToolTip({}, 0), "UI_Node::UI_SetToolTip");
  EXPECT_STOPS_OFF_MAIN_THREAD(node->UI_GetToolTip(), "UI_Node::UI_GetToolTip");
}

}  // namespace
