#include "standalone/import/OtioMedia.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/Fixtures.h"
#include "import/OtioText.h"

namespace standalone {
namespace {

using testing::ElementsAre;

MediaDraft MediaOf(const std::string& reference) {
  return otio::ReadOnly(otio::Clip("A", "10", otio::Media(reference))).media;
}

TEST(Media, AddressesOfAllFormsAreShownAndNameTheClips) {
  const SequenceDraft sequence = fixtures::ReadSequence("media_addresses.otio");
  std::vector<std::string> addresses;
  std::vector<std::string> names;
  for (const TrackItemDraft& item : sequence.tracks.at(0).items) {
    addresses.emplace_back(item.clip->media.address);
    names.push_back(item.clip->name);
  }
  EXPECT_THAT(addresses,
              ElementsAre("/media/stills/sunset #1.png", R"(C:\Media\Music\theme.wav)",
                          "../footage/sky one.mov", "/Volumes/RAID/shot_010.mov", "D:/Shots/010.mov",
                          "https://example.org/rushes/a.mov", "present.txt",
                          "/show/sq 010/sq010.001001.exr", "Seq/take.-0012.jpg"));
  EXPECT_THAT(names, ElementsAre("sunset #1", "theme", "sky one", "shot_010", "010", "a", "present",
                                 "sq010.001001", "take.-0012"));
}

TEST(Media, AFileThatDoesNotExistIsOffline) {
  const SequenceDraft sequence = fixtures::ReadSequence("media_addresses.otio");
  const MediaDraft lost = fixtures::Clip(sequence, 0, 0).media;
  EXPECT_TRUE(lost.isOffline);
  EXPECT_EQ(lost.offlineReason, "Media file not found");
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 1).media.isOffline);
  const MediaDraft present = fixtures::Clip(sequence, 0, 6).media;
  EXPECT_FALSE(present.isOffline);
  EXPECT_EQ(present.offlineReason, "");
  EXPECT_EQ(present.lookUpPath, (fixtures::Folder() / "present.txt").string());
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 7).media.isOffline);
}

TEST(Media, AnAddressThatIsNoFileCountsAsOnline) {
  EXPECT_FALSE(MediaOf(otio::File("https://example.org/a.mov")).isOffline);
}

TEST(Media, MissingReferencesAreOfflineAndMayKeepTheLostPath) {
  const MediaDraft media =
      MediaOf(otio::Item("MissingReference.1", "a",
                         R"(, "metadata": {"Resolve_OTIO": {"Media Url": "/raid/lost/a.mov"}})"));
  EXPECT_TRUE(media.isOffline);
  EXPECT_EQ(media.address, "/raid/lost/a.mov");
  EXPECT_EQ(media.offlineReason, "Media is missing");
  EXPECT_TRUE(MediaOf("null").isOffline);
  EXPECT_TRUE(otio::ReadOnly(otio::Clip("A", "10")).media.isOffline);
}

TEST(Media, GeneratorsAreSyntheticAndNeverOffline) {
  const MediaDraft media = MediaOf(otio::Item("GeneratorReference.1", "bars"));
  EXPECT_TRUE(media.isSynthetic);
  EXPECT_FALSE(media.isOffline);
  EXPECT_EQ(media.address, "");
}

TEST(Media, OurFlagsWinOverTheFileSystem) {
  EXPECT_FALSE(MediaOf(otio::File("lost.mov", otio::Index(R"("offline": false)"))).isOffline);
  EXPECT_FALSE(
      MediaOf(otio::Item("MissingReference.1", "", otio::Index(R"("offline": false)"))).isOffline);
  const MediaDraft offline = MediaOf(
      otio::Item("GeneratorReference.1", "", otio::Index(R"("offline": true, "synthetic": false)")));
  EXPECT_TRUE(offline.isOffline);
  EXPECT_FALSE(offline.isSynthetic);
}

TEST(Media, OurKeysAreRead) {
  const MediaDraft media =
      fixtures::Clip(fixtures::ReadSequence("everything_of_ours.otio"), 0, 0).media;
  EXPECT_EQ(media.codec, "Intermediate 422");
  EXPECT_EQ(media.fourCC, 0x696D3432u);
  EXPECT_TRUE(media.isStill);
  EXPECT_FALSE(media.isSynthetic);
  EXPECT_TRUE(media.isOffline);
  EXPECT_EQ(media.offlineReason, "Drive not connected");
  EXPECT_TRUE(media.isPendingRelink);
  EXPECT_FALSE(media.isPendingConnection);
  EXPECT_FALSE(media.isGrowing);
}

TEST(Media, EachStatusHasItsWord) {
  EXPECT_TRUE(
      MediaOf(otio::File("a", otio::Index(R"("status": "pending_connection")"))).isPendingConnection);
  EXPECT_TRUE(MediaOf(otio::File("a", otio::Index(R"("status": "growing")"))).isGrowing);
}

TEST(Media, APictureFileOfOneFrameOrWithoutARangeIsAStill) {
  const auto range = [](const std::string& frames) {
    return R"(, "available_range": )" + otio::Range("0", frames);
  };
  EXPECT_TRUE(MediaOf(otio::File("a.PNG")).isStill);
  EXPECT_TRUE(MediaOf(otio::File("a.jpg", range("1"))).isStill);
  EXPECT_FALSE(MediaOf(otio::File("a.jpg", range("5"))).isStill);
  EXPECT_FALSE(MediaOf(otio::File("a.mov")).isStill);
  EXPECT_FALSE(MediaOf(otio::File("a.png", otio::Index(R"("still": false)"))).isStill);
  EXPECT_FALSE(
      MediaOf(otio::Item("ImageSequenceReference.1", "", R"(, "name_suffix": ".png")")).isStill);
}

TEST(Media, WhatIsOnlyAssumedIsMarkedSo) {
  const auto range = [](const std::string& frames) {
    return R"(, "available_range": )" + otio::Range("0", frames);
  };
  EXPECT_TRUE(MediaOf(otio::File("a.png")).isStillAssumed);
  EXPECT_TRUE(MediaOf(otio::File("a.mov")).isStillAssumed);
  EXPECT_TRUE(MediaOf(otio::File("a.jpg", range("1"))).isStillAssumed);
  EXPECT_FALSE(MediaOf(otio::File("a.jpg", range("5"))).isStillAssumed);
  EXPECT_FALSE(MediaOf(otio::File("a.png", otio::Index(R"("still": true)"))).isStillAssumed);
  EXPECT_FALSE(MediaOf(otio::Item("ImageSequenceReference.1", "")).isStillAssumed);
  EXPECT_TRUE(MediaOf(otio::File("a", otio::Index(R"("offline": false)"))).isOnlineStated);
  EXPECT_FALSE(MediaOf(otio::File("a", otio::Index(R"("offline": true)"))).isOnlineStated);
  EXPECT_FALSE(MediaOf(otio::File("a")).isOnlineStated);
}

TEST(Media, RatesThatTheTimelineDoesNotTellAreMarkedAssumed) {
  const auto isAssumed = [](const std::string& kind, const std::string& reference) {
    const std::string clip = otio::Clip("A", "10", otio::Media(reference));
    const auto result = otio::Read(otio::Timeline({otio::Track({clip}, kind)}));
    return result.document.sequences.at(0).tracks.at(0).items.at(0).clip->isFrameDurationAssumed;
  };
  const std::string pictures = R"(, "available_range": )" + otio::Range("0", "50", "25");
  const std::string samples = R"(, "available_range": )" + otio::Range("0", "96000", "48000");
  EXPECT_TRUE(isAssumed("Video", otio::File("a.mov")));
  EXPECT_TRUE(isAssumed("Audio", otio::File("a.mov")));
  EXPECT_TRUE(isAssumed("Video", otio::File("a.mov", samples)));
  EXPECT_TRUE(isAssumed("Audio", otio::File("a.mov", pictures)));
  EXPECT_FALSE(isAssumed("Video", otio::File("a.mov", pictures)));
  EXPECT_FALSE(isAssumed("Audio", otio::File("a.mov", samples)));
}

TEST(Media, TheActiveKeyChoosesAndAWrongOneIsNotedAsMissing) {
  const ImportResult result = fixtures::Read("active_key.otio");
  const SequenceDraft& sequence = result.document.sequences.at(0);
  EXPECT_EQ(fixtures::Clip(sequence, 0, 0).media.address, "b.mov");
  EXPECT_EQ(fixtures::Clip(sequence, 0, 1).media.address, "");
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 1).media.isOffline);
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 3).media.isOffline);
  ASSERT_EQ(result.notes.size(), 2u);
  EXPECT_EQ(result.notes[0].place, "track V1, clip \"No such entry\"");
  EXPECT_EQ(result.notes[0].sentence,
            "The active media \"lost\" is not among the clip's media; it is shown as missing.");
  EXPECT_EQ(result.notes[1].place, "track V1, clip \"No entries\"");
}

TEST(Proxies, AreFlaggedOrNamedAndNeverTheActiveMedia) {
  const SequenceDraft sequence = fixtures::ReadSequence("everything_of_ours.otio");
  const auto flagged = fixtures::Clip(sequence, 0, 2).proxy;
  ASSERT_TRUE(flagged);
  EXPECT_EQ(flagged->address, "p.mov");
  EXPECT_FALSE(flagged->isOffline);
  const auto named = fixtures::Clip(sequence, 0, 3).proxy;
  ASSERT_TRUE(named);
  EXPECT_EQ(named->address, "named.mov");
  EXPECT_TRUE(named->isOffline);
  EXPECT_FALSE(fixtures::Clip(sequence, 0, 4).proxy);
}

}  // namespace
}  // namespace standalone
