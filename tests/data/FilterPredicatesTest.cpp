#include "data/FilterPredicates.h"

#include <gmock/gmock.h>

#include <set>
#include <string>
#include <utility>

#include "host/ML/TextFilter.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelcore/Exceptions.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"

namespace Vantrel {
namespace {

using standalone::TrackKind;
using testing::ElementsAre;
using testing::IsEmpty;

using FilterIDs = std::set<std::uint32_t>;

FilterIDs FiltersPassedBy(const TrackItemRowData& row) {
  FilterIDs passed;
  for (const auto& [id, predicate] : GetFilterPredicates()) {
    if (predicate(row)) passed.insert(id);
  }
  return passed;
}

TEST(FilterPredicates, StandForExactlyTheFiltersThatTheDialogLists) {
  EXPECT_EQ(GetFilterPredicates().size(), MZ::SequenceIndex::kFilterEntries.size());
  for (const auto& entry : MZ::SequenceIndex::kFilterEntries) {
    EXPECT_TRUE(GetFilterPredicates().contains(entry.id)) << entry.labelKey;
  }
}

TEST(FilterPredicates, AreBuiltOnce) {
  EXPECT_EQ(&GetFilterPredicates(), &GetFilterPredicates());
}

/// A clip with nothing remarkable, alone on a track: it passes the filter of its media type only.
class FilteredClip : public testing::Test {
 protected:
  static constexpr std::uint32_t kVideo = 0;
  static constexpr std::uint32_t kAudio = 1;

  TrackItemRowData Row(TrackKind kind = TrackKind::kVideo) {
    auto sequence = drafts::MakeSequence();
    auto& added = drafts::AddTrack(sequence, kind);
    added.isDisabled = track.isDisabled;
    added.isMuted = track.isMuted;
    standalone::TrackItemDraft& item = added.items.emplace_back();
    item.end = drafts::Frame(10);
    item.clip = clip;
    return rows::Collect(host.Add(sequence)).at(0);
  }
  FilterIDs OfVideo() { return FiltersPassedBy(Row()); }
  FilterIDs OfAudio() { return FiltersPassedBy(Row(TrackKind::kAudio)); }

  /// Makes the clip satisfy every filter of picture clips.
  void SetEveryFact() {
    clip.isGraphic = clip.isDisabled = clip.hasSpeedChange = true;
    clip.media.isOffline = clip.media.isStill = true;
    clip.multicam.isMulticam = true;
    clip.nestedSequence = 0;
    clip.headTransition.emplace().displayName = "Dip";
    drafts::AddEffect(clip, "Lost", true);
    AddText("No Such Font");
    track.isMuted = true;
  }
  void AddText(const std::string& font) {
    auto& text = drafts::AddEffect(clip, "Text");
    text.matchName = ML::kMatchnameText;
    text.isIntrinsic = true;
    text.fonts = {font};
  }

  rows::Host host;
  standalone::ClipDraft clip;
  standalone::TrackDraft track;
};

TEST_F(FilteredClip, WithoutAnyFactPassesTheFilterOfItsMediaTypeOnly) {
  EXPECT_THAT(OfVideo(), ElementsAre(kVideo));
  EXPECT_THAT(OfAudio(), ElementsAre(kAudio));
}

TEST_F(FilteredClip, WithEveryFactPassesEveryFilterOfItsMediaType) {
  SetEveryFact();
  EXPECT_THAT(OfVideo(), ElementsAre(0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14));
  EXPECT_THAT(OfAudio(), ElementsAre(1, 3, 4, 5, 7, 8, 9, 10, 11, 12))
      << "sound has neither graphics nor fonts, and is no still";
}

TEST_F(FilteredClip, MediaTypesAskNoTrackItem) {
  TrackItemRowData row;
  row.mediaType = BE::kMediaType_Video;
  EXPECT_THAT(FiltersPassedBy(row), ElementsAre(kVideo));
  row.mediaType = BE::kMediaType_Audio;
  EXPECT_THAT(FiltersPassedBy(row), ElementsAre(kAudio));
  row.mediaType = qelcore::utility::MakeGuid(1, 2);
  EXPECT_THAT(FiltersPassedBy(row), IsEmpty()) << "neither picture nor sound";
}

TEST_F(FilteredClip, OfPictureThatDrawsTextOrShapesIsGraphics) {
  clip.isGraphic = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 2));
  EXPECT_THAT(OfAudio(), ElementsAre(1));
}

TEST_F(FilteredClip, WithOfflineMediaIsOffline) {
  clip.media.isOffline = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 3));
  EXPECT_THAT(OfAudio(), ElementsAre(1, 3));
}

TEST_F(FilteredClip, WithMediaThatIsOnlyPendingIsNotOffline) {
  clip.media.isPendingConnection = clip.media.isPendingRelink = clip.media.isGrowing = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0));
}

TEST_F(FilteredClip, WithAnOfflineProxyOnlyIsNotOffline) {
  clip.proxy.emplace().isOffline = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0));
}

TEST_F(FilteredClip, WithAnEffectThatSomebodyAddedHasEffects) {
  drafts::AddEffect(clip, "Motion").isIntrinsic = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0)) << "every clip has that";
  drafts::AddEffect(clip, "Blur");
  EXPECT_THAT(OfVideo(), ElementsAre(0, 4));
}

TEST_F(FilteredClip, WithAnEffectThatTheHostLacksHasEffectsAndMissingOnes) {
  drafts::AddEffect(clip, "Blur");
  drafts::AddEffect(clip, "Lost", true);
  EXPECT_THAT(OfVideo(), ElementsAre(0, 4, 5));
}

TEST_F(FilteredClip, WhoseBuiltInSettingIsMissingLacksNoEffect) {
  drafts::AddEffect(clip, "Motion", true).isIntrinsic = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0));
}

TEST_F(FilteredClip, WhoseTextUsesAnUninstalledFontLacksFonts) {
  clip.isGraphic = true;
  AddText("No Such Font");
  EXPECT_THAT(OfVideo(), ElementsAre(0, 2, 6));
}

TEST_F(FilteredClip, LacksFontsAndHasTransitionsByWhatItsRowSays) {
  TrackItemRowData row;
  row.fontsUsed = qelcore::UTF8String("Used; ");
  row.effects = qelcore::UTF8String("Blur; ");
  row.effectsMissing = qelcore::UTF8String("[IN]: Lost; ");
  EXPECT_THAT(FiltersPassedBy(row), IsEmpty());
  row.fontsMissing = qelcore::UTF8String("Lost; ");
  EXPECT_THAT(FiltersPassedBy(row), ElementsAre(6));
  row.transitions = qelcore::UTF8String("[OUT]: Wipe; ");
  EXPECT_THAT(FiltersPassedBy(row), ElementsAre(6, 7));
}

TEST_F(FilteredClip, WithATransitionAtEitherEndHasTransitions) {
  clip.headTransition.emplace().displayName = "Dip";
  EXPECT_THAT(OfVideo(), ElementsAre(0, 7));
  clip.tailTransition = std::exchange(clip.headTransition, {});
  EXPECT_THAT(OfAudio(), ElementsAre(1, 7));
}

TEST_F(FilteredClip, WhoseOnlyTransitionIsMissingHasNoneAndLacksNoEffect) {
  clip.headTransition = standalone::TransitionDraft{"Dip", true};
  EXPECT_THAT(OfVideo(), ElementsAre(0));
}

TEST_F(FilteredClip, ThatPlaysAtAnotherSpeedHasASpeedChange) {
  clip.hasSpeedChange = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 8));
  EXPECT_THAT(OfAudio(), ElementsAre(1, 8));
}

TEST_F(FilteredClip, ThatPlaysASequenceIsNested) {
  clip.nestedSequence = 0;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 9));
  EXPECT_THAT(OfAudio(), ElementsAre(1, 9));
}

TEST_F(FilteredClip, OnADisabledOrOnAMutedTrackIsFoundByTheTrack) {
  track.isDisabled = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 10));
  track = {};
  track.isMuted = true;
  EXPECT_THAT(OfAudio(), ElementsAre(1, 10));
}

TEST_F(FilteredClip, ThatIsSwitchedOffIsDisabled) {
  clip.isDisabled = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 11));
  EXPECT_THAT(OfAudio(), ElementsAre(1, 11));
}

TEST_F(FilteredClip, WithSeveralCamerasIsMulticam) {
  clip.multicam.isMulticam = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 12));
  EXPECT_THAT(OfAudio(), ElementsAre(1, 12));
}

TEST_F(FilteredClip, OfPictureWithAStillMasterClipIsAStill) {
  clip.media.isStill = true;
  EXPECT_THAT(OfVideo(), ElementsAre(0, 14));
  EXPECT_THAT(OfAudio(), ElementsAre(1));
}

TEST_F(FilteredClip, WithoutTrackItemFailsEveryFilterThatNeedsOne) {
  SetEveryFact();
  auto row = Row();
  row.trackItem.Reset();
  EXPECT_THAT(FiltersPassedBy(row), ElementsAre(0, 6, 7));
}

TEST_F(FilteredClip, OfAnotherKindFailsEveryFilterThatNeedsAClip) {
  SetEveryFact();
  auto row = Row();
  const qelcore::Ref item(new fakes::TrackItem(row.trackItem));
  row.trackItem = item;
  ASSERT_EQ(FiltersPassedBy(row).size(), 13U);
  for (const std::uint32_t type : {BE::kTrackItemType_Empty, BE::kTrackItemType_Transition, 3U}) {
    item->type = type;
    EXPECT_THAT(FiltersPassedBy(row), ElementsAre(0, 6, 7)) << type;
  }
}

// ---- What a clip lacks

/// A clip whose parts a test can take away.
class FaultyClip : public FilteredClip {
 protected:
  FaultyClip() {
    drafts::AddEffect(clip, "Blur");
    row = Row();
    fakeClip = qelcore::Ref(new fakes::Clip(row.trackItem->GetClip()));
    item = qelcore::Ref(new fakes::TrackItem(row.trackItem));
    item->clip = qelcore::Ref<BE::IClip>(fakeClip);
    row.trackItem = item;
  }

  /// What each filter raises that raises at all, as "identifier: interface".
  std::set<std::string> Raised() {
    std::set<std::string> raised;
    for (const auto& [id, predicate] : GetFilterPredicates()) {
      try {
        predicate(row);
      } catch (const qelcore::config::null_pointer_exception& failure) {
        raised.insert(std::to_string(id) + ": " + failure.GetObject());
      }
    }
    return raised;
  }

  TrackItemRowData row;
  qelcore::Ref<fakes::Clip> fakeClip;
  qelcore::Ref<fakes::TrackItem> item;
};

TEST_F(FaultyClip, ThatLacksNothingRaisesNothing) {
  EXPECT_THAT(Raised(), IsEmpty());
  EXPECT_THAT(FiltersPassedBy(row), ElementsAre(0, 4));
}

TEST_F(FaultyClip, WithoutClipRaisesWhatEachFilterNeeds) {
  item->clip = qelcore::Ref<BE::IClip>();
  EXPECT_THAT(Raised(),
              testing::UnorderedElementsAre("3: BE::IClip", "4: BE::IClip", "5: BE::IClip",
                                            "8: BE::IChildClip", "9: BE::IChildClip", "11: BE::IClip",
                                            "12: BE::IClip", "14: BE::IChildClip"));
}

TEST_F(FaultyClip, WithoutChildClipRaisesInTheFiltersThatAskIt) {
  fakeClip->hasChildClip = false;
  EXPECT_THAT(Raised(), testing::UnorderedElementsAre("8: BE::IChildClip", "9: BE::IChildClip",
                                                      "14: BE::IChildClip"));
}

TEST_F(FaultyClip, WithoutMasterClipRaisesInTheFilterOfStillsOnly) {
  fakeClip->hasMasterClip = false;
  EXPECT_THAT(Raised(), ElementsAre("14: BE::IMasterClip"));
}

TEST_F(FaultyClip, OfSoundWithoutMasterClipIsNoStillAndRaisesNothing) {
  fakeClip->hasMasterClip = false;
  row.mediaType = BE::kMediaType_Audio;
  EXPECT_THAT(Raised(), IsEmpty());
}

TEST_F(FaultyClip, WithoutTrackRaisesInTheFilterOfTracks) {
  item->track = qelcore::Ref<qelcore::IUnknown>();
  EXPECT_THAT(Raised(), ElementsAre("10: BE::ITrack"));
  item->track = qelcore::Ref<qelcore::IUnknown>(new fakes::Nothing);
  EXPECT_THAT(Raised(), ElementsAre("10: BE::ITrack"));
}

TEST_F(FaultyClip, WithoutMediaRaisesInTheFilterOfOfflineMedia) {
  fakeClip->hasMedia = false;
  EXPECT_THAT(Raised(), ElementsAre("3: BE::IMedia"));
}

TEST_F(FaultyClip, WithoutComponentsRaisesInTheFiltersOfEffects) {
  fakeClip->hasComponents = false;
  EXPECT_THAT(Raised(), ElementsAre("4: BE::IComponentOwner", "5: BE::IComponentOwner"));
  fakeClip->hasComponents = true;
  fakeClip->components.emplace().emplace_back();
  EXPECT_THAT(Raised(), ElementsAre("4: BE::IComponent", "5: BE::IComponent"));
}

}  // namespace
}  // namespace Vantrel
