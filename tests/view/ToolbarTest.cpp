#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standalone/toolkit/TreeControl.h"
#include "support/LocalizedKeys.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using qelui::controls::CheckboxValue;
using testing::ElementsAre;

class RowScaleSlider : public ViewFixture {
 protected:
  ~RowScaleSlider() override { hostcalls::isRunningAnOldSkin = false; }

  float GetRowHeight() const { return view->GetTree()->GetRowHeight(); }
  qelui::controls::UI_Slider& GetSlider() const { return *view->GetRowScaleSlider(); }
};

TEST_F(RowScaleSlider, IsHorizontalFromZeroToOneAndStartsAtZero) {
  const hostcalls::Recording recording;
  CreateContents();
  EXPECT_EQ(recording.GetCalls({"SetRange"}), Calls{"SetRange(0.0, 1.0)"});
  EXPECT_EQ(GetSlider().GetDirection(), qelui::controls::SliderDirection::kHorizontal);
  EXPECT_EQ(GetSlider().GetMinimum(), 0);
  EXPECT_EQ(GetSlider().GetMaximum(), 1);
  EXPECT_EQ(GetSlider().GetValue(), 0);
  EXPECT_EQ(GetRowHeight(), 25);
}

TEST_F(RowScaleSlider, ScalesTheRowsWhileItIsDragged) {
  CreateContents();
  GetSlider().DragTo(0.5);
  EXPECT_EQ(GetRowHeight(), 47.5F);
  GetSlider().DragTo(1);
  EXPECT_EQ(GetRowHeight(), 70);
  GetSlider().DragTo(0);
  EXPECT_EQ(GetRowHeight(), 25);
}

TEST_F(RowScaleSlider, HeightsAreComputedInSinglePrecision) {
  CreateContents();
  // Here the two precisions differ in the last bit, also after rounding to the shorter one.
  constexpr double kScale = 0.036;
  const float expected = 25.0F + 45.0F * static_cast<float>(kScale);
  ASSERT_NE(expected, static_cast<float>(25 + 45 * kScale));
  GetSlider().DragTo(kScale);
  EXPECT_EQ(GetRowHeight(), expected);
}

TEST_F(RowScaleSlider, LettingItGoScalesNoMore) {
  CreateContents();
  const hostcalls::Recording recording;
  GetSlider().DragTo(1);
  GetSlider().Commit();
  EXPECT_EQ(recording.GetCalls({"SetRowHeight"}), Calls{"SetRowHeight(70.0)"});
}

TEST_F(RowScaleSlider, AnotherViewStartsAtZeroAgain) {
  CreateContents();
  GetSlider().DragTo(1);
  view = qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
  CreateContents();
  EXPECT_EQ(GetSlider().GetValue(), 0);
  EXPECT_EQ(GetRowHeight(), 25);
}

TEST_F(RowScaleSlider, SaysWhatItDoes) {
  CreateContents();
  EXPECT_EQ(GetSlider().UI_GetToolTip(), "Scale displayed rows");
  EXPECT_EQ(GetSlider().UI_GetToolTipWidth(), 200U);
}

TEST_F(RowScaleSlider, InAnOldLookItsToolTipIsWider) {
  hostcalls::isRunningAnOldSkin = true;
  CreateContents();
  EXPECT_EQ(GetSlider().UI_GetToolTipWidth(), 400U);
}

/// What is to be selected on the timeline: the number of items, message by message.
class ActivationProbe final : public qelcore::messaging::Listener {
 public:
  std::vector<std::size_t> counts;
  void ReceiveMessage(const qelcore::messaging::Message& message) override {
    if (const auto* activation = dynamic_cast<const MZ::TrackItemActivationMessage*>(&message)) {
      counts.push_back(activation->GetItems().size());
    }
  }
};

class UpdateSelectionCheckbox : public ViewFixture {
 protected:
  UpdateSelectionCheckbox() {
    qelcore::messaging::AddWeakPtrListener(MZ::kStation_TrackItemActivation, probe);
  }
  ~UpdateSelectionCheckbox() override { hostcalls::isRunningAnOldSkin = false; }

  void ShowTwoClips() {
    CreateContents();
    auto draft = drafts::MakeSequence();
    auto& track = drafts::AddTrack(draft);
    drafts::AddClip(track, "first", 0, 10);
    drafts::AddClip(track, "second", 10, 20);
    view->GetTree()->SetSequence(AddSequence(std::move(draft)));
    host.Settle();
    probe->counts.clear();
  }
  qelui::controls::UI_Checkbox& GetBox() const { return *view->GetUpdateSelectionCheckbox(); }
  void SelectRow(std::size_t position) { view->GetTree()->GetControl().Click(position, 0); }

  std::shared_ptr<ActivationProbe> probe = std::make_shared<ActivationProbe>();
};

TEST_F(UpdateSelectionCheckbox, StartsUncheckedAndTheTimelineIsLeftAlone) {
  ShowTwoClips();
  EXPECT_EQ(GetBox().GetValue(), CheckboxValue::kUnchecked);
  SelectRow(0);
  EXPECT_TRUE(probe->counts.empty());
}

TEST_F(UpdateSelectionCheckbox, CheckedTheTimelinesSelectionFollowsTheTables) {
  ShowTwoClips();
  GetBox().Click();
  EXPECT_TRUE(probe->counts.empty()) << "the next selection does it";
  SelectRow(0);
  EXPECT_THAT(probe->counts, ElementsAre(1));
}

TEST_F(UpdateSelectionCheckbox, UncheckedAgainTheTimelineIsLeftAlone) {
  ShowTwoClips();
  GetBox().Click();
  GetBox().Click();
  SelectRow(0);
  EXPECT_TRUE(probe->counts.empty());
}

TEST_F(UpdateSelectionCheckbox, AMixedValueCountsAsUnchecked) {
  ShowTwoClips();
  {
    const hostcalls::Hook hook("Read checkbox", [&] { GetBox().SetValue(CheckboxValue::kMixed); });
    GetBox().Click();
  }
  ASSERT_EQ(GetBox().GetValue(), CheckboxValue::kMixed);
  SelectRow(0);
  EXPECT_TRUE(probe->counts.empty());
}

TEST_F(UpdateSelectionCheckbox, AnActivationDoesNotClearIt) {
  ShowTwoClips();
  GetBox().Click();
  view->ReceiveMessage(MZ::SequenceActivatedMessage(AddSequence(MakeOneClip("other"))));
  host.Settle();
  probe->counts.clear();
  SelectRow(0);
  EXPECT_THAT(probe->counts, ElementsAre(1));
}

TEST_F(UpdateSelectionCheckbox, SaysWhatItDoes) {
  CreateContents();
  EXPECT_EQ(GetBox().GetLabel(), "Update Timeline Selection");
  EXPECT_EQ(GetBox().UI_GetToolTip(), "Timeline Selection Follows Selection");
  EXPECT_EQ(GetBox().UI_GetToolTipWidth(), 200U);
}

TEST_F(UpdateSelectionCheckbox, InAnOldLookItsToolTipIsWider) {
  hostcalls::isRunningAnOldSkin = true;
  CreateContents();
  EXPECT_EQ(GetBox().UI_GetToolTipWidth(), 400U);
}

TEST_F(UpdateSelectionCheckbox, AnotherViewStartsUnchecked) {
  CreateContents();
  GetBox().Click();
  view = qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
  CreateContents();
  EXPECT_EQ(GetBox().GetValue(), CheckboxValue::kUnchecked);
}

using ToolbarTexts = ViewFixture;

TEST_F(ToolbarTexts, AreLocalisedOnce) {
  for (int i = 0; i < 2; ++i) {
    view = qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
    CreateContents();
    view->ReceiveMessage(TreeViewItemsSelectionChangedMessage(0, 2));
    view->ReceiveMessage(TreeViewItemsSelectionChangedMessage(1, 2));
  }
  for (const std::string_view key : {
           "RowDisplaySlider=Scale displayed rows",
           "TimelineSelectionFollowsSelection=Timeline Selection Follows Selection",
           "UpdatesTimelineSelection=Update Timeline Selection",
           "ItemsSelected=@0 of @1 Item(s) Selected",
           "Items=@0 Items",
           "FilterButtonWin=Control + Click to clear all filters",
       }) {
    const std::string whole =
        "$$$/Tessalo/Handlers/SequenceIndex/" + std::string(key) + "#{comment}QELMX-4248997";
    EXPECT_EQ(hostcalls::LocalizedKeys::Get().Count(whole), 1U) << key;
  }
}

}  // namespace
}  // namespace Vantrel
