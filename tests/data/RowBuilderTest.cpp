#include "data/RowBuilder.h"

#include <gmock/gmock.h>

#include <string>

#include "host/KTEWrapper/FontServer.h"
#include "host/qelcore/Exceptions.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"
#include "support/HostCalls.h"

namespace Vantrel {
namespace {

using qelmediatypes::TickTime;
using standalone::TrackKind;

constexpr BE::MediaType kOtherMediaType = qelcore::utility::MakeGuid(1, 2);

/// Row building from one clip, as drafted or behind a fake.
class RowBuilding : public testing::Test {
 protected:
  RowBuilding() { clip.labelColor = ZSL::Color{255, 0, 51, 255}; }

  /// The row of the clip as it stands in the draft.
  TrackItemRowData Row() {
    const auto rows = rows::Collect(Publish());
    EXPECT_EQ(rows.size(), 1U);
    return rows.at(0);
  }

  qelcore::Ref<BE::ISequence> Publish() {
    auto& track = drafts::AddTrack(draft, kind);
    standalone::TrackItemDraft& item = track.items.emplace_back();
    item.start = drafts::Frame(0);
    item.end = drafts::Frame(50);
    item.clip = clip;
    sequence = host.Add(draft);
    return sequence;
  }

  /// A fake before the clip's real item; set its faults, then build.
  qelcore::Ref<fakes::TrackItem> Fake() {
    return qelcore::Ref(new fakes::TrackItem(rows::Collect(Publish()).at(0).trackItem));
  }
  static qelcore::Ref<fakes::Clip> FakeClip(fakes::TrackItem& item) {
    const qelcore::Ref clip(new fakes::Clip(item.GetClip()));
    item.clip = clip;
    return clip;
  }

  TrackItemDataList Build(const qelcore::Ref<BE::ITrackItem>& item) const {
    TrackItemDataList rows;
    RowBuilder(sequence, rows).AppendRow(item);
    return rows;
  }

  std::string MissingInterface(const qelcore::Ref<BE::ITrackItem>& item) const {
    TrackItemDataList rows;
    try {
      RowBuilder(sequence, rows).AppendRow(item);
    } catch (const qelcore::config::null_pointer_exception& failure) {
      EXPECT_TRUE(rows.empty());
      return failure.GetObject();
    }
    return "none";
  }

  rows::Host host;
  standalone::SequenceDraft draft = drafts::MakeSequence();
  TrackKind kind = TrackKind::kVideo;
  standalone::ClipDraft clip;
  qelcore::Ref<BE::ISequence> sequence;
};

TEST_F(RowBuilding, OtherTypesThanGapsAndClipsHaveNoRow) {
  const auto item = Fake();
  for (const std::uint32_t type : {BE::kTrackItemType_Transition, 3U, 0xFFFFFFFFU}) {
    item->type = type;
    EXPECT_TRUE(Build(item).empty()) << type;
  }
}

// ---- Gaps

TEST_F(RowBuilding, AGapRowCarriesWhatTheItemSays) {
  const auto item = Fake();
  item->type = BE::kTrackItemType_Empty;
  item->trackIndex = 7;
  item->start = TickTime(-5);
  item->end = TickTime(9);
  const auto rows = Build(item);
  ASSERT_EQ(rows.size(), 1U);
  const TrackItemRowData& row = rows[0];
  EXPECT_EQ(row.trackItem.Get(), item.Get());
  EXPECT_EQ(row.sequence, sequence);
  EXPECT_EQ(row.name, "Gap");
  EXPECT_EQ(row.trackIndex, 7U);
  EXPECT_EQ(row.start, TickTime(-5));
  EXPECT_EQ(row.end, TickTime(9));
  EXPECT_EQ(row.mediaType, BE::kMediaType_Video);
  EXPECT_EQ(row.labelColor, (qelui::ColorRGBA{0, 0, 0, 1}));
  EXPECT_EQ(row.index, 0U);
  EXPECT_FALSE(row.startFlagged);
  EXPECT_FALSE(row.endFlagged);
  for (const auto* text :
       {&row.codec, &row.sourceClipName, &row.proxyPath, &row.proxyStatus, &row.effectsMissing,
        &row.effects, &row.transitions, &row.fontsUsed, &row.fontsMissing}) {
    EXPECT_TRUE(text->Empty());
  }
}

TEST_F(RowBuilding, AGapHasTheFrameDurationOfItsMediaTypeInTheSequence) {
  const auto item = Fake();
  item->type = BE::kTrackItemType_Empty;
  EXPECT_EQ(Build(item).at(0).frameRate, sequence->GetVideoFrameDuration());
  item->mediaType = BE::kMediaType_Audio;
  EXPECT_EQ(Build(item).at(0).frameRate, sequence->GetAudioFrameDuration());
  item->mediaType = kOtherMediaType;
  EXPECT_EQ(Build(item).at(0).frameRate, TickTime(9223372036854775807));
}

TEST_F(RowBuilding, OnlyAGapThatEndsAtExactlyOneHundredHoursIsTheOpenFiller) {
  const auto item = Fake();
  item->type = BE::kTrackItemType_Empty;
  item->start = TickTime(0);
  item->end = TickTime(91445760000000000);
  EXPECT_TRUE(Build(item).empty());
  item->end = TickTime(91445760000000000 - 1);
  EXPECT_EQ(Build(item).size(), 1U);
  item->end = TickTime(91445760000000000 + 1);
  EXPECT_EQ(Build(item).size(), 1U);
}

TEST_F(RowBuilding, AClipMayEndAtOneHundredHours) {
  const auto item = Fake();
  item->end = TickTime(91445760000000000);
  EXPECT_EQ(Build(item).size(), 1U);
}

TEST_F(RowBuilding, AGapBetweenTwoClipsHasBothTimes) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 50);
  drafts::AddGap(track, 50, 55);
  drafts::AddClip(track, "B", 55, 80);
  const auto rows = rows::Collect(host.Add(draft));
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[1].start, drafts::Frame(50));
  EXPECT_EQ(rows[1].end, drafts::Frame(55));
}

// ---- Clips: what is required

TEST_F(RowBuilding, AClipItemWithoutClipEndsThePass) {
  const auto item = Fake();
  item->clip = qelcore::Ref<BE::IClip>();
  EXPECT_EQ(MissingInterface(item), "BE::IClip");
}

TEST_F(RowBuilding, AClipWithoutMediaEndsThePass) {
  const auto item = Fake();
  FakeClip(*item)->hasMedia = false;
  EXPECT_EQ(MissingInterface(item), "BE::IMedia");
}

TEST_F(RowBuilding, AClipWithoutComponentsEndsThePass) {
  const auto item = Fake();
  FakeClip(*item)->hasComponents = false;
  EXPECT_EQ(MissingInterface(item), "BE::IComponentOwner");
}

TEST_F(RowBuilding, AnEmptyComponentEndsThePass) {
  const auto item = Fake();
  FakeClip(*item)->components.emplace().emplace_back();
  EXPECT_EQ(MissingInterface(item), "BE::IComponent");
}

TEST_F(RowBuilding, RowsBuiltBeforeAFailureStayInTheList) {
  const auto good = Fake();
  const auto bad = Fake();
  bad->clip = qelcore::Ref<BE::IClip>();
  TrackItemDataList rows;
  RowBuilder builder(sequence, rows);
  builder.AppendRow(good);
  EXPECT_THROW(builder.AppendRow(bad), qelcore::config::null_pointer_exception);
  EXPECT_EQ(rows.size(), 1U);
}

// ---- Clips: fields

TEST_F(RowBuilding, AClipRowCarriesWhatTheItemSays) {
  const auto item = Fake();
  item->trackIndex = 2;
  item->start = TickTime(11);
  item->end = TickTime(22);
  item->mediaType = kOtherMediaType;
  const auto row = Build(item).at(0);
  EXPECT_EQ(row.trackItem.Get(), item.Get());
  EXPECT_EQ(row.sequence, sequence);
  EXPECT_EQ(row.trackIndex, 2U);
  EXPECT_EQ(row.start, TickTime(11));
  EXPECT_EQ(row.end, TickTime(22));
  EXPECT_EQ(row.mediaType, kOtherMediaType);
  EXPECT_EQ(row.index, 0U);
  EXPECT_FALSE(row.startFlagged);
  EXPECT_FALSE(row.endFlagged);
}

TEST_F(RowBuilding, TheTrackIndexIsCountedFromZeroInEachGroup) {
  for (const TrackKind kind : {TrackKind::kVideo, TrackKind::kVideo, TrackKind::kAudio}) {
    drafts::AddClip(drafts::AddTrack(draft, kind), "A", 0, 50);
  }
  const auto rows = rows::Collect(host.Add(draft));
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].trackIndex, 0U);
  EXPECT_EQ(rows[1].trackIndex, 1U);
  EXPECT_EQ(rows[2].trackIndex, 0U);
}

TEST_F(RowBuilding, AClipHasItsOwnFrameDurationNotTheSequences) {
  clip.frameDuration = TickTime(12345);
  EXPECT_EQ(Row().frameRate, TickTime(12345));
}

TEST_F(RowBuilding, TheLabelColourIsConvertedToFloatsWithoutAProxyProject) {
  EXPECT_EQ(Row().labelColor, (qelui::ColorRGBA{1.0F, 0.0F, 51 / 255.0F, 1.0F}));
}

TEST_F(RowBuilding, TheLabelColourIsKnownForAClipWithProxyToo) {
  clip.proxy = standalone::MediaDraft();
  EXPECT_EQ(Row().labelColor, (qelui::ColorRGBA{1.0F, 0.0F, 51 / 255.0F, 1.0F}));
}

TEST_F(RowBuilding, TheSourceClipNameIsThatOfTheMasterClip) {
  clip.name = "On the timeline";
  clip.sourceClipName = "In the project";
  EXPECT_EQ(Row().sourceClipName, "In the project");
}

TEST_F(RowBuilding, WithoutProxyBothProxyTextsAreEmpty) {
  const auto row = Row();
  EXPECT_EQ(row.proxyPath, "");
  EXPECT_EQ(row.proxyStatus, "");
}

TEST_F(RowBuilding, AnOnlineProxyHasPathAndStatus) {
  clip.proxy = standalone::MediaDraft();
  clip.proxy->address = "/proxies/\xC3\x84.mov";
  const auto row = Row();
  EXPECT_EQ(row.proxyPath, "/proxies/\xC3\x84.mov");
  EXPECT_EQ(row.proxyStatus, "Online");
}

TEST_F(RowBuilding, AnOfflineProxyHasPathAndStatus) {
  clip.proxy = standalone::MediaDraft();
  clip.proxy->address = "/proxies/A.mov";
  clip.proxy->isOffline = true;
  const auto row = Row();
  EXPECT_EQ(row.proxyPath, "/proxies/A.mov");
  EXPECT_EQ(row.proxyStatus, "Offline");
}

TEST_F(RowBuilding, WhatIsOptionalMayBeMissing) {
  const auto row = Row();
  for (const auto* text :
       {&row.codec, &row.sourceClipName, &row.proxyPath, &row.proxyStatus, &row.effectsMissing,
        &row.effects, &row.transitions, &row.fontsUsed, &row.fontsMissing}) {
    EXPECT_TRUE(text->Empty());
  }
}

// ---- Clips: the name

TEST_F(RowBuilding, InAProjectTheNameIsTheOneShownOnTheTimeline) {
  clip.name = "A";
  const auto sequence = Publish();
  const hostcalls::Recording recording;
  EXPECT_EQ(rows::Collect(sequence).at(0).name, "A");
  EXPECT_EQ(recording.Count("GetClipName"), 1U);
}

TEST_F(RowBuilding, InAProjectTheNameStandsOnOneLine) {
  clip.name = "First\r\nSecond\n\nThird";
  EXPECT_EQ(Row().name, "First Second Third");
}

TEST_F(RowBuilding, InAProjectTheNameIsCutTo2048Characters) {
  clip.name = std::string(2048, 'x');
  EXPECT_EQ(Row().name.Size(), 2048U);
  clip.name.clear();
  draft = drafts::MakeSequence();
  for (int i = 0; i < 2049; ++i) clip.name += "\xC3\xA9";
  EXPECT_EQ(Row().name, std::string_view(clip.name).substr(0, 2 * 2048));
}

TEST_F(RowBuilding, WithoutProjectTheNameIsTheClipsOwnUntouched) {
  clip.name = "First\nSecond" + std::string(2048, 'x');
  const auto item = Fake();
  sequence = qelcore::Ref<BE::ISequence>(new fakes::Sequence(drafts::Frame(1)));
  const hostcalls::Recording recording;
  EXPECT_EQ(Build(item).at(0).name, clip.name);
  EXPECT_EQ(recording.Count("GetClipName"), 0U);
}

// ---- Clips: the codec

TEST_F(RowBuilding, TheCodecIsTheSourcesName) {
  clip.media.codec = "Motion Pictures 2";
  clip.media.fourCC = 0x6176'6331;
  EXPECT_EQ(Row().codec, "Motion Pictures 2");
}

TEST_F(RowBuilding, WithoutNameTheCodecIsTheFourCharacterCode) {
  clip.media.fourCC = 0x6176'6331;
  EXPECT_EQ(Row().codec, "avc1");
}

TEST_F(RowBuilding, SyntheticMediaHasNoCodec) {
  clip.media.codec = "Matte";
  clip.media.isSynthetic = true;
  EXPECT_EQ(Row().codec, "");
}

TEST_F(RowBuilding, OfflineMediaHasNoCodec) {
  clip.media.codec = "H.264";
  clip.media.isOffline = true;
  EXPECT_EQ(Row().codec, "");
}

TEST_F(RowBuilding, SoundHasNoCodec) {
  clip.media.codec = "H.264";
  kind = TrackKind::kAudio;
  EXPECT_EQ(Row().codec, "");
}

// ---- Clips: effects and transitions

TEST_F(RowBuilding, EveryEffectIsFollowedByTheSeparator) {
  drafts::AddEffect(clip, "Blur");
  drafts::AddEffect(clip, "Crop");
  const auto row = Row();
  EXPECT_EQ(row.effects, "Blur; Crop; ");
  EXPECT_EQ(row.effectsMissing, "");
}

TEST_F(RowBuilding, WhatEveryClipHasIsNoEffect) {
  drafts::AddEffect(clip, "Motion").isIntrinsic = true;
  drafts::AddEffect(clip, "Opacity", true).isIntrinsic = true;
  const auto row = Row();
  EXPECT_EQ(row.effects, "");
  EXPECT_EQ(row.effectsMissing, "");
}

TEST_F(RowBuilding, AMissingEffectStandsOnlyAmongTheMissing) {
  drafts::AddEffect(clip, "Gone", true);
  drafts::AddEffect(clip,
                    "Bl\xC3\xBC"
                    "r");
  drafts::AddEffect(clip, "Lost", true);
  const auto row = Row();
  EXPECT_EQ(row.effects,
            "Bl\xC3\xBC"
            "r; ");
  EXPECT_EQ(row.effectsMissing, "Gone; Lost; ");
}

TEST_F(RowBuilding, TransitionsAreNamedWithTheirEndOfTheClip) {
  clip.headTransition = standalone::TransitionDraft{"Dip to Black", false};
  clip.tailTransition = standalone::TransitionDraft{"Cross Dissolve", false};
  EXPECT_EQ(Row().transitions, "[IN]: Dip to Black; [OUT]: Cross Dissolve; ");
}

TEST_F(RowBuilding, MissingTransitionsFollowTheMissingEffects) {
  drafts::AddEffect(clip, "Gone", true);
  clip.headTransition = standalone::TransitionDraft{"Page Peel", true};
  clip.tailTransition = standalone::TransitionDraft{"Cross Dissolve", false};
  const auto row = Row();
  EXPECT_EQ(row.effectsMissing, "Gone; [IN]: Page Peel; ");
  EXPECT_EQ(row.transitions, "[OUT]: Cross Dissolve; ");
}

// ---- Clips: fonts

class FontsOfRows : public RowBuilding {
 protected:
  FontsOfRows() {
    clip.isGraphic = true;
    clip.media.isSynthetic = true;
  }
  void AddText(std::vector<std::string> fonts) {
    auto& component = drafts::AddEffect(clip, "Text");
    component.isIntrinsic = true;
    component.fonts = std::move(fonts);
  }
};

TEST_F(FontsOfRows, EveryUsedFontIsListedAndTheUninstalledOnesAgain) {
  AddText({"DejaVu Sans", "No Such Font 1", "No Such Font 2"});
  const auto row = Row();
  EXPECT_EQ(row.fontsUsed, "DejaVu Sans; No Such Font 1; No Such Font 2; ");
  const bool isInstalled = !KTEWrapper::FontServer::GetInstance().CheckIfFontMissing("DejaVu Sans");
  EXPECT_EQ(row.fontsMissing, isInstalled ? "No Such Font 1; No Such Font 2; "
                                          : "DejaVu Sans; No Such Font 1; No Such Font 2; ");
}

TEST_F(FontsOfRows, AllTextsOfAnItemCountAndAFontIsListedOnceInOrderOfFirstUse) {
  AddText({"B", "A", "B"});
  AddText({"C", "A"});
  EXPECT_EQ(Row().fontsUsed, "B; A; C; ");
}

TEST_F(FontsOfRows, OnlyComponentsOfTheTextKindHaveFonts) {
  AddText({"A"});
  const auto item = Fake();
  const auto fakeClip = FakeClip(*item);
  const qelcore::Ref component(new fakes::Component(fakeClip->GetComponent(0)));
  fakeClip->components = {component};
  EXPECT_EQ(Build(item).at(0).fontsUsed, "A; ");
  component->matchName = qelcore::UTF8String("Shape");
  EXPECT_EQ(Build(item).at(0).fontsUsed, "");
}

TEST_F(FontsOfRows, ATextComponentWithoutDocumentHasNoFonts) {
  AddText({"A"});
  const auto item = Fake();
  const auto fakeClip = FakeClip(*item);
  const qelcore::Ref component(new fakes::Component(fakeClip->GetComponent(0)));
  fakeClip->components = {component};
  component->hasParam = false;
  EXPECT_EQ(Build(item).at(0).fontsUsed, "");
}

TEST_F(FontsOfRows, AClipThatIsNoGraphicHasNoFonts) {
  AddText({"A"});
  clip.isGraphic = false;
  EXPECT_EQ(Row().fontsUsed, "");
}

TEST_F(FontsOfRows, SoundHasNoFonts) {
  AddText({"A"});
  kind = TrackKind::kAudio;
  EXPECT_EQ(Row().fontsUsed, "");
}

TEST_F(FontsOfRows, ATitleIsARowLikeAnyOther) {
  auto draft = drafts::MakeSequence();
  drafts::AddTitle(drafts::AddTrack(draft), "Title", 0, 50, {"No Such Font"});
  const auto rows = rows::Collect(host.Add(draft));
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].name, "Title");
  EXPECT_EQ(rows[0].fontsMissing, "No Such Font; ");
}

}  // namespace
}  // namespace Vantrel
