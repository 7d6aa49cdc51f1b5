#include "data/GenerateFilters.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>

#include "data/FilterPredicates.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"

namespace Vantrel {
namespace {

using MZ::SequenceIndex::Options;
using standalone::TrackKind;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr ZSL::Color kViolet{90, 20, 201, 255};
constexpr ZSL::Color kGreen{10, 200, 30, 255};

Options Selecting(std::initializer_list<std::uint32_t> ids, std::uint32_t matchMode = 0) {
  Options options;
  options.matchMode = matchMode;
  for (const std::uint32_t id : ids) options.filterToggles[id] = true;
  return options;
}

TEST(GeneratedFilters, ThereIsNoGroupWithoutToggleAndColour) {
  EXPECT_TRUE(GenerateFiltersFromOptions({}).empty());
}

TEST(GeneratedFilters, SelectedTogglesMakeOneGroupAndTheOthersAddNothing) {
  const auto groups = GenerateFiltersFromOptions(Selecting({0, 6, 7}));
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(groups[0].predicates.size(), 3U);
}

TEST(GeneratedFilters, EveryFilterOfTheDialogCanBeSelected) {
  for (const auto& entry : MZ::SequenceIndex::kFilterEntries) {
    EXPECT_EQ(GenerateFiltersFromOptions(Selecting({entry.id})).size(), 1U) << entry.id;
  }
}

TEST(GeneratedFilters, TheMatchModeIsTheKindAndAnyOtherNumberMeansAll) {
  EXPECT_EQ(GenerateFiltersFromOptions(Selecting({0}, 0))[0].kind, kFilterGroupKind_All);
  EXPECT_EQ(GenerateFiltersFromOptions(Selecting({0}, 1))[0].kind, kFilterGroupKind_Any);
  for (const std::uint32_t mode : {2U, 7U, 0xFFFFFFFFU}) {
    EXPECT_EQ(GenerateFiltersFromOptions(Selecting({0}, mode))[0].kind, kFilterGroupKind_All) << mode;
  }
}

/// A row that passes one of these filters alone, which need no track item.
TrackItemRowData RowOf(std::uint32_t id) {
  TrackItemRowData row;
  if (id == 0) row.mediaType = BE::kMediaType_Video;
  if (id == 1) row.mediaType = BE::kMediaType_Audio;
  if (id == 6) row.fontsMissing = qelcore::UTF8String("Lost; ");
  if (id == 7) row.transitions = qelcore::UTF8String("[IN]: Dip; ");
  return row;
}

TEST(GeneratedFilters, PredicatesStandInTheOrderOfTheMap) {
  const Options options = Selecting({0, 1, 6, 7});
  const auto groups = GenerateFiltersFromOptions(options);
  ASSERT_EQ(groups.size(), 1U);
  auto predicate = groups[0].predicates.begin();
  for (const auto& [id, isSelected] : options.filterToggles) {
    if (!isSelected) continue;
    ASSERT_NE(predicate, groups[0].predicates.end());
    for (const std::uint32_t other : {0U, 1U, 6U, 7U}) {
      EXPECT_EQ((*predicate)(RowOf(other)), other == id) << id << " on a row of " << other;
    }
    ++predicate;
  }
  EXPECT_EQ(predicate, groups[0].predicates.end());
}

TEST(GeneratedFilters, AnUnknownFilterThatIsSelectedRaisesTheHostsText) {
  for (const std::uint32_t id : {13U, 15U, 0xFFFFFFFFU}) {
    try {
      GenerateFiltersFromOptions(Selecting({0, id}));
      ADD_FAILURE() << id;
    } catch (const std::out_of_range& failure) {
      EXPECT_STREQ(failure.what(), "invalid unordered_map<K, T> key") << id;
    }
  }
}

TEST(GeneratedFilters, AnUnknownFilterThatIsNotSelectedIsNotLookedUp) {
  Options options = Selecting({0});
  options.filterToggles[13] = false;
  options.filterToggles[99] = false;
  EXPECT_EQ(GenerateFiltersFromOptions(options)[0].predicates.size(), 1U);
}

TEST(GeneratedFilters, AMapWithoutTogglesSelectsNothing) {
  Options options;
  options.filterToggles.clear();
  EXPECT_TRUE(GenerateFiltersFromOptions(options).empty());
}

TEST(GeneratedFilters, ColoursMakeOneGroupOfOnePredicateWhateverTheirNumberAndTheMatchMode) {
  for (const std::uint32_t mode : {0U, 1U, 2U}) {
    Options options = Selecting({}, mode);
    for (int i = 0; i < 3; ++i) {
      options.labelColors.push_back(kViolet);
      const auto groups = GenerateFiltersFromOptions(options);
      ASSERT_EQ(groups.size(), 1U);
      EXPECT_EQ(groups[0].kind, kFilterGroupKind_Any);
      EXPECT_EQ(groups[0].predicates.size(), 1U);
    }
  }
}

TEST(GeneratedFilters, TheColourGroupStandsBeforeTheToggles) {
  Options options = Selecting({0, 1});
  options.labelColors.push_back(kViolet);
  const auto groups = GenerateFiltersFromOptions(options);
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_EQ(groups[0].predicates.size(), 1U);
  EXPECT_EQ(groups[1].predicates.size(), 2U);
  EXPECT_EQ(groups[1].kind, kFilterGroupKind_All);
}

TEST(GeneratedFilters, ThresholdAndGapFlagMakeNoGroup) {
  Options options;
  options.shortGapThreshold = -3;
  options.isKeepingGaps = true;
  EXPECT_TRUE(GenerateFiltersFromOptions(options).empty());
}

TEST(GeneratedFilters, GroupsOutliveTheOptions) {
  std::vector<FilterGroup> groups;
  {
    Options options;
    options.labelColors.push_back(kViolet);
    groups = GenerateFiltersFromOptions(options);
  }
  TrackItemRowData row;
  EXPECT_FALSE(groups[0].predicates[0](row));
  row.labelColor = {90.0F / 255, 20.0F / 255, 201.0F / 255, 1};
  EXPECT_TRUE(groups[0].predicates[0](row));
}

// ---- Applied to rows

/// "violet picture", a gap, "green picture" on one track; "violet sound" on another.
class GeneratedFiltersOnRows : public testing::Test {
 protected:
  GeneratedFiltersOnRows() {
    auto draft = drafts::MakeSequence();
    auto& video = drafts::AddTrack(draft);
    drafts::AddClip(video, "violet picture", 0, 10).labelColor = kViolet;
    drafts::AddGap(video, 10, 13);
    drafts::AddClip(video, "green picture", 13, 20).labelColor = kGreen;
    auto& audio = drafts::AddTrack(draft, TrackKind::kAudio);
    drafts::AddClip(audio, "violet sound", 0, 10).labelColor = kViolet;
    list = rows::Collect(host.Add(draft));
  }

  std::vector<std::string> Filter(const Options& options) {
    return rows::Names(
        *FilterTrackItemDataList(list, GenerateFiltersFromOptions(options), options.isKeepingGaps));
  }

  rows::Host host;
  TrackItemDataList list;
};

TEST_F(GeneratedFiltersOnRows, PictureAndSoundTogetherPassEveryClipWhenOneFilterIsEnough) {
  EXPECT_THAT(Filter(Selecting({0, 1}, 1)),
              ElementsAre("violet picture", "green picture", "violet sound"));
  EXPECT_THAT(Filter(Selecting({0, 1}, 0)), IsEmpty());
  EXPECT_THAT(Filter(Selecting({0, 1}, 2)), IsEmpty());
}

TEST_F(GeneratedFiltersOnRows, AColourIsWantedBesideTheFiltersEvenWhenOneFilterIsEnough) {
  Options options = Selecting({0}, 1);
  options.labelColors.push_back(kViolet);
  EXPECT_THAT(Filter(options), ElementsAre("violet picture"));
}

TEST_F(GeneratedFiltersOnRows, OneOfTheColoursIsEnough) {
  Options options;
  options.labelColors.push_back(kViolet);
  EXPECT_THAT(Filter(options), ElementsAre("violet picture", "violet sound"));
  options.labelColors = {{1, 2, 3, 255}, kGreen, kViolet};
  EXPECT_THAT(Filter(options), ElementsAre("violet picture", "green picture", "violet sound"));
}

TEST_F(GeneratedFiltersOnRows, ADifferenceInTheLastDigitOfOneChannelDropsARow) {
  Options options;
  options.labelColors.push_back(kViolet);
  const auto original = list.front().labelColor;
  for (float qelui::ColorRGBA::*const channel : {&qelui::ColorRGBA::red, &qelui::ColorRGBA::green,
                                                 &qelui::ColorRGBA::blue, &qelui::ColorRGBA::alpha}) {
    list.front().labelColor = original;
    list.front().labelColor.*channel = std::nextafter(original.*channel, 0.0F);
    EXPECT_THAT(Filter(options), ElementsAre("violet sound"));
  }
}

TEST_F(GeneratedFiltersOnRows, EveryColourOfARowIsFoundAgainByTheSameChoice) {
  for (int value = 0; value < 256; ++value) {
    const auto byte = static_cast<std::uint8_t>(value);
    auto draft = drafts::MakeSequence();
    drafts::AddClip(drafts::AddTrack(draft), "A", 0, 10).labelColor = {byte, 0, byte, 255};
    list = rows::Collect(host.Add(draft));
    Options options;
    options.labelColors = {{byte, 0, byte, 255}};
    EXPECT_THAT(Filter(options), ElementsAre("A")) << value;
  }
}

TEST_F(GeneratedFiltersOnRows, GapsAreKeptOrDroppedByTheirFlagAlone) {
  Options options = Selecting({7});
  EXPECT_THAT(Filter(options), IsEmpty());
  options.isKeepingGaps = true;
  EXPECT_THAT(Filter(options), ElementsAre("Gap")) << "a gap has no transition";
  options.labelColors = {kGreen};
  EXPECT_THAT(Filter(options), ElementsAre("Gap")) << "and is black";
  options.isKeepingGaps = false;
  options.filterToggles[7] = false;
  options.labelColors = {{0, 0, 0, 255}};
  EXPECT_THAT(Filter(options), IsEmpty()) << "and black does not bring it back";
}

TEST_F(GeneratedFiltersOnRows, TheThresholdSelectsNothing) {
  for (const std::int32_t threshold : {-1, 0, 5, std::numeric_limits<std::int32_t>::max()}) {
    Options options = Selecting({0});
    options.shortGapThreshold = threshold;
    EXPECT_THAT(Filter(options), ElementsAre("violet picture", "green picture")) << threshold;
  }
}

}  // namespace
}  // namespace Vantrel
