#include "data/CellText.h"

#include <gmock/gmock.h>

#include <limits>

#include "data/MediaFileTexts.h"
#include "data/MediaTypes.h"
#include "data/OfflineStatus.h"
#include "data/TimeText.h"
#include "host/BE/Utilities.h"
#include "host/MZ/Clips.h"
#include "host/ZSL/Timecode.h"
#include "host/qelcore/Exceptions.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"
#include "support/HostCalls.h"

namespace Vantrel {
namespace {

using qelmediatypes::TickTime;
using standalone::TrackKind;
using testing::ElementsAre;

constexpr ColumnID kClipColumns[] = {
    kColumnComment,  kColumnDescription,          kColumnFileName,
    kColumnFilePath, kColumnOfflineStatus,        kColumnMulticamCamera,
    kColumnTapeName, kColumnUsageCountInSequence, kColumnVideoInfo};

/// A clip over frames 25 to 75, after a gap, in a sequence of its own.
class CellTexts : public testing::Test {
 protected:
  CellTexts() {
    clip.name = "A";
    clip.sourceClipName = "Source";
    clip.media.address = "/media/A.mov";
    clip.frameDuration = drafts::Frame(1);
  }

  TrackItemDataList Rows(TrackKind kind = TrackKind::kVideo) {
    auto sequence = draft;
    auto& track = drafts::AddTrack(sequence, kind);
    drafts::AddGap(track, 0, 25);
    standalone::TrackItemDraft& item = track.items.emplace_back();
    item.start = drafts::Frame(25);
    item.end = drafts::Frame(75);
    item.clip = clip;
    return rows::Collect(host.Add(sequence));
  }
  TrackItemRowData Gap() { return Rows().at(0); }
  TrackItemRowData Row(TrackKind kind = TrackKind::kVideo) { return Rows(kind).at(1); }
  qelcore::UTF8String Text(ColumnID column) { return CellText(Row(), column); }

  rows::Host host;
  standalone::SequenceDraft draft = drafts::MakeSequence();
  standalone::ClipDraft clip;
};

TEST_F(CellTexts, IdentifiersThatAreNoColumnHaveNoText) {
  for (const ColumnID column : {0U, 1U, 99999U, 100026U, 0xFFFFFFFFU}) {
    EXPECT_EQ(Text(column), "") << column;
    EXPECT_EQ(CellText(TrackItemRowData(), column), "") << column;
  }
}

TEST_F(CellTexts, TheIndexIsShownFromOne) {
  auto row = Row();
  EXPECT_EQ(CellText(row, kColumnIndex), "1");
  row.index = 1234567;
  EXPECT_EQ(CellText(row, kColumnIndex), "1234568");
  row.index = std::numeric_limits<std::uint64_t>::max() - 1;
  EXPECT_EQ(CellText(row, kColumnIndex), "18446744073709551615");
}

TEST_F(CellTexts, StoredTextsAreShownAsTheyAre) {
  TrackItemRowData row;
  row.codec = qelcore::UTF8String("codec");
  row.fontsUsed = qelcore::UTF8String("used; ");
  row.fontsMissing = qelcore::UTF8String("fonts missing; ");
  row.effectsMissing = qelcore::UTF8String("effects missing; ");
  row.name = qelcore::UTF8String("name");
  row.effects = qelcore::UTF8String("Blur; Crop; ");
  row.transitions = qelcore::UTF8String("[IN]: Dip; ");
  row.proxyPath = qelcore::UTF8String("path");
  row.proxyStatus = qelcore::UTF8String("status");
  row.sourceClipName = qelcore::UTF8String("source");
  EXPECT_EQ(CellText(row, kColumnCodec), "codec");
  EXPECT_EQ(CellText(row, kColumnFontsUsed), "used; ");
  EXPECT_EQ(CellText(row, kColumnFontsMissing), "fonts missing; ");
  EXPECT_EQ(CellText(row, kColumnEffectsMissing), "effects missing; ");
  EXPECT_EQ(CellText(row, kColumnClipName), "name");
  EXPECT_EQ(CellText(row, kColumnEffects), "Blur; Crop; ");
  EXPECT_EQ(CellText(row, kColumnTransitions), "[IN]: Dip; ");
  EXPECT_EQ(CellText(row, kColumnProxyMediaPath), "path");
  EXPECT_EQ(CellText(row, kColumnProxyStatus), "status");
  EXPECT_EQ(CellText(row, kColumnSourceClipName), "source");
}

TEST_F(CellTexts, AStoredTextIsSharedNotCopied) {
  const auto row = Row();
  EXPECT_TRUE(CellText(row, kColumnClipName).SharesBufferWith(row.name));
}

TEST_F(CellTexts, TheLabelColourHasNoText) {
  EXPECT_EQ(Text(kColumnLabelColor), "");
  EXPECT_EQ(CellText(TrackItemRowData(), kColumnLabelColor), "");
}

TEST_F(CellTexts, WhatPeopleNotedComesFromTheProjectItem) {
  clip.comment = "Good, \"take\"\n2";
  clip.description = "Establishing";
  clip.tapeName = "A001";
  const auto row = Row();
  EXPECT_EQ(CellText(row, kColumnComment), "Good, \"take\"\n2");
  EXPECT_EQ(CellText(row, kColumnDescription), "Establishing");
  EXPECT_EQ(CellText(row, kColumnTapeName), "A001");
}

TEST_F(CellTexts, FileNameAndPathAreThoseOfTheMedia) {
  clip.media.address = "/media/day 1/\xC3\x84 take.mov";
  const auto row = Row();
  EXPECT_EQ(CellText(row, kColumnFileName), "\xC3\x84 take.mov");
  EXPECT_EQ(CellText(row, kColumnFilePath), "/media/day 1/\xC3\x84 take.mov");
}

TEST_F(CellTexts, ABackslashSplitsOnlyAddressesThatBeginWithADriveLetter) {
  clip.media.address = "D:\\media\\A.mov";
  EXPECT_EQ(Text(kColumnFileName), "A.mov");
  EXPECT_EQ(Text(kColumnFilePath), "D:\\media\\A.mov");
  clip.media.address = "/media/a\\b.mov";
  EXPECT_EQ(Text(kColumnFileName), "a\\b.mov");
}

TEST_F(CellTexts, BytesOfAPathThatAreNoTextAreShownReplaced) {
  clip.media.address = "/media/\xFF.mov";
  EXPECT_EQ(Text(kColumnFilePath), "/media/\xEF\xBF\xBD.mov");
}

TEST_F(CellTexts, MediaWithoutFileHasNeitherNameNorPath) {
  clip.media = standalone::MediaDraft();
  clip.media.isSynthetic = true;
  const auto row = Row();
  EXPECT_EQ(CellText(row, kColumnFileName), "");
  EXPECT_EQ(CellText(row, kColumnFilePath), "");
}

TEST_F(CellTexts, AClipWithoutMasterClipHasNoneOfItsTextsAndRaisesNothing) {
  auto row = Row();
  const qelcore::Ref fakeClip(new fakes::Clip(row.trackItem->GetClip()));
  fakeClip->hasMasterClip = false;
  const qelcore::Ref item(new fakes::TrackItem(row.trackItem));
  item->clip = qelcore::Ref<BE::IClip>(fakeClip);
  row.trackItem = item;
  ASSERT_FALSE(BE::TrackItemUtils::GetMasterClip(row.trackItem));
  for (const ColumnID column : kClipColumns) EXPECT_EQ(CellText(row, column), "") << column;
}

TEST_F(CellTexts, AMasterClipWithoutMediaHasNoFileAndNoOfflineStatus) {
  EXPECT_EQ(FileNameText({}), "");
  EXPECT_EQ(FilePathText({}), "");
  EXPECT_EQ(OfflineStatusText({}), "");
}

TEST_F(CellTexts, ATitleWithoutNotesAndFileHasEmptyTexts) {
  clip = standalone::ClipDraft();
  clip.media.isSynthetic = true;
  const auto row = Row();
  for (const ColumnID column :
       {kColumnComment, kColumnDescription, kColumnFileName, kColumnFilePath, kColumnOfflineStatus,
        kColumnMulticamCamera, kColumnTapeName, kColumnVideoInfo, kColumnSourceClipName}) {
    EXPECT_EQ(CellText(row, column), "") << column;
  }
  EXPECT_EQ(CellText(row, kColumnUsageCountInSequence), "1");
}

TEST_F(CellTexts, VideoInfoIsTheHosts) {
  clip.videoInfo = "1920 x 1080 (1.0)";
  EXPECT_EQ(Text(kColumnVideoInfo), "1920 x 1080 (1.0)");
}

TEST_F(CellTexts, TheFrameRateOfPictureIsWrittenInFramesOfSoundInSamples) {
  auto row = Row();
  EXPECT_EQ(CellText(row, kColumnFrameRate),
            MZ::SettingsDescriptions::CreateVideoFrameRateString(drafts::Frame(1), 0));
  EXPECT_EQ(CellText(row, kColumnFrameRate), "25.00 fps");
  row.frameRate = TickTime(TickTime::kTicksPerSecond / 48000);
  for (const auto& mediaType : {BE::kMediaType_Audio, qelcore::utility::MakeGuid(1, 2)}) {
    row.mediaType = mediaType;
    EXPECT_EQ(CellText(row, kColumnFrameRate), "48000 Hz");
  }
}

TEST_F(CellTexts, TheFrameRateOfPictureIsAskedForInTheFirstStyle) {
  const auto row = Row();
  const hostcalls::Recording recording;
  CellText(row, kColumnFrameRate);
  EXPECT_THAT(recording.GetCalls(), ElementsAre("CreateVideoFrameRateString(0)"));
}

TEST_F(CellTexts, AnUnknownFrameRateHasNoText) {
  auto row = Row();
  row.frameRate = qelmediatypes::kUnknownFrameDuration;
  EXPECT_EQ(CellText(row, kColumnFrameRate), "");
  row.mediaType = BE::kMediaType_Audio;
  EXPECT_EQ(CellText(row, kColumnFrameRate), "");
}

TEST_F(CellTexts, TheTrackIsNamedByItsKindAndCountedFromOne) {
  auto row = Row();
  EXPECT_EQ(CellText(row, kColumnTrack), "V1");
  row.mediaType = BE::kMediaType_Audio;
  row.trackIndex = 2;
  EXPECT_EQ(CellText(row, kColumnTrack), "A3");
  row.mediaType = qelcore::utility::MakeGuid(1, 2);
  EXPECT_EQ(CellText(row, kColumnTrack), "A3");
}

TEST_F(CellTexts, TheUsageCountIsThatOfTheMediaInTheSequence) {
  EXPECT_EQ(Text(kColumnUsageCountInSequence), "1");
  drafts::AddClip(drafts::AddTrack(draft, TrackKind::kAudio), "A", 0, 10);
  EXPECT_EQ(Text(kColumnUsageCountInSequence), "2");
}

// ---- Times

TEST_F(CellTexts, TimesAreWrittenAsTimecode) {
  const auto row = Row();
  EXPECT_EQ(CellText(row, kColumnStartTime), "00:00:01:00");
  EXPECT_EQ(CellText(row, kColumnEndTime), "00:00:03:00");
  EXPECT_EQ(CellText(row, kColumnDuration), "00:00:02:00");
}

TEST_F(CellTexts, TimesAreWrittenInTheFormatForDisplay) {
  const auto row = Row();
  for (const ColumnID column : {kColumnStartTime, kColumnEndTime, kColumnDuration}) {
    const hostcalls::Recording recording;
    CellText(row, column);
    EXPECT_THAT(recording.GetCalls(), ElementsAre("GetVideoTimeDisplayFormat(1)")) << column;
  }
}

TEST_F(CellTexts, PositionsCountFromTheZeroPointDurationsDoNot) {
  draft.zeroPoint = drafts::Frame(25 * 3600);
  const auto row = Row();
  EXPECT_EQ(CellText(row, kColumnStartTime), "01:00:01:00");
  EXPECT_EQ(CellText(row, kColumnEndTime), "01:00:03:00");
  EXPECT_EQ(CellText(row, kColumnDuration), "00:00:02:00");
}

TEST_F(CellTexts, ANegativeZeroPointGivesOrdinaryTimes) {
  draft.zeroPoint = drafts::Frame(-26);
  const auto row = Row();
  EXPECT_EQ(CellText(row, kColumnStartTime), "-00:00:00:01");
  EXPECT_EQ(CellText(row, kColumnEndTime), "00:00:01:24");
}

TEST_F(CellTexts, AGivenZeroPointTakesThePlaceOfTheSequences) {
  draft.zeroPoint = drafts::Frame(1);
  const auto row = Row();
  const TickTime hour = drafts::Frame(25 * 3600);
  EXPECT_EQ(CellText(row, kColumnStartTime, hour), "01:00:01:00");
  EXPECT_EQ(CellText(row, kColumnEndTime, hour), "01:00:03:00");
  EXPECT_EQ(CellText(row, kColumnDuration, hour), "00:00:02:00");
}

TEST_F(CellTexts, AnItemThatEndsBeforeItStartsHasANegativeDuration) {
  auto row = Row();
  std::swap(row.start, row.end);
  EXPECT_EQ(CellText(row, kColumnDuration), "-00:00:02:00");
}

TEST_F(CellTexts, TimesAtTheLimitsDoNotOverflow) {
  draft.zeroPoint = drafts::Frame(25);
  auto row = Row();
  row.end = TickTime::Highest();
  row.start = TickTime::Lowest();
  EXPECT_EQ(CellText(row, kColumnEndTime), TimeText(row.sequence, TickTime::Highest()));
  EXPECT_EQ(CellText(row, kColumnDuration), TimeText(row.sequence, TickTime::Highest()));
}

TEST_F(CellTexts, PictureAndSoundOfASequenceAreWrittenAlike) {
  const auto row = Row(TrackKind::kAudio);
  ASSERT_FALSE(IsVideoRow(row));
  EXPECT_EQ(CellText(row, kColumnStartTime), "00:00:01:00");
  EXPECT_EQ(CellText(row, kColumnDuration), "00:00:02:00");
}

TEST_F(CellTexts, ADropFrameSequenceIsWrittenInDropFrame) {
  draft.videoRate = qelmediatypes::FrameRate::FromRational(30000, 1001);
  draft.isDropFrame = true;
  const auto row = Row();
  const auto minute = TickTime(draft.videoRate.GetFrameDuration().GetTicks() * 1800);
  EXPECT_EQ(TimeText(row.sequence, minute), "00:01:00;02");
}

TEST_F(CellTexts, AGapIsWrittenLikeAClip) {
  draft.zeroPoint = drafts::Frame(25 * 3600);
  const auto gap = Gap();
  EXPECT_EQ(CellText(gap, kColumnClipName), "Gap");
  EXPECT_EQ(CellText(gap, kColumnStartTime), "01:00:00:00");
  EXPECT_EQ(CellText(gap, kColumnEndTime), "01:00:01:00");
  EXPECT_EQ(CellText(gap, kColumnDuration), "00:00:01:00");
  EXPECT_EQ(CellText(gap, kColumnTrack), "V1");
  EXPECT_EQ(CellText(gap, kColumnFrameRate),
            MZ::SettingsDescriptions::CreateVideoFrameRateString(drafts::Frame(1), 0));
}

TEST_F(CellTexts, WithoutSequenceTimesCountInUnknownFrames) {
  for (const std::int64_t ticks : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1} << 62}) {
    const auto wanted =
        ZSL::Timecode(TickTime(ticks), TickTime(9223372036854775807), qelmediatypes::TimeDisplay())
            .GetStringUTF8();
    EXPECT_EQ(TimeText({}, TickTime(ticks)), wanted);
  }
}

TEST_F(CellTexts, ARowWithoutSequenceStillHasTimes) {
  auto row = Row();
  row.sequence.Reset();
  EXPECT_EQ(CellText(row, kColumnStartTime), TimeText({}, row.start));
  EXPECT_EQ(CellText(row, kColumnUsageCountInSequence), "");
}

// ---- Clip-only columns

TEST_F(CellTexts, AGapHasNoTextInTheColumnsOfClips) {
  const auto gap = Gap();
  for (const ColumnID column : kClipColumns) EXPECT_EQ(CellText(gap, column), "") << column;
}

TEST_F(CellTexts, TheTypeOfTheItemMakesAGapWhateverElseTheHostKnowsOfIt) {
  clip.comment = clip.description = clip.tapeName = clip.videoInfo = "known";
  clip.media.isGrowing = true;
  clip.multicam.isMulticam = true;
  clip.multicam.cameraNames = {"Wide"};
  auto row = Row();
  const qelcore::Ref item(new fakes::TrackItem(row.trackItem));
  row.trackItem = item;
  for (const ColumnID column : kClipColumns) EXPECT_NE(CellText(row, column), "") << column;
  item->type = BE::kTrackItemType_Empty;
  for (const ColumnID column : kClipColumns) EXPECT_EQ(CellText(row, column), "") << column;
}

TEST_F(CellTexts, ARowWithoutTrackItemRaisesItsTypeNameInTheColumnsOfClips) {
  for (const ColumnID column : kClipColumns) {
    try {
      CellText(TrackItemRowData(), column);
      ADD_FAILURE() << column;
    } catch (const qelcore::config::null_pointer_exception& failure) {
      EXPECT_EQ(failure.GetObject(), "BE::ITrackItem") << column;
    }
  }
}

TEST_F(CellTexts, OnlineMediaHasNoOfflineStatus) {
  EXPECT_EQ(Text(kColumnOfflineStatus), "");
}

TEST_F(CellTexts, OfflineMediaSaysWhy) {
  clip.media.isOffline = true;
  clip.media.offlineReason = "The card was erased";
  clip.media.isPendingConnection = true;
  clip.media.isGrowing = true;
  clip.media.isPendingRelink = true;
  EXPECT_EQ(Text(kColumnOfflineStatus), "The card was erased");
}

TEST_F(CellTexts, OfflineMediaWithoutReasonIsDescribedByTheHost) {
  clip.media.isOffline = true;
  EXPECT_EQ(Text(kColumnOfflineStatus), "Media file not found");
}

TEST_F(CellTexts, TheStatesOfOnlineMediaAreTestedInTheirOrder) {
  clip.media.isPendingConnection = true;
  clip.media.isGrowing = true;
  clip.media.isPendingRelink = true;
  EXPECT_EQ(Text(kColumnOfflineStatus), "Pending Connection");
  clip.media.isPendingConnection = false;
  EXPECT_EQ(Text(kColumnOfflineStatus), "Media Growing");
  clip.media.isGrowing = false;
  EXPECT_EQ(Text(kColumnOfflineStatus), "Pending Relink");
}

TEST_F(CellTexts, AMultiCameraClipNamesTheCameraItShows) {
  clip.multicam.isMulticam = true;
  clip.multicam.cameraNames = {"Wide", "Close"};
  clip.multicam.selectedCamera = 1;
  EXPECT_EQ(Text(kColumnMulticamCamera), "Close");
}

TEST_F(CellTexts, AClipWithOneCameraNamesNone) {
  clip.multicam.cameraNames = {"Wide"};
  EXPECT_EQ(Text(kColumnMulticamCamera), "");
}

TEST_F(CellTexts, AMultiCameraClipWithoutNamesHasNoText) {
  clip.multicam.isMulticam = true;
  EXPECT_EQ(Text(kColumnMulticamCamera), "");
}

}  // namespace
}  // namespace Vantrel
