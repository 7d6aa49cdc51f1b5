#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/qelui/Events.h"
#include "module/RandomPanelUser.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/toolkit/TreeControl.h"
#include "support/Drafts.h"

namespace Vantrel {
namespace {

/// About a minute of work for all seeds under the thread sanitizer.
constexpr unsigned kSteps = 40000;
constexpr unsigned kStepsBetweenChecks = 250;

std::vector<std::size_t> GetSelectedPositions(const SequenceIndexTree& tree) {
  std::vector<std::size_t> positions;
  for (const auto* row : tree.GetSelectedRows()) positions.push_back(tree.GetRowIndex(row));
  return positions;
}

class StressPanel : public testing::TestWithParam<unsigned> {
 protected:
  /// What holds between any two steps.
  void Check() {
    const auto view = std::dynamic_pointer_cast<SequenceIndexView>(host.GetPanel());
    if (view == nullptr) return;
    CheckRows(*view);
    // A new panel has nothing to say before its first rows come.
    if (!view->GetStatusText()->GetValue().Empty()) CheckStatus(*view);
  }
  /// What holds whenever everything has settled.
  void SettleAndCheck() {
    const auto view = user.GetView();
    user.Settle();
    CheckRows(*view);
    CheckStatus(*view);
    CheckFollowing(*view);
    CheckRows(*view);
    CheckStatus(*view);
    EXPECT_EQ(host.GetRuntime().GetLog().TakeFailures(), std::vector<std::string>());
  }
  void CheckRows(const SequenceIndexView& view) {
    const auto& tree = *view.GetTree();
    const auto& control = tree.GetControl();
    EXPECT_EQ(tree.GetSequence(), host.GetProject().GetActiveSequence());
    const std::size_t rows = tree.CountRows();
    EXPECT_EQ(rows, tree.GetFilteredList().size());
    EXPECT_LE(rows, tree.GetFullList().size());
    const auto selected = GetSelectedPositions(tree);
    EXPECT_EQ(selected.size(), control.CountSelected());
    EXPECT_TRUE(selected.empty() || selected.back() < rows);
    EXPECT_TRUE(!control.GetCurrent() || *control.GetCurrent() < rows);
    const auto visible = control.GetVisiblePositions();
    EXPECT_TRUE(visible.empty() || visible.back() < rows);
    const std::int64_t range = control.GetContentHeight() - control.GetViewportHeight();
    EXPECT_LE(control.GetScrollPosition(), std::max<std::int64_t>(range, 0));
  }
  void CheckStatus(const SequenceIndexView& view) {
    const std::size_t selected = view.GetTree()->GetControl().CountSelected();
    const std::string total = std::to_string(view.GetTree()->CountRows());
    EXPECT_EQ(view.GetStatusText()->GetValue(),
              selected == 0 ? total + " Items"
                            : std::to_string(selected) + " of " + total + " Item(s) Selected");
  }
  /// Wherever the playhead of the active sequence is put, exactly the rows under it are selected.
  void CheckFollowing(const SequenceIndexView& view) {
    const auto player = standalone::FindPlayer(host.GetProject().GetActiveSequence());
    if (!player) return;
    // Not where it may have been followed to before.
    const auto time = drafts::Frame(user.Pick(RandomPanelUser::kLongestFrame)) +
                      qelmediatypes::TickTime(1000 + ++checks);
    player->SetCurrentPosition(time);
    EXPECT_EQ(player->GetCurrentPosition(), time);
    std::vector<std::size_t> expected;
    const auto& rows = view.GetTree()->GetFilteredList();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].start <= time && time < rows[i].end) expected.push_back(i);
    }
    EXPECT_EQ(GetSelectedPositions(*view.GetTree()), expected);
  }

  RandomPanelUser user{GetParam()};
  standalone::StandaloneHost& host = user.GetHost();
  unsigned checks = 0;
};

TEST_P(StressPanel, StaysWholeAndEndsShowingTheActiveSequence) {
  for (unsigned i = 1; i <= kSteps; ++i) {
    SCOPED_TRACE("seed " + std::to_string(GetParam()) + ", step " + std::to_string(i));
    user.Step();
    Check();
    if (i % kStepsBetweenChecks == 0) SettleAndCheck();
    if (HasFailure()) return;
  }
  user.Settle();
  const auto shown = user.GetFirstSequence();
  auto draft = drafts::MakeSequence("last");
  for (int i = 0; i < 7; ++i) drafts::AddClip(drafts::AddTrack(draft), "last", i * 10, i * 10 + 8);
  host.GetProject().ReplaceSequence(shown, draft);
  host.GetProject().ActivateSequence(shown);
  const auto view = user.GetView();
  view->GetSearchField()->Type(qelcore::UTF8String());
  view->GetFilterButton()->Click(qelui::ui::kModifierControl);
  user.Settle();
  EXPECT_EQ(view->GetName(), "Sequence Index: last");
  ASSERT_EQ(view->GetTree()->GetFilteredList().size(), 7U);
  EXPECT_EQ(view->GetTree()->CountRows(), 7U);
  EXPECT_EQ(view->GetTree()->GetFilteredList().back().name, "last");
  EXPECT_TRUE(host.GetRuntime().GetLog().TakeFailures().empty());
}

INSTANTIATE_TEST_SUITE_P(StressSeeds, StressPanel, testing::Values(11U, 12U, 13U, 14U));

}  // namespace
}  // namespace Vantrel
