#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <optional>
#include <string>
#include <utility>

#include "host/qelui/Events.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using Contents = ViewFixture;
using MZ::SequenceIndex::Options;
using qelcore::Ref;

Options WithThreshold(std::int32_t threshold) {
  Options options;
  options.shortGapThreshold = threshold;
  return options;
}

TEST_F(Contents, AreMarkedAsToolkitViewsAndDoubleBufferedFirst) {
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_EQ(recording.GetCalls({"SetHasQELChildViews", "EnableDoubleBuffering", "AddChildView"}),
            (Calls{"SetHasQELChildViews(true)", "EnableDoubleBuffering(true)", "AddChildView()",
                   "AddChildView()", "AddChildView()"}));
}

TEST_F(Contents, StandAtTheirPlacesInTheViewsRectangle) {
  CreateContents({100, 50, 800, 600});
  EXPECT_EQ(view->GetSearchField()->UI_GetBounds(), (qelui::Rect{112, 62, 240, 24}));
  EXPECT_EQ(view->GetFilterButton()->UI_GetBounds(), (qelui::Rect{360, 62, 24, 24}));
  EXPECT_EQ(view->GetTree()->UI_GetBounds(), (qelui::Rect{112, 92, 776, 546}));
}

TEST_F(Contents, TheFilterButtonIsEnabledAndAllControlsAreTheViews) {
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_EQ(recording.GetCalls({"UI_SetEnabled"}), Calls{"UI_SetEnabled(true)"});
  EXPECT_TRUE(view->GetFilterButton()->UI_IsEnabled());
  ASSERT_EQ(view->GetChildViews().size(), 3U);
  EXPECT_EQ(view->GetChildViews()[0].Get(), view->GetSearchField().Get());
  EXPECT_EQ(view->GetChildViews()[1].Get(), view->GetFilterButton().Get());
  EXPECT_EQ(view->GetChildViews()[2].Get(), view->GetTree().Get());
}

TEST_F(Contents, ANewTablesRowsAreEighteenPixelsHigh) {
  // The table takes 54 pixels less than the view, its header 20 more: five rows of 18 are left.
  CreateContents({0, 0, 800, 54 + 20 + 90});
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  for (int i = 0; i < 20; ++i) drafts::AddClip(track, "clip", i, i + 1);
  view->GetTree()->SetSequence(AddSequence(std::move(draft)));
  host.Settle();
  EXPECT_EQ(view->GetTree()->GetVisibleRows().size(), 5U);
}

TEST_F(Contents, TakeTheActiveSequenceAsAnActivation) {
  const auto active = AddSequence(MakeOneClip("active"));
  host->GetProject().ActivateSequence(active);
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_EQ(view->GetTree()->GetSequence(), active);
  EXPECT_EQ(recording.GetCalls({"AddWeakPtrListener", "RemoveListener"}),
            MakeCalls("AddWeakPtrListener", active));
  EXPECT_EQ(recording.Count("Schedule"), 2U) << "for the sequence, then for the options";
  host.Settle();
  EXPECT_EQ(view->GetTree()->CountRows(), 1U);
}

TEST_F(Contents, WithoutAnActiveSequenceOnlyTheOptionsAreHandedOver) {
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_FALSE(view->GetTree()->GetSequence());
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 0U);
  EXPECT_EQ(recording.Count("Schedule"), 1U);
}

TEST_F(Contents, WhileAWorkspaceIsBeingLoadedTheTableWaitsForAnActivation) {
  const auto active = AddSequence(MakeOneClip("active"));
  host->GetProject().ActivateSequence(active);
  host->GetFramework().SetWorkspaceIsBeingLoaded(true);
  view->SubscribeToStations();
  CreateContents();
  host->GetFramework().SetWorkspaceIsBeingLoaded(false);
  EXPECT_FALSE(view->GetTree()->GetSequence());
  host->GetProject().ActivateSequence(active);
  EXPECT_EQ(view->GetTree()->GetSequence(), active);
}

TEST_F(Contents, WithoutATableAClickOnTheFilterButtonDoesNothing) {
  int added = 0;
  const hostcalls::Hook fault("AddChildView", [&] {
    if (++added == 2) throw std::bad_alloc();
  });
  EXPECT_THROW(CreateContents(), std::bad_alloc);
  ASSERT_TRUE(view->GetFilterButton());
  ASSERT_FALSE(view->GetTree());
  view->GetFilterButton()->Click(0);
  view->GetFilterButton()->Click(qelui::ui::kModifierControl);
  EXPECT_EQ(answers.optionsCount, 0);
  view->GetSearchField()->Type(qelcore::UTF8String("text"));
  EXPECT_TRUE(view->GetSearchText().Empty());
}

TEST_F(Contents, AControlClickResetsTheOptionsWithoutADialog) {
  CreateContents();
  answers.optionsAnswer = [](const Options&) { return std::optional(WithThreshold(9)); };
  view->GetFilterButton()->Click(0);
  ASSERT_EQ(view->GetOptions(), WithThreshold(9));
  const hostcalls::Recording recording;
  view->GetFilterButton()->Click(qelui::ui::kModifierControl);
  EXPECT_EQ(answers.optionsCount, 1);
  EXPECT_EQ(view->GetOptions(), Options());
  EXPECT_EQ(recording.Count("Schedule"), 1U);
}

TEST_F(Contents, AControlClickWithFurtherModifiersResetsToo) {
  CreateContents();
  view->GetFilterButton()->Click(qelui::ui::kModifierControl | qelui::ui::kModifierShift |
                                 qelui::ui::kModifierAlt);
  EXPECT_EQ(answers.optionsCount, 0);
}

TEST_F(Contents, OtherModifiersOpenTheDialog) {
  CreateContents();
  view->GetFilterButton()->Click(qelui::ui::kModifierShift | qelui::ui::kModifierAlt);
  EXPECT_EQ(answers.optionsCount, 1);
}

TEST_F(Contents, TheDialogGetsTheCurrentOptionsAndItsAnswerReplacesThemWhole) {
  CreateContents();
  answers.optionsAnswer = [](const Options&) {
    Options options = WithThreshold(3);
    options.isKeepingGaps = true;
    return std::optional(options);
  };
  view->GetFilterButton()->Click(0);
  std::optional<Options> shown;
  answers.optionsAnswer = [&](const Options& current) {
    shown = current;
    return std::optional(WithThreshold(7));
  };
  view->GetFilterButton()->Click(0);
  ASSERT_TRUE(shown.has_value());
  EXPECT_EQ(shown->shortGapThreshold, 3);
  EXPECT_TRUE(shown->isKeepingGaps);
  EXPECT_EQ(view->GetOptions(), WithThreshold(7));
}

TEST_F(Contents, ChangedOptionsReachTheTable) {
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "clip", 5, 10);
  host->GetProject().ActivateSequence(AddSequence(std::move(draft)));
  CreateContents();
  host.Settle();
  ASSERT_EQ(view->GetTree()->CountRows(), 1U);
  answers.optionsAnswer = [](const Options&) {
    Options options;
    options.isKeepingGaps = true;
    return std::optional(options);
  };
  view->GetFilterButton()->Click(0);
  host.Settle();
  EXPECT_EQ(view->GetTree()->CountRows(), 2U);
}

TEST_F(Contents, ACancelledDialogKeepsTheOptionsAndHandsThemOverAgain) {
  CreateContents();
  const hostcalls::Recording recording;
  view->GetFilterButton()->Click(0);
  EXPECT_EQ(view->GetOptions(), Options());
  EXPECT_EQ(recording.Count("Schedule"), 1U);
}

TEST_F(Contents, AClickAfterTheViewIsGoneDoesNothing) {
  CreateContents();
  const auto button = view->GetFilterButton();
  const std::weak_ptr<SequenceIndexView> watched = view;
  view.reset();
  EXPECT_TRUE(watched.expired()) << "its control's callback must not keep it";
  button->Click(0);
  EXPECT_EQ(answers.optionsCount, 0);
}

TEST_F(Contents, SurviveAPanelThatIsClosedWhileTheOptionsDialogIsOpen) {
  CreateContents();
  const std::weak_ptr<SequenceIndexView> watched = view;
  const auto button = view->GetFilterButton();
  answers.optionsAnswer = [&](const Options&) {
    view.reset();
    return std::optional(WithThreshold(1));
  };
  button->Click(0);
  EXPECT_TRUE(watched.expired());
  host.Settle();
  EXPECT_TRUE(host.TakeFailures().empty());
}

TEST_F(Contents, AClosedViewsQueuedBuildsDoNothing) {
  host->GetProject().ActivateSequence(AddSequence(MakeOneClip("clip")));
  CreateContents();
  view.reset();
  const hostcalls::Recording recording;
  host.Settle();
  EXPECT_EQ(recording.Count("VisitSequence"), 0U);
}

TEST_F(Contents, AnotherViewStartsWithDefaultOptions) {
  CreateContents();
  answers.optionsAnswer = [](const Options&) { return std::optional(WithThreshold(9)); };
  view->GetFilterButton()->Click(0);
  view = qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
  EXPECT_EQ(view->GetOptions(), Options());
}

}  // namespace
}  // namespace Vantrel
