#include "data/SearchPredicate.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <utility>

#include "data/CellText.h"
#include "host/qelcore/Exceptions.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"

namespace Vantrel {
namespace {

using qelcore::UTF8String;
using standalone::TrackKind;
using testing::ElementsAre;
using testing::IsEmpty;

bool Finds(std::string_view text, const TrackItemRowData& row) {
  return MakeSearchPredicate(UTF8String(text))(row);
}

/// A row of a picture clip that answers with nothing to a search but its rate, "25.00 fps", until a
/// test gives it more.
class SearchedRow : public testing::Test {
 protected:
  SearchedRow() { clip.frameDuration = drafts::Frame(1); }

  TrackItemRowData Row(TrackKind kind = TrackKind::kVideo) {
    auto sequence = drafts::MakeSequence();
    auto& track = drafts::AddTrack(sequence, kind);
    standalone::TrackItemDraft& item = track.items.emplace_back();
    item.start = drafts::Frame(0);
    item.end = drafts::Frame(10);
    item.clip = clip;
    return rows::Collect(host.Add(sequence)).at(0);
  }
  TrackItemRowData RowNamed(std::string_view name) {
    clip.name = name;
    return Row();
  }

  rows::Host host;
  standalone::ClipDraft clip;
};

TEST_F(SearchedRow, IsFoundByEachOfItsStoredTexts) {
  for (UTF8String TrackItemRowData::*const field :
       {&TrackItemRowData::name, &TrackItemRowData::codec, &TrackItemRowData::sourceClipName,
        &TrackItemRowData::proxyPath, &TrackItemRowData::effectsMissing, &TrackItemRowData::fontsUsed,
        &TrackItemRowData::fontsMissing, &TrackItemRowData::transitions, &TrackItemRowData::effects}) {
    auto row = Row();
    EXPECT_FALSE(Finds("needle", row));
    row.*field = UTF8String("hay needle hay");
    EXPECT_TRUE(Finds("needle", row));
  }
}

TEST_F(SearchedRow, IsFoundByEachTextThatIsAskedOfTheHost) {
  using Draft = standalone::ClipDraft;
  for (std::string Draft::*const field : {&Draft::comment, &Draft::description, &Draft::videoInfo}) {
    clip = {};
    EXPECT_FALSE(Finds("needle", Row()));
    clip.*field = "hay needle hay";
    EXPECT_TRUE(Finds("needle", Row()));
  }
}

TEST_F(SearchedRow, IsFoundByItsRateAsPictureOrSoundIsWritten) {
  EXPECT_TRUE(Finds("25.00 fps", Row()));
  EXPECT_FALSE(Finds("hz", Row()));
  clip.frameDuration = qelmediatypes::FrameRate::FromRational(48000, 1).GetFrameDuration();
  EXPECT_TRUE(Finds("48000 hz", Row(TrackKind::kAudio)));
  EXPECT_FALSE(Finds("fps", Row(TrackKind::kAudio)));
}

TEST_F(SearchedRow, IsFoundByItsOwnRateWhicheverRowsWereAskedBefore) {
  const auto slow = Row();
  clip.frameDuration = qelmediatypes::FrameRate::FromRational(50, 1).GetFrameDuration();
  const auto fast = Row();
  clip.frameDuration = qelmediatypes::FrameRate::FromRational(48000, 1).GetFrameDuration();
  const auto sound = Row(TrackKind::kAudio);
  const auto predicate = MakeSearchPredicate(UTF8String("50.00 fps"));
  for (int round = 0; round < 2; ++round) {
    EXPECT_FALSE(predicate(slow));
    EXPECT_TRUE(predicate(fast));
    EXPECT_FALSE(predicate(sound));
  }
}

TEST_F(SearchedRow, OfNeitherPictureNorSoundIsNotFoundByTheRateThatItsCellShows) {
  clip.frameDuration = qelmediatypes::FrameRate::FromRational(48000, 1).GetFrameDuration();
  auto row = Row(TrackKind::kAudio);
  row.mediaType = qelcore::utility::MakeGuid(1, 2);
  ASSERT_EQ(CellText(row, kColumnFrameRate), "48000 Hz");
  EXPECT_FALSE(Finds("48000", row));
  EXPECT_FALSE(Finds("hz", row));
}

TEST_F(SearchedRow, IsNotFoundByItsOtherColumns) {
  clip.tapeName = "tape";
  clip.media.address = "/folder/file.mov";
  clip.media.isOffline = true;
  clip.media.offlineReason = "reason";
  clip.multicam = {true, {"camera"}, 0};
  clip.labelName = "label";
  clip.proxy.emplace();
  auto row = Row();
  row.index = 776;
  ASSERT_EQ(row.proxyStatus, "Online");
  ASSERT_EQ(CellText(row, kColumnTapeName), "tape");
  ASSERT_EQ(CellText(row, kColumnFilePath), "/folder/file.mov");
  ASSERT_EQ(CellText(row, kColumnFileName), "file.mov");
  ASSERT_EQ(CellText(row, kColumnOfflineStatus), "reason");
  ASSERT_EQ(CellText(row, kColumnMulticamCamera), "camera");
  ASSERT_EQ(CellText(row, kColumnTrack), "V1");
  ASSERT_EQ(CellText(row, kColumnIndex), "777");
  ASSERT_EQ(CellText(row, kColumnUsageCountInSequence), "1");
  ASSERT_EQ(CellText(row, kColumnDuration), "00:00:00:10");
  for (const std::string_view text :
       {"online", "tape", "folder", "file.mov", "reason", "camera", "label", "v1", "777", "1", ":"}) {
    EXPECT_FALSE(Finds(text, row)) << text;
  }
}

TEST_F(SearchedRow, IsFoundByWhatStandsAnywhereInATextItsVeryEndIncluded) {
  const auto row = RowNamed("Interview");
  for (const std::string_view text : {"i", "inter", "erv", "view", "w", "interview"}) {
    EXPECT_TRUE(Finds(text, row)) << text;
  }
  for (const std::string_view text : {"iv", "view ", " inter", "vieww", "x"}) {
    EXPECT_FALSE(Finds(text, row)) << text;
  }
}

TEST_F(SearchedRow, IsFoundAfterABeginningThatLedNowhere) {
  EXPECT_TRUE(Finds("aab", RowNamed("aaaab")));
  EXPECT_TRUE(Finds("abac", RowNamed("ababac")));
  EXPECT_FALSE(Finds("abad", RowNamed("ababac")));
}

TEST_F(SearchedRow, IsNotFoundByATextLongerThanAllOfItsOwn) {
  EXPECT_FALSE(Finds("interview and more", RowNamed("Interview")));
  EXPECT_FALSE(Finds(std::string(10000, 'a'), RowNamed(std::string(2000, 'a'))));
}

TEST_F(SearchedRow, IsNotFoundAcrossTheBorderOfTwoTexts) {
  clip.comment = "two";
  EXPECT_FALSE(Finds("onetwo", RowNamed("one")));
}

TEST_F(SearchedRow, IsFoundInEitherCaseOfSingleByteLetters) {
  const auto row = RowNamed("MixedCase [@] 09");
  EXPECT_TRUE(Finds("mixedcase", row));
  EXPECT_TRUE(Finds("MIXEDcase", row)) << "a text that nobody lowered is lowered all the same";
  EXPECT_TRUE(Finds("[@] 09", row));
  EXPECT_FALSE(Finds("{`}", row)) << "what lies 32 above is no lower case unless it is a letter";
}

TEST_F(SearchedRow, IsFoundInTheSameCaseOnlyOfLongerCharacters) {
  const auto row = RowNamed("\u00c9COLE \u0416");
  EXPECT_TRUE(Finds("\u00c9cole", row));
  EXPECT_TRUE(Finds("\u0416", row));
  EXPECT_FALSE(Finds("\u00e9cole", row));
  EXPECT_FALSE(Finds("\u0436", row));
  EXPECT_FALSE(Finds("ecole", row));
}

TEST_F(SearchedRow, IsFoundByTheBytesOfACharacterWhichNeverChange) {
  const auto row = RowNamed("K\u00e9");
  EXPECT_TRUE(Finds("k\xC3", row));
  EXPECT_TRUE(Finds("\xA9", row));
  EXPECT_FALSE(Finds("\xE9", row));
  EXPECT_FALSE(Finds("\u212a\u00e9", row)) << "the Kelvin sign is no k";
}

TEST_F(SearchedRow, TreatsAZeroByteLikeAnyOther) {
  auto row = Row();
  row.name = UTF8String(std::string_view("a\0b", 3));
  EXPECT_TRUE(Finds(std::string_view("\0b", 2), row));
  EXPECT_FALSE(Finds(std::string_view("b\0", 2), row));
}

TEST_F(SearchedRow, IsFoundBySeparatorsOfItsListsAndPrefixesOfItsTransitions) {
  drafts::AddEffect(clip, "Blur");
  clip.tailTransition.emplace().displayName = "Wipe";
  EXPECT_TRUE(Finds("blur; ", Row()));
  EXPECT_TRUE(Finds("[out]: wipe;", Row()));
}

TEST_F(SearchedRow, IsSearchedForACopyOfTheText) {
  FilterPredicate predicate;
  {
    UTF8String text("inter");
    predicate = MakeSearchPredicate(text);
    text = UTF8String("other");
  }
  EXPECT_TRUE(predicate(RowNamed("Interview")));
}

// ---- What a row lacks

/// The type named by the failure of a search that would find the row by its name.
std::string Raised(const TrackItemRowData& row) {
  try {
    Finds("a", row);
    return "nothing";
  } catch (const qelcore::config::null_pointer_exception& failure) {
    return failure.GetObject();
  }
}

TEST_F(SearchedRow, WithoutTrackItemRaisesEvenWhereItsNameWouldBeFound) {
  auto row = RowNamed("a");
  ASSERT_EQ(Raised(row), "nothing");
  row.trackItem.Reset();
  EXPECT_EQ(Raised(row), "BE::ITrackItem");
}

TEST_F(SearchedRow, OfAClipItemWithoutClipRaisesEvenWhereItsNameWouldBeFound) {
  auto row = RowNamed("a");
  const qelcore::Ref item(new fakes::TrackItem(row.trackItem));
  row.trackItem = item;
  ASSERT_EQ(Raised(row), "nothing");
  item->clip = qelcore::Ref<BE::IClip>();
  EXPECT_EQ(Raised(row), "BE::IClip");
}

TEST_F(SearchedRow, WithoutMasterClipHasNeitherCommentNorDescriptionAndRaisesNothing) {
  clip.comment = "comment";
  clip.description = "description";
  auto row = RowNamed("a");
  ASSERT_TRUE(Finds("comment", row));
  const qelcore::Ref fakeClip(new fakes::Clip(row.trackItem->GetClip()));
  fakeClip->hasMasterClip = false;
  const qelcore::Ref item(new fakes::TrackItem(row.trackItem));
  item->clip = qelcore::Ref<BE::IClip>(fakeClip);
  row.trackItem = item;
  EXPECT_TRUE(Finds("a", row));
  EXPECT_FALSE(Finds("comment", row));
  EXPECT_FALSE(Finds("description", row));
}

// ---- In a group

TEST(SearchedRows, GapsAreNotSearched) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "gaping", 0, 10);
  drafts::AddClip(track, "other", 13, 20);
  const auto list = rows::Collect(host.Add(draft));
  const auto search = [&list](std::string_view text, bool isKeepingGaps) {
    const FilterGroup group{{MakeSearchPredicate(UTF8String(text))}, kFilterGroupKind_Any};
    return rows::Names(*FilterTrackItemDataList(list, {group}, isKeepingGaps));
  };
  EXPECT_THAT(search("gap", false), ElementsAre("gaping")) << "though \"Gap\" is a gap's name";
  EXPECT_THAT(search("gap", true), ElementsAre("gaping", "Gap"));
  EXPECT_THAT(search("nowhere", true), ElementsAre("Gap"));
  EXPECT_THAT(search("nowhere", false), IsEmpty());
}

}  // namespace
}  // namespace Vantrel
