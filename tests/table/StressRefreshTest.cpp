#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "table/SelectionFixture.h"

namespace Vantrel {
namespace {

using qelcore::Ref;

constexpr int kClips = 40;
constexpr unsigned kSteps = 1500;

/// Content `generation`: its number stands in every name, and clips and gaps come by turns.
standalone::SequenceDraft MakeGeneration(unsigned generation) {
  auto draft = drafts::MakeSequence("Stress");
  auto& track = drafts::AddTrack(draft);
  for (int i = 0; i < kClips; ++i) {
    drafts::AddClip(track, std::to_string(generation), i * 10, i * 10 + 7);
  }
  return draft;
}

/// The full list and the filtered list are of one build: every row shown stands in the full list
/// at its number, and they are of one content.
void ExpectOneBuild(const SequenceIndexTree& tree) {
  const TrackItemDataList& full = tree.GetFullList();
  const TrackItemDataList& filtered = tree.GetFilteredList();
  ASSERT_EQ(tree.CountRows(), filtered.size());
  if (filtered.empty()) return;
  const std::string name(filtered.front().name.View());
  ASSERT_LE(filtered.size(), full.size());
  for (std::size_t i = 0; i < filtered.size(); ++i) {
    ASSERT_EQ(filtered[i].index, full[filtered[i].index].index);
    ASSERT_EQ(filtered[i].name, full[filtered[i].index].name);
    ASSERT_TRUE(filtered[i].name == "Gap" || filtered[i].name == name) << "rows of two contents";
  }
}

/// What is selected, is selected among the rows there are.
void ExpectSelectionWithinRows(const SequenceIndexTree& tree) {
  const std::size_t count = tree.CountRows();
  for (const auto* row : tree.GetSelectedRows()) ASSERT_LT(tree.GetRowIndex(row), count);
}

/// Random refreshes, option changes, edits, selections, moves of the playhead, closing and reopening,
/// on the main thread, while other threads ask for refreshes too and the pool builds.
class StressRefresh : public testing::TestWithParam<unsigned> {
 protected:
  void OpenTree() {
    const Ref opened(new SequenceIndexTree(owner, 0, 18.0F));
    opened->UI_SetBounds({0, 0, 400, 200});
    SetTree(opened);
    opened->SetSequence(sequence);
  }
  void SetTree(const Ref<SequenceIndexTree>& newTree) {
    Ref<SequenceIndexTree> previous = newTree;
    const std::scoped_lock lock(treeMutex);
    std::swap(tree, previous);
  }
  Ref<SequenceIndexTree> GetTree() {
    const std::scoped_lock lock(treeMutex);
    return tree;
  }

  void Step() {
    switch (random() % 12) {
      case 0:
        return tree->RefreshDataListsAndTreeViewAsync();
      case 1:
        return ChangeOptions();
      case 2:
        return host.GetProject().ReplaceSequence(sequence, MakeGeneration(++generation));
      case 3:
        return tree->SetSequence(random() % 4 == 0 ? Ref<BE::ISequence>() : sequence);
      case 4:
        if (random() % 8 == 0) OpenTree();
        return;
      case 5:
        return std::this_thread::sleep_for(std::chrono::microseconds(random() % 300));
      case 6:
        return GetPlayer()->SetCurrentPosition(GetRandomTime());
      case 7:
        if (tree->CountRows() == 0) return;
        return tree->GetControl().Click(random() % tree->CountRows(), random() % 8);
      case 8:
        tree->SetOnDuty(random() % 2 == 0);
        return tree->SetUpdateTimelineSelection(random() % 2 == 0);
      default:
        host.GetRuntime().GetMainQueue().RunOne();
        ExpectOneBuild(*tree);
        ExpectSelectionWithinRows(*tree);
    }
  }
  void ChangeOptions() {
    MZ::SequenceIndex::Options options;
    options.isKeepingGaps = random() % 2 == 0;
    options.shortGapThreshold = static_cast<std::int32_t>(random() % 10) - 2;
    options.matchMode = random() % 2;
    for (auto& [id, isSelected] : options.filterToggles) isSelected = random() % 10 == 0;
    if (random() % 4 == 0) options.labelColors.emplace_back();
    tree->SetOptions(options);
    // "mov" is in no text that is searched.
    static constexpr std::string_view kTexts[] = {"", "1", "fps", "mov"};
    tree->SetSearchText(qelcore::UTF8String(kTexts[random() % 4]));
  }

  Ref<ML::IPlayer> GetPlayer() const { return MZ::GetSequencePlayer(sequence, 0); }
  qelmediatypes::TickTime GetRandomTime() {
    return drafts::Frame(static_cast<std::int64_t>(random() % (kClips * 10 + 20)) - 10);
  }

  std::mt19937 random{GetParam()};
  standalone::StandaloneHost host;
  unsigned generation = 0;
  Ref<BE::ISequence> sequence = AddSequence(MakeGeneration(0));
  std::mutex treeMutex;
  Ref<SequenceIndexTree> tree;
  /// Follows the player, as a panel does.
  std::shared_ptr<Ear> owner = std::make_shared<Ear>(
      [this](const auto&) { tree->FollowPlayerPosition(GetPlayer()->GetCurrentPosition()); });
};

TEST_P(StressRefresh, EndsWithTheLastContentAndNeverMixesTwoBuilds) {
  host.GetProject().ActivateSequence(sequence);
  OpenTree();
  std::atomic<bool> isDone = false;
  std::vector<std::thread> askers;
  for (int i = 0; i < 2; ++i) {
    askers.emplace_back([&] {
      while (!isDone) {
        GetTree()->RefreshDataListsAndTreeViewAsync();
        std::this_thread::sleep_for(std::chrono::microseconds(500));
      }
    });
  }
  for (unsigned i = 0; i < kSteps && !HasFatalFailure(); ++i) Step();
  isDone = true;
  for (auto& asker : askers) asker.join();

  tree->SetOptions({});
  tree->SetSearchText({});
  tree->SetSequence(sequence);
  host.GetRuntime().Drain();
  ExpectOneBuild(*tree);
  ASSERT_EQ(tree->GetFilteredList().size(), static_cast<std::size_t>(kClips));
  EXPECT_EQ(tree->GetFilteredList().front().name, std::to_string(generation));
  EXPECT_TRUE(host.GetRuntime().GetLog().TakeFailures().empty());
}

INSTANTIATE_TEST_SUITE_P(StressSeeds, StressRefresh, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
}  // namespace Vantrel
