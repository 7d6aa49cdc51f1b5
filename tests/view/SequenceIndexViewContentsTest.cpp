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
                   "AddChildView()", "AddChildView()", "AddChildView()", "AddChildView()",
                   "AddChildView()"}));
}

TEST_F(Contents, TheFilterButtonIsEnabled) {
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_EQ(recording.GetCalls({"UI_SetEnabled"}), Calls{"UI_SetEnabled(true)"});
  EXPECT_TRUE(view->GetFilterButton()->UI_IsEnabled());
}

TEST_F(Contents, AllControlsAreTheViewsInTheOrderCreated) {
  CreateContents();
  const std::vector<qelui::ui::UI_SubView*> expected{view->GetSearchField().Get(),
                                                     view->GetFilterButton().Get(),
                                                     view->GetStatusText().Get(),
                                                     view->GetRowScaleSlider().Get(),
                                                     view->GetUpdateSelectionCheckbox().Get(),
                                                     view->GetTree().Get()};
  ASSERT_EQ(view->GetChildViews().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(view->GetChildViews()[i].Get(), expected[i]);
  }
}

TEST_F(Contents, EachControlsCallbacksAreRegisteredOnce) {
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_EQ(recording.GetCalls({"NotifyWhenChanged", "NotifyWhenChangedInteractively", "AddChildView"}),
            (Calls{"NotifyWhenChangedInteractively()", "NotifyWhenChanged()", "AddChildView()",
                   "NotifyWhenChanged()", "AddChildView()",  // the filter button
                   "AddChildView()",                         // the status line
                   "NotifyWhenChangedInteractively()", "AddChildView()", "NotifyWhenChanged()",
                   "AddChildView()",  // the checkbox
                   "AddChildView()"}));
}

TEST_F(Contents, TheTableIsMadeForRowsOfEighteenPixels) {
  float heightBefore = 0;
  const hostcalls::Hook hook("SetRowHeight", [&] { heightBefore = view->GetTree()->GetRowHeight(); });
  CreateContents();
  EXPECT_EQ(heightBefore, 18);
}

TEST_F(Contents, ANewTablesRowsAreTwentyFivePixelsHigh) {
  // The table takes 54 pixels less than the view, its header 20 more: five rows of 25 are left.
  CreateContents({0, 0, 800, 54 + 20 + 125});
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  for (int i = 0; i < 20; ++i) drafts::AddClip(track, "clip", i, i + 1);
  view->GetTree()->SetSequence(AddSequence(std::move(draft)));
  host.Settle();
  EXPECT_EQ(view->GetTree()->GetRowHeight(), 25);
  EXPECT_EQ(view->GetTree()->GetVisibleRows().size(), 5U);
}

TEST_F(Contents, TheViewListensToItsTableOnceAndWeakly) {
  CreateContents();
  const auto station = view->GetTree()->GetStationID();
  EXPECT_EQ(CountListeners(station), 1U);
  const Ref tree = view->GetTree();
  const std::weak_ptr<SequenceIndexView> watched = view;
  view.reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(Contents, TakeTheActiveSequenceAsAnActivation) {
  const auto active = AddSequence(MakeOneClip("active"));
  host->GetProject().ActivateSequence(active);
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_EQ(view->GetTree()->GetSequence(), active);
  // The table attaches the view to the player once more, which changes nothing.
  const Calls expected = Join(Join({MakeCall("AddWeakPtrListener", view->GetTree()->GetStationID())},
                                   MakeCalls("AddWeakPtrListener", active)),
                              {MakeCall("AddWeakPtrListener", GetStations(active).back())});
  EXPECT_EQ(recording.GetCalls({"AddWeakPtrListener", "RemoveListener"}), expected);
  EXPECT_EQ(recording.Count("Schedule"), 2U) << "for the sequence, then for the options";
  host.Settle();
  EXPECT_EQ(view->GetTree()->CountRows(), 1U);
}

TEST_F(Contents, WithoutAnActiveSequenceOnlyTheOptionsAreHandedOver) {
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_FALSE(view->GetTree()->GetSequence());
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 1U) << "to the table";
  EXPECT_EQ(recording.Count("Schedule"), 1U);
}

TEST_F(Contents, GiveTheTableTheCheckboxTheRowHeightTheFilterButtonsLookAndTheOptionsInThisOrder) {
  host->GetProject().ActivateSequence(AddSequence(MakeOneClip("active")));
  const hostcalls::Recording recording;
  CreateContents();
  Calls calls = recording.GetCalls(
      {"Schedule", "Read checkbox", "SetRowHeight", "SetImageState", "UI_SetToolTip"});
  ASSERT_GE(calls.size(), 2U);
  calls.erase(calls.begin(), calls.begin() + 2);  // The slider's tooltip and the checkbox's.
  EXPECT_EQ(calls, (Calls{"Schedule()", "Read checkbox()", "SetRowHeight(25.0)", "SetImageState(0)",
                          "UI_SetToolTip(Control + Click to clear all filters, 200)", "Schedule()"}));
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

TEST_F(Contents, WithoutATableTheControlsDoNothing) {
  int added = 0;
  const hostcalls::Hook fault("AddChildView", [&] {
    if (++added == 5) throw std::bad_alloc();
  });
  EXPECT_THROW(CreateContents(), std::bad_alloc);
  ASSERT_TRUE(view->GetUpdateSelectionCheckbox());
  ASSERT_FALSE(view->GetTree());
  view->GetFilterButton()->Click(0);
  view->GetFilterButton()->Click(qelui::ui::kModifierControl);
  EXPECT_EQ(answers.optionsCount, 0);
  view->GetSearchField()->Type(qelcore::UTF8String("text"));
  EXPECT_TRUE(view->GetSearchText().Empty());
  view->GetRowScaleSlider()->DragTo(1);
  view->GetUpdateSelectionCheckbox()->Click();
  view->Resize({0, 0, 400, 300});
  view->NowOnDuty();
  view->NowOffDuty();
  EXPECT_TRUE(host.TakeFailures().empty());
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

TEST_F(Contents, ControlsThatOutliveTheViewDoNothing) {
  CreateContents();
  const auto button = view->GetFilterButton();
  const auto slider = view->GetRowScaleSlider();
  const auto checkbox = view->GetUpdateSelectionCheckbox();
  const std::weak_ptr<SequenceIndexView> watched = view;
  view.reset();
  EXPECT_TRUE(watched.expired()) << "its controls' callbacks must not keep it";
  const hostcalls::Recording recording;
  button->Click(0);
  slider->DragTo(1);
  checkbox->Click();
  EXPECT_EQ(answers.optionsCount, 0);
  EXPECT_EQ(recording.Count("SetRowHeight"), 0U);
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
