#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

#include "host/UIF/Decals.h"
#include "host/qelui/Events.h"
#include "view/FilterToolTip.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using MZ::SequenceIndex::Options;

constexpr const char* kClear = "Control + Click to clear all filters";
constexpr const char* kActive = "Control + Click to clear all filters\nActive Filters: \n";

std::string GetToolTip(const Options& options) {
  return std::string(MakeFilterToolTip(options).View());
}

Options Select(std::initializer_list<std::uint32_t> filters) {
  Options options;
  for (const std::uint32_t id : filters) options.filterToggles.at(id) = true;
  return options;
}

TEST(FilterToolTip, OfOptionsOfAFreshPanelSaysOnlyHowToClear) {
  EXPECT_EQ(GetToolTip(Options()), kClear);
}

TEST(FilterToolTip, ListsAudioBeforeTransitionsEachOnALine) {
  EXPECT_EQ(GetToolTip(Select({7, 1})), std::string(kActive) + "Audio\nTransitions\n");
}

TEST(FilterToolTip, ListsAllFiltersInTheirOwnOrder) {
  EXPECT_EQ(
      GetToolTip(Select({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14})),
      std::string(kActive) +
          "Video\nAudio\nGraphics\nFonts Missing\nStill Image\nEffects\nEffects Missing\nTransitions\n"
          "Offline Media\nSpeed Change\nDisabled or Muted Tracks\nDisabled Clips\n"
          "Nested Sequence Clips\nMulticam Clips\n");
}

TEST(FilterToolTip, AFilterThatDoesNotExistIsNeverListed) {
  Options options = Select({0});
  options.filterToggles[13] = true;
  EXPECT_EQ(GetToolTip(options), std::string(kActive) + "Video\n");
}

TEST(FilterToolTip, ActiveOptionsThatLackAFilterRaise) {
  Options options = Select({0});
  options.filterToggles.erase(5);
  try {
    GetToolTip(options);
    FAIL() << "nothing was raised";
  } catch (const std::out_of_range& failure) {
    EXPECT_STREQ(failure.what(), "invalid unordered_map<K, T> key");
  }
}

TEST(FilterToolTip, OptionsAreActiveWhateverOfThemIsNotAsInAFreshPanel) {
  EXPECT_FALSE(AreFiltersActive(Options()));
  EXPECT_TRUE(AreFiltersActive(Select({3})));
  Options options;
  options.matchMode = 1;
  EXPECT_TRUE(AreFiltersActive(options));
  options = Options();
  options.isKeepingGaps = true;
  EXPECT_TRUE(AreFiltersActive(options));
  options = Options();
  options.shortGapThreshold = 4;
  EXPECT_EQ(GetToolTip(options), kActive) << "active, without a filter to list";
  options = Options();
  options.labelColors.push_back({});
  EXPECT_TRUE(AreFiltersActive(options));
}

class FilterButton : public ViewFixture {
 protected:
  ~FilterButton() override { hostcalls::isRunningAnOldSkin = false; }

  /// Confirms the dialog with other options.
  void Choose(const Options& options) {
    answers.optionsAnswer = [options](const Options&) { return std::optional(options); };
    view->GetFilterButton()->Click(0);
  }
  std::uint32_t GetDecal() const { return view->GetFilterButton()->GetImageHandler()->GetDecal(); }
  std::string GetShownToolTip() const {
    return std::string(view->GetFilterButton()->UI_GetToolTip().View());
  }
};

TEST_F(FilterButton, StartsWithItsOffPictureAndTheShortToolTip) {
  CreateContents();
  EXPECT_EQ(GetDecal(), UIF::kUIFFilterNotificationOffDecal);
  EXPECT_EQ(GetShownToolTip(), kClear);
}

TEST_F(FilterButton, ShowsThatFiltersAreActive) {
  CreateContents();
  Choose(Select({1}));
  EXPECT_EQ(GetDecal(), UIF::kUIFFilterNotificationOnDecal);
  EXPECT_EQ(GetShownToolTip(), std::string(kActive) + "Audio\n");
}

TEST_F(FilterButton, IsDrawnAnewAsSoonAsItsPictureChanges) {
  CreateContents();
  Calls looks;
  view->GetFilterButton()->UI_SetWatcher(
      [&] { looks.push_back(std::to_string(GetDecal()) + " " + GetShownToolTip()); });
  Choose(Select({1}));
  ASSERT_FALSE(looks.empty());
  EXPECT_EQ(looks.front(), std::to_string(UIF::kUIFFilterNotificationOnDecal) + " " + kClear);
}

TEST_F(FilterButton, AControlClickTurnsItOff) {
  CreateContents();
  Choose(Select({1}));
  view->GetFilterButton()->Click(qelui::ui::kModifierControl);
  EXPECT_EQ(GetDecal(), UIF::kUIFFilterNotificationOffDecal);
  EXPECT_EQ(GetShownToolTip(), kClear);
}

TEST_F(FilterButton, ACancelledDialogLeavesItsLook) {
  CreateContents();
  Choose(Select({1}));
  answers.optionsAnswer = nullptr;
  view->GetFilterButton()->Click(0);
  EXPECT_EQ(GetDecal(), UIF::kUIFFilterNotificationOnDecal);
}

TEST_F(FilterButton, OptionsThatLackAFilterRaiseAfterThePictureAndBeforeTheTable) {
  CreateContents();
  Options options = Select({1});
  options.filterToggles.erase(2);
  const hostcalls::Recording recording;
  Choose(options);
  EXPECT_EQ(GetDecal(), UIF::kUIFFilterNotificationOnDecal);
  EXPECT_EQ(GetShownToolTip(), kClear);
  EXPECT_EQ(recording.Count("Schedule"), 0U);
  EXPECT_FALSE(host.TakeFailures().empty());
}

TEST_F(FilterButton, AFilterThatDoesNotExistLeavesTheTableAsItWasAndTheOptionsAsChosen) {
  host->GetProject().ActivateSequence(AddSequence(drafts::MakeOneClip("clip")));
  CreateContents();
  host.Settle();
  Options options = Select({1});
  options.filterToggles[13] = true;
  const hostcalls::Recording recording;
  Choose(options);
  EXPECT_EQ(view->GetOptions(), options);
  EXPECT_EQ(GetDecal(), UIF::kUIFFilterNotificationOnDecal);
  EXPECT_EQ(GetShownToolTip(), std::string(kActive) + "Audio\n");
  EXPECT_EQ(recording.Count("Schedule"), 0U);
  EXPECT_EQ(host.TakeFailures().size(), 1U);
  view->GetTree()->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(view->GetTree()->CountRows(), 1U);
}

TEST_F(FilterButton, HasItsLookAndToolTipBeforeTheTableGetsTheOptions) {
  Calls looks;
  const hostcalls::Hook hook(
      "Schedule", [&] { looks.push_back(std::to_string(GetDecal()) + " " + GetShownToolTip()); });
  CreateContents();
  Choose(Select({1}));
  EXPECT_EQ(looks,
            (Calls{std::to_string(UIF::kUIFFilterNotificationOffDecal) + " " + kClear,
                   std::to_string(UIF::kUIFFilterNotificationOnDecal) + " " + kActive + "Audio\n"}));
}

TEST_F(FilterButton, ItsToolTipIsTwoHundredWideInTheNewLookAndFourHundredBefore) {
  CreateContents();
  EXPECT_EQ(view->GetFilterButton()->UI_GetToolTipWidth(), 200U);
  hostcalls::isRunningAnOldSkin = true;
  view->GetFilterButton()->Click(qelui::ui::kModifierControl);
  EXPECT_EQ(view->GetFilterButton()->UI_GetToolTipWidth(), 400U);
}

}  // namespace
}  // namespace Vantrel
