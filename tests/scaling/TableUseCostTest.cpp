#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#include "generator/LongDocument.h"
#include "host/ML/Player.h"
#include "host/MZ/Sequences.h"
#include "host/qelui/Events.h"
#include "host/qelui/MultiColumnTree.h"
#include "scaling/AllocationWatch.h"
#include "scaling/GrowthFixture.h"
#include "scaling/HostCallCounts.h"
#include "standalone/app/IndexSession.h"
#include "standalone/app/PanelSetUp.h"
#include "standalone/toolkit/TreeControl.h"

/// What a user does in a long table costs what it does in a short one.
namespace {

using qelmediatypes::TickTime;
using scaling::Allocations;
using scaling::HostCallCounts;
using standalone::IndexSession;

constexpr std::size_t kFewClips = 4000;
constexpr std::size_t kManyClips = 64000;

struct Cost {
  Allocations allocations;
  HostCallCounts calls;
};

/// A shown table, and what an action in it costs. The action is done once before, for the room that is
/// kept from then on.
class ShownTable {
 public:
  explicit ShownTable(std::size_t clips) {
    standalone::SetUpPanel(session, scaling::ShowEverything());
    session.ShowDocument(generator::MakeDocument({.clips = clips}));
    GetTree().UI_SetBounds({0, 0, 2000, 400});
  }

  qelui::controls::UI_MultiColumnTree& GetTree() const { return session.GetTree(); }
  ML::IPlayer& GetPlayer() {
    return *MZ::GetSequencePlayer(session.GetHost().GetProject().GetActiveSequence(), 0);
  }

  template <typename Action>
  Cost Measure(const Action& action) {
    action();
    const HostCallCounts before = scaling::GetHostCallCounts();
    const scaling::AllocationWatch watch;
    action();
    Cost cost{watch.Take(), scaling::GetHostCallCounts()};
    for (auto& [name, count] : cost.calls) count -= before.at(name);
    return cost;
  }

 private:
  IndexSession session;
};

/// The playhead goes to places all over the first minutes, which both tables have.
Cost MeasureFollowing(std::size_t clips) {
  ShownTable table(clips);
  return table.Measure([&table] {
    for (std::int64_t step = 1; step <= 100; ++step) {
      table.GetPlayer().SetCurrentPosition(TickTime(step * 37 % 100 * TickTime::kTicksPerSecond));
    }
  });
}

TEST(TableUseCost, FollowingThePlayheadCostsTheSameHoweverLongTheTableIs) {
  const Cost few = MeasureFollowing(kFewClips);
  const Cost many = MeasureFollowing(kManyClips);
  EXPECT_EQ(many.calls, few.calls);
  EXPECT_LE(many.allocations.count, few.allocations.count * 11 / 10);
  // A bit for each row above the selected ones, and no more.
  EXPECT_LE(many.allocations.bytes, few.allocations.bytes * 11 / 10 + 100 * kManyClips / 8);
}

Cost MeasureSelecting(std::size_t clips) {
  constexpr std::size_t kSelected = 1000;
  ShownTable table(clips);
  auto& control = table.GetTree().GetControl();
  return table.Measure([&] {
    control.Click(0, 0);
    control.Click(kSelected - 1, qelui::ui::kModifierShift);
    EXPECT_EQ(table.GetTree().GetSelectedRows().size(), kSelected);
    control.Click(std::nullopt, 0);
  });
}

TEST(TableUseCost, SelectingAThousandRowsCostsTheSameHoweverLongTheTableIs) {
  const Cost few = MeasureSelecting(kFewClips);
  const Cost many = MeasureSelecting(kManyClips);
  EXPECT_EQ(many.calls, few.calls);
  EXPECT_LE(many.allocations.count, few.allocations.count + 20);
}

TEST(TableUseCost, ASelectedRowCostsFewHostCallsAndAllocations) {
  constexpr std::size_t kSelected = 1000;
  const Cost cost = MeasureSelecting(kFewClips);
  for (const auto& [name, count] : cost.calls) EXPECT_LE(count, 2 * kSelected + 100) << name;
  EXPECT_LE(cost.allocations.count, 2 * kSelected + 100);
}

Cost MeasureScrolling(std::size_t clips) {
  ShownTable table(clips);
  auto& tree = table.GetTree();
  return table.Measure([&tree] {
    const std::size_t rows = tree.CountRows();
    for (std::size_t i = 0; i < 100; ++i) {
      tree.ScrollRowIntoView(tree.GetRow(i * 7919 % rows), true, true, true);
    }
  });
}

TEST(TableUseCost, ScrollingToARowCostsTheSameHoweverLongTheTableIs) {
  const Cost few = MeasureScrolling(kFewClips);
  const Cost many = MeasureScrolling(kManyClips);
  EXPECT_EQ(many.calls, few.calls);
  EXPECT_EQ(many.allocations.count, few.allocations.count);
}

}  // namespace
