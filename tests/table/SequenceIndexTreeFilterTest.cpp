#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

#include "host/qelcore/Exceptions.h"
#include "support/Fakes.h"
#include "table/RefreshFixture.h"
#include "table/ScheduleWatch.h"

namespace Vantrel {
namespace {

using MZ::SequenceIndex::Options;
using qelcore::UTF8String;

constexpr std::uint32_t kVideoFilter = 0;
constexpr std::uint32_t kAudioFilter = 1;
constexpr std::uint32_t kTransitionsFilter = 7;
constexpr std::uint32_t kTracksFilter = 10;
constexpr std::uint32_t kNoFilter = 13;

Options Selecting(std::initializer_list<std::uint32_t> ids) {
  Options options;
  for (const std::uint32_t id : ids) options.filterToggles[id] = true;
  return options;
}

/// "Intro", a gap of three frames, "Interview"; "Music" from frame 5.
class TableFilters : public RefreshFixture {
 protected:
  TableFilters() {
    auto draft = drafts::MakeSequence("Cut");
    auto& video = drafts::AddTrack(draft);
    drafts::AddClip(video, "Intro", 0, 10);
    drafts::AddClip(video, "Interview", 13, 20);
    auto& audio = drafts::AddTrack(draft, standalone::TrackKind::kAudio);
    drafts::AddGap(audio, 0, 5);
    drafts::AddClip(audio, "Music", 5, 15);
    ShowSequence(std::move(draft));
  }

  void Apply(const Options& options) {
    tree->SetOptions(options);
    host.Settle();
  }
  void Search(std::string_view text) {
    tree->SetSearchText(UTF8String(text));
    host.Settle();
  }
  Names GetFullNames() const { return GetNames(tree->GetFullList()); }
};

// Options

TEST_F(TableFilters, ASelectedFilterThinsTheTableButNotTheFullList) {
  Apply(Selecting({kVideoFilter}));
  EXPECT_EQ(GetShownNames(), (Names{"Intro", "Interview"}));
  EXPECT_EQ(tree->CountRows(), 2U);
  EXPECT_EQ(GetFullNames(), (Names{"Intro", "Music", "Interview"}));
}

TEST_F(TableFilters, TheNumbersOfAFilteredTableHaveHoles) {
  Apply(Selecting({kVideoFilter}));
  EXPECT_EQ(tree->GetFilteredList()[0].index, 0U);
  EXPECT_EQ(tree->GetFilteredList()[1].index, 2U);
}

TEST_F(TableFilters, DeselectingEverythingBringsEveryRowBack) {
  Apply(Selecting({kTransitionsFilter}));
  EXPECT_EQ(tree->CountRows(), 0U);
  Apply({});
  EXPECT_EQ(tree->CountRows(), 3U);
}

TEST_F(TableFilters, TheOptionsAreCopied) {
  Options options = Selecting({kVideoFilter});
  tree->SetOptions(options);
  options = Selecting({kAudioFilter});
  host.Settle();
  EXPECT_EQ(GetShownNames(), (Names{"Intro", "Interview"}));
}

TEST_F(TableFilters, OptionsAreTakenAndScheduledInOneHoldOfTheMutex) {
  const hostcalls::Recording recording;
  tree->SetOptions(Selecting({kVideoFilter}));
  EXPECT_EQ(recording.GetCalls({"Lock", "Schedule", "Unlock"}),
            (Calls{"Lock(null, 60000)", "Lock(null, 60000)", "Schedule()", "Unlock()", "Unlock()"}));
}

TEST_F(TableFilters, AFilterThatDoesNotExistIsRaisedBeforeAnyLockAndChangesNothing) {
  Options options = Selecting({kVideoFilter});
  options.isKeepingGaps = true;
  Apply(options);
  ASSERT_EQ(GetShownNames(), (Names{"Intro", "Gap", "Gap", "Interview"}));
  Options unknown = Selecting({kAudioFilter, kNoFilter});
  unknown.shortGapThreshold = -1;
  {
    const hostcalls::Recording recording;
    try {
      tree->SetOptions(unknown);
      ADD_FAILURE();
    } catch (const std::out_of_range& failure) {
      EXPECT_STREQ(failure.what(), "invalid unordered_map<K, T> key");
    }
    EXPECT_EQ(recording.GetCalls({"Lock", "Schedule"}), Calls());
  }
  EXPECT_EQ(host.GetPool().CountWaiting(), 0U);
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetShownNames(), (Names{"Intro", "Gap", "Gap", "Interview"}));
}

TEST_F(TableFilters, ShortGapsAreMarkedBeforeTheFiltersApply) {
  auto draft = drafts::MakeSequence();
  auto& video = drafts::AddTrack(draft);
  drafts::AddClip(video, "kept", 0, 10);
  drafts::AddClip(video, "dropped", 13, 20).isDisabled = true;
  drafts::AddClip(video, "last", 23, 30).labelColor = {1, 1, 1, 255};
  ShowSequence(std::move(draft));
  Options options;
  options.labelColors = {{1, 1, 1, 255}};
  Apply(options);
  ASSERT_EQ(GetShownNames(), Names{"last"});
  EXPECT_TRUE(tree->GetFilteredList()[0].startFlagged) << "by the gap to a row that is not shown";
}

TEST_F(TableFilters, KeptGapsStayWhateverTheFiltersSay) {
  Options options = Selecting({kTransitionsFilter});
  options.isKeepingGaps = true;
  Apply(options);
  EXPECT_EQ(GetShownNames(), (Names{"Gap", "Gap"}));
  EXPECT_EQ(GetFullNames(), (Names{"Intro", "Gap", "Music", "Gap", "Interview"}));
}

// Search

TEST_F(TableFilters, ASearchThinsTheTableButNotTheFullList) {
  Search("int");
  EXPECT_EQ(GetShownNames(), (Names{"Intro", "Interview"}));
  EXPECT_EQ(GetFullNames(), (Names{"Intro", "Music", "Interview"}));
}

TEST_F(TableFilters, ASearchWithoutHitEmptiesTheTableAndKeepsTheFullList) {
  Search("nowhere");
  EXPECT_TRUE(tree->GetFilteredList().empty());
  EXPECT_EQ(tree->CountRows(), 0U);
  EXPECT_EQ(GetFullNames(), (Names{"Intro", "Music", "Interview"}));
}

TEST_F(TableFilters, AnEmptySearchTextLetsEveryRowThrough) {
  Search("nowhere");
  Search("");
  EXPECT_EQ(tree->CountRows(), 3U);
}

TEST_F(TableFilters, ASearchAppliesBesideTheFilters) {
  Search("i");
  ASSERT_EQ(GetShownNames(), (Names{"Intro", "Music", "Interview"}));
  Options options = Selecting({kVideoFilter, kTransitionsFilter});
  options.matchMode = 1;
  Apply(options);
  EXPECT_EQ(GetShownNames(), (Names{"Intro", "Interview"})) << "the search text stays";
  Search("music");
  EXPECT_TRUE(GetShownNames().empty()) << "both must hold, even where one filter is enough";
}

TEST_F(TableFilters, AHopelessSearchStillShowsKeptGaps) {
  Apply(KeepingGaps());
  Search("nowhere");
  EXPECT_EQ(GetShownNames(), (Names{"Gap", "Gap"}));
  Apply({});
  EXPECT_TRUE(GetShownNames().empty());
}

TEST_F(TableFilters, ASearchForGapsFindsNoneThatAreDropped) {
  Search("gap");
  EXPECT_TRUE(GetShownNames().empty());
  EXPECT_EQ(tree->GetFullList().size(), 3U);
}

TEST_F(TableFilters, TheSearchTextIsTakenAndScheduledInOneHoldOfTheMutex) {
  const hostcalls::Recording recording;
  tree->SetSearchText(UTF8String("int"));
  EXPECT_EQ(recording.GetCalls({"Lock", "Schedule", "Unlock"}),
            (Calls{"Lock(null, 60000)", "Lock(null, 60000)", "Schedule()", "Unlock()", "Unlock()"}));
}

TEST_F(TableFilters, ASearchTextThatGetsNoLockChangesNothing) {
  {
    const hostcalls::Hook fault("Lock", [] { throw qelcore::config::lock_timeout_exception(""); });
    EXPECT_THROW(tree->SetSearchText(UTF8String("nowhere")), qelcore::config::lock_timeout_exception);
  }
  EXPECT_EQ(host.GetPool().CountWaiting(), 0U);
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(tree->CountRows(), 3U);
}

// A build that is under way

TEST_F(TableFilters, ABuildFiltersByTheTextAndOptionsOfTheMomentAfterItsVisit) {
  bool isFirst = true;
  const hostcalls::Hook hook("VisitSequence", [&] {
    if (!std::exchange(isFirst, false)) return;
    tree->SetOptions(Selecting({kVideoFilter}));
    tree->SetSearchText(UTF8String("view"));
  });
  tree->RefreshDataListsAndTreeViewAsync();
  ASSERT_TRUE(RunOneTask());
  {
    const hostcalls::Hook broken("VisitSequence", [] { throw std::runtime_error("later builds"); });
    host.Settle();
  }
  EXPECT_EQ(GetShownNames(), Names{"Interview"});
  host.TakeFailures();
}

TEST_F(TableFilters, GroupsTextAndTheSecondLookAtTheGapFlagAreReadTogether) {
  Apply(KeepingGaps());
  tree->RefreshDataListsAndTreeViewAsync();
  {
    int locks = 0;
    // The third lock of a build is that for filtering; what comes after it must not be seen.
    const hostcalls::Hook change("Lock", [&] {
      if (++locks != 4) return;
      tree->SetOptions(Selecting({kAudioFilter}));
      tree->SetSearchText(UTF8String("nowhere"));
    });
    ASSERT_TRUE(RunOneTask());
  }
  const hostcalls::Hook broken("VisitSequence", [] { throw std::runtime_error("later builds"); });
  host.Settle();
  EXPECT_EQ(GetShownNames(), (Names{"Intro", "Gap", "Music", "Gap", "Interview"}));
  host.TakeFailures();
}

TEST_F(TableFilters, ARowThatAFilterDropsIsNotSearched) {
  const qelcore::Ref picture(new fakes::TrackItem(tree->GetFullList()[0].trackItem));
  ScheduleWatch watch;
  watch.visit = [&picture](const BE::SequenceVisitor& visitor) { visitor(*picture); };
  tree->SetOptions(Selecting({kAudioFilter}));
  tree->SetSearchText(UTF8String("music"));
  {
    int locks = 0;
    // The third lock of a build is that for filtering; a search would miss the clip.
    const hostcalls::Hook loss("Lock", [&] {
      if (++locks == 3) picture->clip = qelcore::Ref<BE::IClip>();
    });
    ASSERT_TRUE(RunOneTask());
    ASSERT_GE(locks, 3);
  }
  picture->clip.reset();
  host.Settle();
  EXPECT_TRUE(host.TakeFailures().empty());
  EXPECT_EQ(GetShownNames(), Names{"Music"});
}

TEST_F(TableFilters, AFilterThatMissesAnInterfaceEndsTheBuild) {
  Apply(Selecting({kTracksFilter, kAudioFilter}));
  const auto shown = GetShownNames();
  // Sound, because the track of every picture is already asked when short gaps are marked.
  const qelcore::Ref item(new fakes::TrackItem(tree->GetFullList()[1].trackItem));
  item->track = qelcore::Ref<qelcore::IUnknown>();
  ScheduleWatch watch;
  watch.visit = [&item](const BE::SequenceVisitor& visitor) { visitor(*item); };
  Options options = Selecting({kTracksFilter});
  options.isKeepingGaps = true;
  Apply(options);
  EXPECT_EQ(GetShownNames(), shown);
  const auto failures = host.TakeFailures();
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_NE(failures.front().find("BE::ITrack"), std::string::npos);
}

}  // namespace
}  // namespace Vantrel
