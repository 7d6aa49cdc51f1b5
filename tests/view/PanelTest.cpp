#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/qelui/Events.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/toolkit/TreeControl.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using drafts::Frame;
using qelcore::Ref;
using Sequence = Ref<BE::ISequence>;
using testing::ElementsAre;
using testing::IsEmpty;

/// What a station carries.
class Probe final : public qelcore::messaging::Listener {
 public:
  std::vector<qelmediatypes::TickTime> positions;
  std::vector<std::vector<Ref<BE::ITrackItem>>> activations;

  void ReceiveMessage(const qelcore::messaging::Message& message) override {
    if (const auto* moved = dynamic_cast<const ML::PlayerPositionChangedMessage*>(&message)) {
      positions.push_back(moved->GetPosition());
    } else if (const auto* activated = dynamic_cast<const MZ::TrackItemActivationMessage*>(&message)) {
      activations.emplace_back();
      for (const auto& item : activated->GetItems()) activations.back().push_back(item.trackItem);
    }
  }
};

/// A panel on a sequence of twelve clips of ten frames, as the host announces it.
class Panel : public ViewFixture {
 protected:
  static constexpr std::size_t kRows = 12;

  Panel() {
    view->SubscribeToStations();
    CreateContents();
    host->GetProject().ActivateSequence(sequence);
    host.Settle();
    qelcore::messaging::AddWeakPtrListener(GetPlayer().GetStationID(), probe);
    qelcore::messaging::AddWeakPtrListener(MZ::kStation_TrackItemActivation, probe);
  }
  static standalone::SequenceDraft MakeTwelveClips() {
    auto draft = drafts::MakeSequence("Reel");
    auto& track = drafts::AddTrack(draft);
    for (int i = 0; i < 12; ++i) drafts::AddClip(track, "clip", 10 * i, 10 * i + 10);
    return draft;
  }
  standalone::PlayerNode& GetPlayer() const { return *standalone::FindPlayer(sequence); }
  SequenceIndexTree& GetTree() const { return *view->GetTree(); }
  void Click(std::size_t row, std::uint32_t modifiers = 0) {
    GetTree().GetControl().Click(row, modifiers);
  }
  std::vector<std::size_t> GetSelection() const {
    std::vector<std::size_t> positions;
    for (const auto* row : GetTree().GetSelectedRows()) positions.push_back(GetTree().GetRowIndex(row));
    return positions;
  }

  Sequence sequence = AddSequence(MakeTwelveClips());
  std::shared_ptr<Probe> probe = std::make_shared<Probe>();
};

TEST_F(Panel, ShowsTheRowUnderThePlayheadAtFirst) {
  EXPECT_THAT(GetSelection(), ElementsAre(0));
  EXPECT_EQ(GetStatus(), "1 of 12 Item(s) Selected");
}

TEST_F(Panel, PlayheadMovesSelectRowsAndUpdateTheStatusLine) {
  GetPlayer().SetCurrentPosition(Frame(35));
  EXPECT_THAT(GetSelection(), ElementsAre(3));
  EXPECT_EQ(GetStatus(), "1 of 12 Item(s) Selected");
  GetPlayer().SetCurrentPosition(Frame(120));
  EXPECT_THAT(GetSelection(), IsEmpty());
  EXPECT_EQ(GetStatus(), "12 Items");
}

TEST_F(Panel, PlaybackSelectsRows) {
  GetPlayer().Play(1);
  EXPECT_THAT(GetSelection(), ElementsAre(0)) << "the start alone moves nothing";
  GetPlayer().Advance(Frame(15));
  EXPECT_THAT(GetSelection(), ElementsAre(1));
  GetPlayer().Stop();
  EXPECT_THAT(GetSelection(), ElementsAre(1));
}

TEST_F(Panel, EachMoveOfThePlayheadIsHeardOnce) {
  EXPECT_EQ(CountListeners(GetPlayer().GetStationID()), 2U) << "the view and this test's probe";
  GetPlayer().SetCurrentPosition(Frame(120));
  // Where no row is, each delivery gives the status line its text once.
  const hostcalls::Recording recording;
  for (int i = 1; i <= 10; ++i) GetPlayer().SetCurrentPosition(Frame(120 + i));
  EXPECT_EQ(recording.GetCalls({"Set status"}), Calls(10, "Set status(12 Items)"));
}

TEST_F(Panel, SelectingARowOnDutyMovesThePlayheadOnceEachTime) {
  view->NowOnDuty();
  for (std::size_t row = 1; row <= 10; ++row) {
    const hostcalls::Recording recording;
    probe->positions.clear();
    Click(row);
    const auto start = Frame(10 * static_cast<std::int64_t>(row));
    EXPECT_EQ(GetPlayer().GetCurrentPosition(), start);
    EXPECT_THAT(probe->positions, ElementsAre(start));
    EXPECT_THAT(GetSelection(), ElementsAre(row));
    EXPECT_EQ(recording.Count("Set status"), 1U) << "the panel does not follow its own move";
    EXPECT_EQ(CountListeners(GetPlayer().GetStationID()), 2U);
  }
  GetPlayer().SetCurrentPosition(Frame(5));
  EXPECT_THAT(GetSelection(), ElementsAre(0)) << "and still follows others' moves";
}

TEST_F(Panel, OffDutySelectingARowLeavesThePlayhead) {
  Click(4);
  EXPECT_THAT(probe->positions, IsEmpty());
  view->NowOnDuty();
  view->NowOffDuty();
  Click(5);
  EXPECT_THAT(probe->positions, IsEmpty());
  EXPECT_THAT(GetSelection(), ElementsAre(5));
}

TEST_F(Panel, SeveralSelectedRowsLeaveThePlayheadAndAreCounted) {
  Click(2);
  view->NowOnDuty();
  Click(4, qelui::ui::kModifierControl);
  Click(6, qelui::ui::kModifierControl);
  EXPECT_THAT(probe->positions, IsEmpty());
  EXPECT_EQ(GetStatus(), "3 of 12 Item(s) Selected");
  Click(2, qelui::ui::kModifierControl);
  Click(4, qelui::ui::kModifierControl);
  EXPECT_THAT(probe->positions, ElementsAre(Frame(60))) << "when one is left";
  Click(6, qelui::ui::kModifierControl);
  EXPECT_EQ(GetStatus(), "12 Items");
}

TEST_F(Panel, DutyBeforeTheContentsExistIsNotRemembered) {
  view = qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
  view->NowOnDuty();
  CreateContents();
  host.Settle();
  probe->positions.clear();
  Click(4);
  EXPECT_THAT(probe->positions, IsEmpty());
}

TEST_F(Panel, DutySurvivesAnActivation) {
  view->NowOnDuty();
  host->GetProject().ActivateSequence(AddSequence(MakeOneClip("other")));
  host->GetProject().ActivateSequence(sequence);
  host.Settle();
  probe->positions.clear();
  Click(4);
  EXPECT_THAT(probe->positions, ElementsAre(Frame(40)));
}

TEST_F(Panel, WithItsBoxCheckedSelectedRowsAreSelectedOnTheTimeline) {
  Click(1);
  EXPECT_THAT(probe->activations, IsEmpty());
  view->GetUpdateSelectionCheckbox()->Click();
  Click(2);
  Click(3, qelui::ui::kModifierControl);
  const auto& rows = GetTree().GetFilteredList();
  EXPECT_THAT(probe->activations, ElementsAre(ElementsAre(rows[2].trackItem),
                                              ElementsAre(rows[2].trackItem, rows[3].trackItem)));
  view->GetUpdateSelectionCheckbox()->Click();
  Click(4);
  EXPECT_EQ(probe->activations.size(), 2U);
}

TEST_F(Panel, ItsSliderScalesTheRows) {
  view->GetRowScaleSlider()->DragTo(0.5);
  EXPECT_EQ(GetTree().GetRowHeight(), 47.5F);
  EXPECT_EQ(GetTree().CountRows(), kRows) << "no rebuild";
  EXPECT_EQ(host.GetPool().CountWaiting(), 0U);
}

TEST_F(Panel, ARebuildKeepsTheRowHeight) {
  view->GetRowScaleSlider()->DragTo(1);
  host->GetProject().ReplaceSequence(sequence, MakeTwelveClips());
  host.Settle();
  EXPECT_EQ(GetTree().GetRowHeight(), 70);
}

TEST_F(Panel, ClosingTheSequenceEmptiesTableAndStatusLine) {
  host->GetProject().CloseSequence(sequence);
  host.Settle();
  EXPECT_EQ(GetTree().CountRows(), 0U);
  EXPECT_EQ(GetStatus(), "0 Items");
}

TEST_F(Panel, ASearchIsCountedInTheStatusLine) {
  view->GetSearchField()->Type(qelcore::UTF8String("no such clip"));
  host.Settle();
  EXPECT_EQ(GetStatus(), "0 Items");
}

TEST_F(Panel, AClosedPanelHearsNothing) {
  auto& player = GetPlayer();
  view.reset();
  const hostcalls::Recording recording;
  player.SetCurrentPosition(Frame(55));
  EXPECT_EQ(recording.Count("Set status"), 0U);
  EXPECT_TRUE(host.TakeFailures().empty());
}

TEST_F(Panel, TwoPanelsOnOnePlayerSettleAfterOneMoveEach) {
  auto other =
      qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
  std::swap(view, other);
  view->SubscribeToStations();
  CreateContents();
  host.Settle();
  view->NowOnDuty();
  probe->positions.clear();
  Click(5);
  EXPECT_THAT(probe->positions, ElementsAre(Frame(50)));
  EXPECT_THAT(GetSelection(), ElementsAre(5));
  ASSERT_EQ(other->GetTree()->GetSelectedRows().size(), 1U);
  EXPECT_EQ(other->GetTree()->GetRowIndex(other->GetTree()->GetSelectedRows()[0]), 5U);
}

}  // namespace
}  // namespace Vantrel
