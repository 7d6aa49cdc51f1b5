#include "standalone/probing/FillClip.h"

#include <gtest/gtest.h>

#include "support/Drafts.h"

namespace standalone {
namespace {

using qelmediatypes::FrameRate;

MediaFile PictureFile() {
  MediaFile file;
  file.reading.outcome = MediaOutcome::kRead;
  MediaFacts& facts = file.reading.facts;
  facts.codec = "H.264";
  facts.fourCC = 0x61766331;
  facts.width = 720;
  facts.height = 576;
  facts.pixelAspect = {64, 45};
  facts.pictureRate = {30000, 1001};
  facts.sampleRate = 44100;
  facts.hasPicture = true;
  facts.hasSound = true;
  return file;
}

MediaFile FailedFile(MediaOutcome outcome, const std::string& reason) {
  MediaFile file;
  file.reading.outcome = outcome;
  file.reading.reason = reason;
  return file;
}

/// A clip of which the timeline tells nothing but its media's address.
ClipDraft BareClip(TrackKind kind = TrackKind::kVideo) {
  SequenceDraft sequence = drafts::MakeSequence();
  ClipDraft clip = drafts::AddClip(drafts::AddTrack(sequence, kind), "A", 0, 10);
  clip.isFrameDurationAssumed = true;
  clip.media.isStillAssumed = true;
  return clip;
}

ClipDraft Filled(ClipDraft clip, const MediaFile& file, TrackKind kind = TrackKind::kVideo) {
  FillClip(clip, kind, file);
  return clip;
}

TEST(FillingAClip, APictureClipGetsWhatItsFileTells) {
  const ClipDraft clip = Filled(BareClip(), PictureFile());
  EXPECT_EQ(clip.media.codec, "H.264");
  EXPECT_EQ(clip.media.fourCC, 0x61766331u);
  EXPECT_EQ(clip.videoInfo, "720 x 576 (1.4222)");
  EXPECT_EQ(clip.frameDuration, FrameRate::FromRational(30000, 1001).GetFrameDuration());
  EXPECT_FALSE(clip.isFrameDurationAssumed);
  EXPECT_FALSE(clip.media.isOffline);
  EXPECT_FALSE(clip.media.isGrowing);
  EXPECT_FALSE(clip.media.isStill);
}

TEST(FillingAClip, SquarePixelsAreWrittenAsInTimelines) {
  MediaFile file = PictureFile();
  file.reading.facts.pixelAspect = {1, 1};
  EXPECT_EQ(Filled(BareClip(), file).videoInfo, "720 x 576 (1.0)");
}

TEST(FillingAClip, ASoundClipGetsItsSampleRateAlone) {
  const ClipDraft clip = Filled(BareClip(TrackKind::kAudio), PictureFile(), TrackKind::kAudio);
  EXPECT_EQ(clip.frameDuration, FrameRate::FromRational(44100, 1).GetFrameDuration());
  EXPECT_FALSE(clip.isFrameDurationAssumed);
  EXPECT_EQ(clip.media.codec, "");
  EXPECT_EQ(clip.media.fourCC, 0u);
  EXPECT_EQ(clip.videoInfo, "");
}

TEST(FillingAClip, WhatTheTimelineTellsStays) {
  ClipDraft told = BareClip();
  told.isFrameDurationAssumed = false;
  told.videoInfo = "1 x 1 (1.0)";
  told.media.codec = "Told";
  told.media.isStill = true;
  told.media.isStillAssumed = false;
  const ClipDraft clip = Filled(told, PictureFile());
  EXPECT_EQ(clip.frameDuration, told.frameDuration);
  EXPECT_EQ(clip.videoInfo, "1 x 1 (1.0)");
  EXPECT_EQ(clip.media.codec, "Told");
  EXPECT_EQ(clip.media.fourCC, 0u);
  EXPECT_TRUE(clip.media.isStill);
}

TEST(FillingAClip, ACodeThatTheTimelineTellsGetsNoOtherName) {
  ClipDraft told = BareClip();
  told.media.fourCC = 0x6D70346D;
  const ClipDraft clip = Filled(told, PictureFile());
  EXPECT_EQ(clip.media.codec, "");
  EXPECT_EQ(clip.media.fourCC, 0x6D70346Du);
}

TEST(FillingAClip, TheFileCorrectsWhetherItIsAStill) {
  MediaFile still = PictureFile();
  still.reading.facts.isStill = true;
  still.reading.facts.pictureRate = {};
  const ClipDraft clip = Filled(BareClip(), still);
  EXPECT_TRUE(clip.media.isStill);
  EXPECT_EQ(clip.frameDuration, BareClip().frameDuration);
  ClipDraft guessed = BareClip();
  guessed.media.isStill = true;
  EXPECT_FALSE(Filled(guessed, PictureFile()).media.isStill);
}

TEST(FillingAClip, SoundOnAPictureTrackHasNoPictureToTellOf) {
  MediaFile sound = PictureFile();
  sound.reading.facts = MediaFacts();
  sound.reading.facts.codec = "PCM";
  sound.reading.facts.sampleRate = 48000;
  sound.reading.facts.hasSound = true;
  const ClipDraft clip = Filled(BareClip(), sound);
  EXPECT_EQ(clip.media.codec, "");
  EXPECT_EQ(clip.videoInfo, "");
  EXPECT_TRUE(clip.isFrameDurationAssumed);
}

TEST(FillingAClip, PictureOnASoundTrackKeepsTheAssumedRate) {
  MediaFile silent = PictureFile();
  silent.reading.facts.sampleRate = 0;
  const ClipDraft clip = Filled(BareClip(TrackKind::kAudio), silent, TrackKind::kAudio);
  EXPECT_EQ(clip.frameDuration, BareClip(TrackKind::kAudio).frameDuration);
  EXPECT_TRUE(clip.isFrameDurationAssumed);
}

TEST(FillingAClip, AFileThatCannotBeReadIsOffline) {
  for (const MediaOutcome outcome :
       {MediaOutcome::kDamaged, MediaOutcome::kInaccessible, MediaOutcome::kTimeLimit}) {
    const ClipDraft clip = Filled(BareClip(), FailedFile(outcome, "it is empty"));
    EXPECT_TRUE(clip.media.isOffline);
    EXPECT_EQ(clip.media.offlineReason, "Media file can't be read: it is empty");
    EXPECT_EQ(clip.videoInfo, "");
  }
}

TEST(FillingAClip, AFileForOthersToReadAndOneThatIsNotThereStayAsTheyAre) {
  for (const MediaOutcome outcome :
       {MediaOutcome::kUnknownKind, MediaOutcome::kAbsent, MediaOutcome::kCancelled}) {
    EXPECT_FALSE(Filled(BareClip(), FailedFile(outcome, "whatever")).media.isOffline);
  }
}

TEST(FillingAClip, MediaThatTheTimelineCallsOnlineStaysSo) {
  ClipDraft told = BareClip();
  told.media.isOnlineStated = true;
  EXPECT_FALSE(Filled(told, FailedFile(MediaOutcome::kDamaged, "x")).media.isOffline);
}

TEST(FillingAClip, AGrowingFileIsMarkedAndNotOfflineForBeingIncomplete) {
  MediaFile file = FailedFile(MediaOutcome::kDamaged, "its content is damaged or incomplete");
  file.isGrowing = true;
  const ClipDraft clip = Filled(BareClip(), file);
  EXPECT_TRUE(clip.media.isGrowing);
  EXPECT_FALSE(clip.media.isOffline);
}

TEST(FillingAClip, AnotherStateThatTheTimelineTellsStays) {
  MediaFile file = PictureFile();
  file.isGrowing = true;
  ClipDraft told = BareClip();
  told.media.isPendingRelink = true;
  EXPECT_FALSE(Filled(told, file).media.isGrowing);
}

}  // namespace
}  // namespace standalone
