#include "host/MZ/Clips.h"

#include <gtest/gtest.h>

#include "host/BE/TextDocument.h"
#include "host/BE/Utilities.h"
#include "host/ML/TextFilter.h"
#include "host/MZ/TrackItemSelection.h"
#include "host/qelcore/Exceptions.h"
#include "model/ModelFixture.h"

namespace {

using qelcore::Ref;
using standalone::TrackKind;

class Clips : public ModelTest {
 protected:
  /// The first item of a sequence.
  Ref<BE::ITrackItem> FirstItem() { return CollectItems(Publish()).front(); }
  Ref<BE::IMasterClip> MasterClipAt(std::size_t index) {
    return BE::TrackItemUtils::GetMasterClip(CollectClips(Publish())[index]);
  }
  const Ref<BE::ISequence>& Publish() {
    if (!sequence) sequence = model.Add(draft);
    return sequence;
  }

  standalone::SequenceDraft draft = drafts::MakeSequence();
  standalone::TrackDraft& track = drafts::AddTrack(draft);
  Ref<BE::ISequence> sequence;
};

TEST_F(Clips, AClipAnswersItsNameFrameDurationAndVideoInfo) {
  auto& clip = drafts::AddClip(track, "Line\nbreak", 0, 10);
  clip.frameDuration = qelmediatypes::TickTime(7);
  clip.videoInfo = "1920 x 1080 (1.0)";
  const auto item = FirstItem();
  EXPECT_EQ(item->GetClip()->GetName(), "Line\nbreak");
  EXPECT_EQ(item->GetClip()->GetFrameDuration().GetTicks(), 7);
  EXPECT_EQ(MZ::FindClip::GetClipName(item), "Line\nbreak");
  EXPECT_EQ(MZ::FindClip::GetVideoInfo(item), "1920 x 1080 (1.0)");
}

TEST_F(Clips, AClipWithoutAnyFactsStillHasMediaAndComponents) {
  standalone::TrackItemDraft& item = track.items.emplace_back();
  item.end = drafts::Frame(10);
  item.clip.emplace();
  const auto clip = FirstItem()->GetClip();
  ASSERT_TRUE(clip);
  ASSERT_TRUE(clip->GetMedia());
  EXPECT_TRUE(clip->GetMedia()->GetAddress().Empty());
  const auto components = qelcore::QueryInterface<BE::IComponentOwner>(clip);
  ASSERT_TRUE(components);
  EXPECT_EQ(components->GetComponentCount(), 0U);
}

TEST_F(Clips, AClipKnowsWhetherItIsDisabled) {
  drafts::AddClip(track, "A", 0, 10).isDisabled = true;
  drafts::AddClip(track, "B", 10, 20);
  const auto clips = CollectClips(Publish());
  EXPECT_TRUE(clips[0]->GetClip()->IsDisabled());
  EXPECT_FALSE(clips[1]->GetClip()->IsDisabled());
}

TEST_F(Clips, AClipIsMulticamWithOrWithoutNamesOfItsCameras) {
  drafts::AddClip(track, "A", 0, 10).multicam = {true, {"Cam 1"}, 0};
  drafts::AddClip(track, "B", 10, 20).multicam.isMulticam = true;
  drafts::AddClip(track, "C", 20, 30).multicam.cameraNames = {"Cam 1"};
  const auto clips = CollectClips(Publish());
  EXPECT_TRUE(clips[0]->GetClip()->IsMulticam());
  EXPECT_TRUE(clips[1]->GetClip()->IsMulticam());
  EXPECT_FALSE(clips[2]->GetClip()->IsMulticam());
}

TEST_F(Clips, TheChildClipKnowsSpeedSequenceAndMasterClip) {
  drafts::AddClip(track, "A", 0, 10).hasSpeedChange = true;
  drafts::AddClip(track, "B", 10, 20).nestedSequence = 0;
  const auto clips = CollectClips(Publish());
  const auto fast = BE::TrackItemUtils::GetChildClip(clips[0]);
  const auto nested = BE::TrackItemUtils::GetChildClip(clips[1]);
  ASSERT_TRUE(fast && nested);
  EXPECT_TRUE(fast->IsSpeedChanged());
  EXPECT_FALSE(fast->IsSequence());
  EXPECT_FALSE(nested->IsSpeedChanged());
  EXPECT_TRUE(nested->IsSequence());
  EXPECT_EQ(fast->GetMasterClip(), MasterClipAt(0));
  EXPECT_EQ(nested->GetMasterClip(), MasterClipAt(1));
}

TEST_F(Clips, TheClipOfAnItemIsItsOwn) {
  drafts::AddClip(track, "A", 0, 10);
  EXPECT_EQ(BE::TrackItemUtils::GetClip(FirstItem()), FirstItem()->GetClip());
}

TEST_F(Clips, AStillAndAMovingPictureOfTheSameFactsAreTwoMasterClips) {
  drafts::AddClip(track, "A", 0, 10).media.isStill = true;
  drafts::AddClip(track, "A", 10, 20);
  drafts::AddClip(track, "A", 20, 30).media.isStill = true;
  EXPECT_TRUE(BE::MasterClipUtils::IsStill(MasterClipAt(0)));
  EXPECT_FALSE(BE::MasterClipUtils::IsStill(MasterClipAt(1)));
  EXPECT_EQ(MasterClipAt(2), MasterClipAt(0));
}

TEST_F(Clips, MediaAnswersItsStates) {
  using Media = standalone::MediaDraft;
  for (bool Media::*const state : {&Media::isSynthetic, &Media::isOffline, &Media::isPendingConnection,
                                   &Media::isGrowing, &Media::isPendingRelink}) {
    drafts::AddClip(track, "A", 0, 10).media.*state = true;
  }
  const auto clips = CollectClips(Publish());
  for (int state = 0; state < 5; ++state) {
    const auto media = clips[state]->GetClip()->GetMedia();
    EXPECT_EQ(media->GetAddress(), "/media/A.mov");
    EXPECT_EQ(BE::MediaUtils::IsSynthetic(media), state == 0) << state;
    EXPECT_EQ(media->IsOffline(), state == 1) << state;
    EXPECT_EQ(media->IsPendingConnection(), state == 2) << state;
    EXPECT_EQ(media->IsGrowing(), state == 3) << state;
    EXPECT_EQ(media->IsPendingRelink(), state == 4) << state;
  }
}

TEST_F(Clips, OnlyOfflineMediaHasAReason) {
  auto& offline = drafts::AddClip(track, "A", 0, 10);
  offline.media.isOffline = true;
  offline.media.offlineReason = "Drive is not mounted";
  drafts::AddClip(track, "B", 10, 20).media.offlineReason = "Left over";
  const auto clips = CollectClips(Publish());
  const auto reason = clips[0]->GetClip()->GetMedia()->GetOfflineReason();
  ASSERT_TRUE(reason);
  EXPECT_EQ(reason->GetDescription(), "Drive is not mounted");
  EXPECT_FALSE(clips[1]->GetClip()->GetMedia()->GetOfflineReason());
}

TEST_F(Clips, PictureMediaAnswersCodecAndCodeAndSoundMediaHasNoPicture) {
  auto& picture = drafts::AddClip(track, "A", 0, 10);
  picture.media.codec = "ProRes 422";
  picture.media.fourCC = 0x6170636E;
  drafts::AddClip(drafts::AddTrack(draft, TrackKind::kAudio), "Sound", 0, 10);
  const auto clips = CollectClips(Publish());
  const auto source = clips[0]->GetClip()->GetMedia()->GetVideoSource();
  ASSERT_TRUE(source);
  EXPECT_EQ(source->GetCodecName(), "ProRes 422");
  EXPECT_EQ(source->GetFourCC(), 0x6170636EU);
  EXPECT_FALSE(clips[1]->GetClip()->GetMedia()->GetVideoSource());
}

TEST_F(Clips, ClipsOfTheSameMediaShareIt) {
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddClip(track, "A", 10, 20);
  drafts::AddClip(track, "A", 20, 30).media.isOffline = true;
  const auto clips = CollectClips(Publish());
  EXPECT_EQ(clips[0]->GetClip()->GetMedia(), clips[1]->GetClip()->GetMedia());
  EXPECT_FALSE(clips[0]->GetClip()->GetMedia() == clips[2]->GetClip()->GetMedia());
}

TEST_F(Clips, ComponentsStandInTheirOrder) {
  auto& clip = drafts::AddClip(track, "A", 0, 10);
  drafts::AddEffect(clip, "Motion").isIntrinsic = true;
  drafts::AddEffect(clip, "Flou gaussien \xC3\xA9").matchName = "Blur";
  drafts::AddEffect(clip, "Lens", true);
  drafts::AddEffect(drafts::AddClip(track, "B", 10, 20), "Crop");
  const auto clips = CollectClips(Publish());
  const auto first = qelcore::QueryInterface<BE::IComponentOwner>(clips[0]->GetClip());
  ASSERT_EQ(first->GetComponentCount(), 3U);
  EXPECT_TRUE(first->GetComponent(0)->IsIntrinsic());
  EXPECT_EQ(first->GetComponent(1)->GetDisplayName(), u"Flou gaussien \u00E9");
  EXPECT_EQ(first->GetComponent(1)->GetMatchName(), "Blur");
  EXPECT_FALSE(first->GetComponent(1)->IsIntrinsic());
  EXPECT_FALSE(first->GetComponent(1)->IsMissing());
  EXPECT_TRUE(first->GetComponent(2)->IsMissing());
  const auto second = qelcore::QueryInterface<BE::IComponentOwner>(clips[1]->GetClip());
  ASSERT_EQ(second->GetComponentCount(), 1U);
  EXPECT_EQ(second->GetComponent(0)->GetDisplayName(), u"Crop");
}

TEST_F(Clips, ATextComponentHoldsItsFontsInTheDocumentParameter) {
  drafts::AddTitle(track, "Title", 0, 10, {"Arial", "Times", "Arial"});
  const auto item = FirstItem();
  EXPECT_TRUE(MZ::Graphics::IsGraphicsTrackItem(item));
  const auto text = qelcore::QueryInterface<BE::IComponentOwner>(item->GetClip())->GetComponent(0);
  EXPECT_EQ(text->GetMatchName(), ML::kMatchnameText);
  const auto param = text->GetParam(ML::kTextFilter_DocumentParamIndex);
  ASSERT_TRUE(param);
  const auto document = BE::TextDocument::Create(param->GetKeyframeValue());
  ASSERT_EQ(document->GetUsedFonts().size(), 3U);
  EXPECT_EQ(document->GetUsedFonts()[0], "Arial");
  EXPECT_EQ(document->GetUsedFonts()[1], "Times");
  EXPECT_EQ(document->GetUsedFonts()[2], "Arial");
  EXPECT_FALSE(text->GetParam(ML::kTextFilter_DocumentParamIndex + 1));
}

TEST_F(Clips, AComponentOfAnotherKindHasNoDocument) {
  drafts::AddEffect(drafts::AddClip(track, "A", 0, 10), "Blur").fonts = {"Arial"};
  const auto item = FirstItem();
  EXPECT_FALSE(MZ::Graphics::IsGraphicsTrackItem(item));
  EXPECT_FALSE(
      qelcore::QueryInterface<BE::IComponentOwner>(item->GetClip())->GetComponent(0)->GetParam(0));
}

TEST_F(Clips, TransitionsAreFoundAtBothEndsOfAClip) {
  auto& clip = drafts::AddClip(track, "A", 0, 10);
  clip.headTransition = {"Fade In", false};
  clip.tailTransition = {"Wipe", true};
  drafts::AddClip(track, "B", 10, 20);
  const auto clips = CollectClips(Publish());
  const auto head = BE::TrackItemUtils::GetHeadTransition(clips[0]);
  const auto tail = BE::TrackItemUtils::GetTailTransition(clips[0]);
  ASSERT_TRUE(head && tail);
  EXPECT_EQ(head->GetDisplayName(), u"Fade In");
  EXPECT_FALSE(head->IsMissing());
  EXPECT_EQ(tail->GetDisplayName(), u"Wipe");
  EXPECT_TRUE(tail->IsMissing());
  EXPECT_FALSE(BE::TrackItemUtils::GetHeadTransition(clips[1]));
  EXPECT_FALSE(BE::TrackItemUtils::GetTailTransition(clips[1]));
}

TEST_F(Clips, TheMasterClipLeadsToSourceNameMediaAndProjectItem) {
  auto& clip = drafts::AddClip(track, "Shown", 0, 10);
  clip.sourceClipName = "Source";
  clip.comment = "good";
  clip.description = "wide shot";
  clip.tapeName = "A001";
  const auto master = MasterClipAt(0);
  ASSERT_TRUE(master);
  EXPECT_EQ(master->GetName(), "Source");
  EXPECT_EQ(master->GetMedia(), FirstItem()->GetClip()->GetMedia());
  const auto item = BE::MasterClipUtils::GetProjectItem(master);
  ASSERT_TRUE(item);
  EXPECT_EQ(item->GetColumnProperty("Column.PropertyText.Comment"), "good");
  EXPECT_EQ(item->GetColumnProperty("Column.PropertyText.Other"), "");
  EXPECT_EQ(item->GetDescription(), "wide shot");
  EXPECT_EQ(item->GetTapeName(), "A001");
}

TEST_F(Clips, ClipsWithTheSameFactsShareTheMasterClip) {
  using Draft = standalone::ClipDraft;
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddClip(track, "A", 10, 20).name = "Renamed on the timeline";
  for (std::string Draft::*const fact :
       {&Draft::sourceClipName, &Draft::comment, &Draft::description, &Draft::tapeName}) {
    drafts::AddClip(track, "A", 0, 10).*fact = "different";
  }
  drafts::AddClip(track, "A", 0, 10).media.address = "/media/other.mov";
  drafts::AddClip(track, "A", 0, 10).proxy.emplace().address = "/proxy/A.mov";
  const auto first = MasterClipAt(0);
  EXPECT_EQ(MasterClipAt(1), first);
  for (std::size_t i = 2; i <= 7; ++i) EXPECT_FALSE(MasterClipAt(i) == first) << i;
}

TEST_F(Clips, EveryClipHasAMasterClipWithTheStateOfItsOwnMedia) {
  drafts::AddTitle(track, "Title", 0, 10, {});
  auto& lost = drafts::AddTitle(track, "Lost", 10, 20, {});
  lost.media.isSynthetic = false;
  lost.media.isOffline = true;
  drafts::AddClip(track, "A", 20, 30);
  drafts::AddClip(track, "A", 30, 40).media.isOffline = true;
  ASSERT_TRUE(MasterClipAt(0));
  EXPECT_FALSE(MasterClipAt(0)->GetMedia()->IsOffline());
  EXPECT_TRUE(MasterClipAt(1)->GetMedia()->IsOffline());
  EXPECT_FALSE(MasterClipAt(2)->GetMedia()->IsOffline());
  EXPECT_TRUE(MasterClipAt(3)->GetMedia()->IsOffline());
}

TEST_F(Clips, PictureAndSoundOfOneFileShareTheMasterClip) {
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddClip(drafts::AddTrack(draft, standalone::TrackKind::kAudio), "A", 0, 10);
  EXPECT_EQ(MasterClipAt(0), MasterClipAt(1));
}

TEST_F(Clips, TheProxyIsFoundThroughTheMasterClip) {
  auto& clip = drafts::AddClip(track, "A", 0, 10);
  clip.proxy.emplace().address = "/proxy/A.mov";
  clip.proxy->isOffline = true;
  drafts::AddClip(track, "B", 10, 20);
  const auto proxy = BE::MasterClipUtils::GetProxyMedia(MasterClipAt(0));
  ASSERT_TRUE(proxy);
  EXPECT_EQ(proxy->GetAddress(), "/proxy/A.mov");
  EXPECT_TRUE(proxy->IsOffline());
  EXPECT_FALSE(BE::MasterClipUtils::GetProxyMedia(MasterClipAt(1)));
}

TEST_F(Clips, TheProjectOfAProxyIsTheProjectAndThereIsNoneWithoutProxy) {
  drafts::AddClip(track, "A", 0, 10).proxy.emplace().address = "/proxy/A.mov";
  drafts::AddClip(track, "B", 10, 20);
  const auto clips = CollectClips(Publish());
  EXPECT_EQ(BE::GetContainingProxyProject(clips[0]->GetClip()), model.project.GetProject());
  EXPECT_FALSE(BE::GetContainingProxyProject(clips[1]->GetClip()));
}

class UsageCounts : public Clips {
 protected:
  std::uint64_t CountOf(const Ref<BE::IMasterClip>& masterClip) {
    return MZ::Project::GetMasterClipUsageCount(model.project.GetProject(), masterClip, Publish());
  }
};

TEST_F(UsageCounts, CountItemsOfTheSameAddressWithPictureAndSoundOneEach) {
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddClip(track, "B", 10, 20);
  drafts::AddClip(track, "A", 20, 30).comment = "another master clip";
  auto& sound = drafts::AddTrack(draft, TrackKind::kAudio);
  drafts::AddClip(sound, "A", 0, 10);
  EXPECT_EQ(CountOf(MasterClipAt(0)), 3U);
  EXPECT_EQ(CountOf(MasterClipAt(1)), 1U);
  EXPECT_EQ(CountOf(MasterClipAt(2)), 3U);
}

TEST_F(UsageCounts, AClipWithoutAddressCountsAlone) {
  drafts::AddTitle(track, "T", 0, 10, {}).sourceClipName = "Titles";
  drafts::AddTitle(track, "T", 10, 20, {}).sourceClipName = "Titles";
  EXPECT_EQ(CountOf(MasterClipAt(0)), 1U);
}

TEST_F(UsageCounts, FollowTheSequenceThatIsAsked) {
  drafts::AddClip(track, "A", 0, 10);
  const auto masterClip = MasterClipAt(0);
  drafts::AddClip(track, "A", 10, 20);
  model.project.ReplaceSequence(Publish(), draft);
  EXPECT_EQ(CountOf(masterClip), 2U);
  const auto other = model.Add(drafts::MakeSequence());
  EXPECT_EQ(MZ::Project::GetMasterClipUsageCount(model.project.GetProject(), masterClip, other), 0U);
}

TEST_F(UsageCounts, AreZeroWhenAnythingIsMissing) {
  drafts::AddClip(track, "A", 0, 10);
  const auto masterClip = MasterClipAt(0);
  EXPECT_EQ(MZ::Project::GetMasterClipUsageCount({}, masterClip, Publish()), 0U);
  EXPECT_EQ(CountOf({}), 0U);
  EXPECT_EQ(MZ::Project::GetMasterClipUsageCount(model.project.GetProject(), masterClip, {}), 0U);
}

class Multicam : public Clips {};

TEST_F(Multicam, AMulticamItemAnswersItsCamerasAndTheOneShown) {
  drafts::AddClip(track, "A", 0, 10).multicam = {true, {"Cam 1", "Cam 2"}, 1};
  const auto selection = BE::TrackItemSelectionFactory::CreateSelection(FirstItem());
  EXPECT_TRUE(selection.AreItemsMulticam());
  const auto names = selection.GetMulticamCameraNames();
  ASSERT_EQ(names.size(), 2U);
  EXPECT_EQ(names[selection.GetMulticamItemsSelectedTrackIndex()], "Cam 2");
}

TEST_F(Multicam, ACameraThatDoesNotExistCountsAsTheFirst) {
  drafts::AddClip(track, "A", 0, 10).multicam = {true, {"Cam 1"}, 9};
  const auto selection = BE::TrackItemSelectionFactory::CreateSelection(FirstItem());
  EXPECT_EQ(selection.GetMulticamItemsSelectedTrackIndex(), 0U);
}

TEST_F(Multicam, ASelectionIsMulticamOnlyWhenAllItsItemsAre) {
  drafts::AddClip(track, "A", 0, 10).multicam = {true, {"Cam 1"}, 0};
  drafts::AddClip(track, "B", 10, 20);
  const auto clips = CollectClips(Publish());
  EXPECT_FALSE(MZ::TrackItemSelection(clips).AreItemsMulticam());
  EXPECT_FALSE(MZ::TrackItemSelection({}).AreItemsMulticam());
  const auto plain = BE::TrackItemSelectionFactory::CreateSelection(clips[1]);
  EXPECT_FALSE(plain.AreItemsMulticam());
  EXPECT_TRUE(plain.GetMulticamCameraNames().empty());
  EXPECT_EQ(plain.GetMulticamItemsSelectedTrackIndex(), 0U);
}

TEST_F(Multicam, ASelectionOfNoItemIsRefused) {
  EXPECT_THROW(BE::TrackItemSelectionFactory::CreateSelection({}),
               qelcore::config::null_pointer_exception);
}

/// Every question about an item or its clip, each expected to be answered with nothing.
void ExpectNeutralAnswers(const Ref<BE::ITrackItem>& item, const Ref<BE::IClip>& clip) {
  EXPECT_EQ(BE::TrackItemUtils::GetClip(item), clip);
  EXPECT_FALSE(BE::TrackItemUtils::GetChildClip(item));
  EXPECT_FALSE(BE::TrackItemUtils::GetMasterClip(item));
  EXPECT_FALSE(BE::TrackItemUtils::GetHeadTransition(item));
  EXPECT_FALSE(BE::TrackItemUtils::GetTailTransition(item));
  EXPECT_EQ(MZ::FindClip::GetVideoInfo(item), "");
  EXPECT_FALSE(MZ::Graphics::IsGraphicsTrackItem(item));
  EXPECT_FALSE(MZ::TrackItemSelection({item}).AreItemsMulticam());
  EXPECT_FALSE(BE::GetContainingProxyProject(clip));
  EXPECT_EQ(MZ::ColorLabelUtils::GetDisplayLabelColorForClip(clip, {}), ZSL::Color());
}

TEST_F(Clips, AGapGivesNeutralAnswers) {
  drafts::AddGap(track, 0, 10);
  drafts::AddClip(track, "A", 10, 20);
  const auto gap = FirstItem();
  EXPECT_FALSE(gap->GetClip());
  ExpectNeutralAnswers(gap, gap->GetClip());
  EXPECT_EQ(MZ::FindClip::GetClipName(gap), "");
}

TEST_F(Clips, NothingGivesNeutralAnswers) {
  ExpectNeutralAnswers({}, {});
  EXPECT_EQ(MZ::FindClip::GetClipName({}), "");
  EXPECT_FALSE(BE::MasterClipUtils::GetProxyMedia({}));
  EXPECT_FALSE(BE::MasterClipUtils::IsStill({}));
  EXPECT_FALSE(BE::MasterClipUtils::GetProjectItem({}));
  EXPECT_FALSE(BE::MediaUtils::IsSynthetic({}));
  EXPECT_EQ(BE::SequenceUtils::GetZeroPoint({}).GetTicks(), 0);
}

/// An item that shows another one's clip, or a clip of its own making.
class ForeignItem final : public Fake<BE::ITrackItem> {
 public:
  ForeignItem(Ref<BE::ITrackItem> real, Ref<BE::IClip> clip)
      : real(std::move(real)), clip(std::move(clip)) {}
  std::uint32_t GetType() const override { return real->GetType(); }
  BE::MediaType GetMediaType() const override { return real->GetMediaType(); }
  std::uint64_t GetTrackIndex() const override { return real->GetTrackIndex(); }
  qelmediatypes::TickTime GetStart() const override { return real->GetStart(); }
  qelmediatypes::TickTime GetEnd() const override { return real->GetEnd(); }
  qelcore::Borrowed<BE::IClip> GetClip() const override { return clip; }
  qelcore::Borrowed<qelcore::IUnknown> GetTrack() const override { return real->GetTrack(); }

 private:
  Ref<BE::ITrackItem> real;
  Ref<BE::IClip> clip;
};

class ForeignClip final : public Fake<BE::IClip> {
 public:
  qelcore::UTF8String GetName() const override { return qelcore::UTF8String("Foreign"); }
  bool IsDisabled() const override { return false; }
  bool IsMulticam() const override { return false; }
  qelmediatypes::TickTime GetFrameDuration() const override { return drafts::Frame(1); }
  qelcore::Borrowed<BE::IMedia> GetMedia() const override { return {}; }
};

TEST_F(Clips, AnObjectThatOnlyHasThePublicInterfacesGivesNeutralAnswers) {
  drafts::AddTitle(track, "Title", 0, 10, {});
  const Ref<BE::IClip> clip(new ForeignClip);
  const Ref<BE::ITrackItem> item(new ForeignItem(FirstItem(), clip));
  ExpectNeutralAnswers(item, clip);
  EXPECT_EQ(MZ::FindClip::GetClipName(item), "Foreign");
}

TEST_F(Clips, AnItemAroundOneOfOursAnswersForItsClip) {
  drafts::AddTitle(track, "Title", 0, 10, {});
  const auto real = FirstItem();
  const Ref<BE::ITrackItem> item(new ForeignItem(real, real->GetClip()));
  EXPECT_TRUE(MZ::Graphics::IsGraphicsTrackItem(item));
}

}  // namespace
