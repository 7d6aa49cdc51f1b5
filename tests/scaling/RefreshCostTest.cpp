#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "generator/LongDocument.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelui/MultiColumnTree.h"
#include "scaling/AllocationWatch.h"
#include "scaling/GrowthFixture.h"
#include "scaling/HostCallCounts.h"
#include "standalone/app/IndexSession.h"
#include "standalone/app/PanelSetUp.h"

/// What a search and the filters add to a refresh, which rebuilds all rows each time.
namespace {

using scaling::Allocations;
using scaling::Growth;
using scaling::HostCallCounts;
using standalone::IndexSession;

constexpr std::size_t kClips = 4000;
/// Beside the rows: what a refresh takes however many there are.
constexpr std::uint64_t kBasicCount = 300;
/// No clip has it.
constexpr ZSL::Color kNobodysColor{1, 2, 3, 255};

void Show(IndexSession& session, std::size_t clips) {
  standalone::SetUpPanel(session, scaling::ShowEverything());
  session.ShowDocument(generator::MakeDocument({.clips = clips}));
}

template <typename Action>
Allocations Measure(const Action& action) {
  const scaling::AllocationWatch watch;
  action();
  return watch.Take();
}

template <typename Action>
HostCallCounts CountCalls(const Action& action) {
  const HostCallCounts before = scaling::GetHostCallCounts();
  action();
  HostCallCounts counts = scaling::GetHostCallCounts();
  for (auto& [name, count] : counts) count -= before.at(name);
  return counts;
}

MZ::SequenceIndex::Options ChooseFilter(std::uint32_t id) {
  MZ::SequenceIndex::Options options;
  options.filterToggles.at(id) = true;
  return options;
}

class RefreshCost : public Growth {};

TEST_F(RefreshCost, TypingAWordAllocatesInProportionToTheRows) {
  ExpectInProportion(
      [](std::size_t clips) {
        IndexSession session;
        Show(session, clips);
        return Measure([&session] {
          const std::string word = "interview";
          for (std::size_t i = 1; i <= word.size(); ++i) session.Search(word.substr(0, i));
        });
      },
      kClips);
}

TEST_F(RefreshCost, EveryLetterAllocatesInProportionToTheRows) {
  ExpectInProportion(
      [](std::size_t clips) {
        IndexSession session;
        Show(session, clips);
        return Measure([&session] {
          for (char letter = 'a'; letter <= 'z'; ++letter) session.Search(std::string(1, letter));
        });
      },
      kClips / 4);
}

/// Neither the search nor a filter takes memory for a row that it looks at.
TEST_F(RefreshCost, ARowThatTheSearchKeepsOutTakesNoMemoryOfItsOwn) {
  IndexSession session;
  Show(session, kClips);
  MZ::SequenceIndex::Options nobodys;
  nobodys.labelColors = {kNobodysColor};
  session.ChooseRows(nobodys);
  ASSERT_EQ(session.GetTree().CountRows(), 0U);
  const Allocations filtered = Measure([&] { session.ChooseRows(nobodys); });
  session.ChooseRows({});
  for (const char* absent :
       {"zyxwvut", "щъыэюяё", "a needle that is much longer than any short text"}) {
    const Allocations searched = Measure([&] { session.Search(absent); });
    EXPECT_LE(searched.count, filtered.count + kBasicCount) << absent;
    EXPECT_EQ(session.GetTree().CountRows(), 0U);
  }
}

TEST_F(RefreshCost, TakesFewerAllocationsThanThereAreRows) {
  IndexSession session;
  Show(session, kClips);
  const Allocations whole = Measure([&] { session.ChooseRows(scaling::ShowEverything().rows); });
  EXPECT_LE(whole.count, session.GetTree().CountRows() + kBasicCount);
}

TEST_F(RefreshCost, NoFilterAllocatesMoreThanTheWholeTable) {
  IndexSession session;
  Show(session, kClips);
  session.ChooseRows({});
  const Allocations whole = Measure([&] { session.ChooseRows({}); });
  for (const auto& filter : MZ::SequenceIndex::kFilterEntries) {
    const Allocations filtered = Measure([&] { session.ChooseRows(ChooseFilter(filter.id)); });
    EXPECT_LE(filtered.count, whole.count + kBasicCount) << filter.labelKey;
  }
}

TEST_F(RefreshCost, SearchAndFiltersAskTheHostOnceForARowAtMost) {
  IndexSession session;
  Show(session, kClips);
  session.ChooseRows({});
  const HostCallCounts whole = CountCalls([&] { session.ChooseRows({}); });
  const auto expectFew = [&whole](const HostCallCounts& calls, const char* what) {
    for (const auto& [name, count] : calls) {
      EXPECT_LE(count, whole.at(name) + kClips) << name << ", " << what;
    }
  };
  for (const auto& filter : MZ::SequenceIndex::kFilterEntries) {
    expectFew(CountCalls([&] { session.ChooseRows(ChooseFilter(filter.id)); }), filter.labelKey);
  }
  session.ChooseRows({});
  expectFew(CountCalls([&] { session.Search("zyxwvut"); }), "search");
}

TEST_F(RefreshCost, FiltersAllocateInProportionToTheRows) {
  ExpectInProportion(
      [](std::size_t clips) {
        IndexSession session;
        Show(session, clips);
        return Measure([&session] {
          for (const auto& filter : MZ::SequenceIndex::kFilterEntries) {
            session.ChooseRows(ChooseFilter(filter.id));
          }
        });
      },
      kClips / 2);
}

}  // namespace
