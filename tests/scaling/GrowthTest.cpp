#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "generator/LongDocument.h"
#include "generator/TimelineFile.h"
#include "host/qelui/Drawbot.h"
#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "scaling/AllocationWatch.h"
#include "scaling/GrowthFixture.h"
#include "scaling/HostCallCounts.h"
#include "standalone/app/IndexSession.h"
#include "standalone/app/PanelSetUp.h"
#include "standalone/app/PanelTable.h"
#include "standalone/app/TextTable.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "support/Drafts.h"
#include "support/Process.h"

/// Eight times the clips take no more than eight times the memory and the calls, at every stage from
/// the file to the printed table.
namespace {

using scaling::Allocations;
using scaling::GetLimit;
using scaling::Growth;
using scaling::kTimesMore;
using scaling::ShowEverything;
using standalone::DocumentDraft;
using standalone::IndexSession;

TEST_F(Growth, ReadingAFileAllocatesInProportionToItsClips) {
  ExpectInProportion([this](std::size_t clips) {
    const auto file = folder / "cut.otio";
    generator::WriteTimeline(file, {.clips = clips});
    const scaling::AllocationWatch watch;
    standalone::ReadTimelineFile(file);
    return watch.Take();
  });
}

TEST_F(Growth, AddingADocumentAllocatesInProportionToItsClips) {
  ExpectInProportion([this](std::size_t clips) {
    DocumentDraft document = generator::MakeDocument({.clips = clips});
    const standalone::Runtime runtime;
    standalone::ProjectModel project;
    const scaling::AllocationWatch watch;
    project.AddDocument(std::move(document));
    return watch.Take();
  });
}

/// The draft's own memory counts too: it goes once it was read, and what it took is there for the
/// builds, of which two may overlap or not.
TEST_F(Growth, ShowingASequenceAllocatesInProportionToItsRows) {
  ExpectInProportion([this](std::size_t clips) {
    const DocumentDraft document = generator::MakeDocument({.clips = clips});
    IndexSession session;
    standalone::SetUpPanel(session, ShowEverything());
    const scaling::AllocationWatch watch;
    session.ShowDocument(DocumentDraft(document));
    const Allocations taken = watch.Take();
    EXPECT_GT(session.GetTree().CountRows(), clips);
    return taken;
  });
}

TEST_F(Growth, ExportingATableAllocatesInProportionToItsRows) {
  ExpectInProportion([this](std::size_t clips) {
    IndexSession session;
    standalone::SetUpPanel(session, ShowEverything());
    session.ShowDocument(generator::MakeDocument({.clips = clips}));
    const auto output = folder / "cut.csv";
    const scaling::AllocationWatch watch;
    session.Export(output);
    const Allocations taken = watch.Take();
    EXPECT_GT(std::filesystem::file_size(output), clips);
    return taken;
  });
}

TEST_F(Growth, PrintingATableAllocatesInProportionToItsRows) {
  // Each of its cells is drawn twice, so it is shorter.
  constexpr std::size_t kClips = 2500;
  const auto measure = [](std::size_t clips) {
    IndexSession session;
    standalone::SetUpPanel(session, ShowEverything());
    session.ShowDocument(generator::MakeDocument({.clips = clips}));
    std::size_t lines = 0;
    const scaling::AllocationWatch watch;
    standalone::PanelTable source(session.GetTree());
    standalone::TextTable table(source, std::nullopt, standalone::ColorDepth::kNone);
    table.Print([&lines](std::string_view) { ++lines; });
    const Allocations taken = watch.Take();
    EXPECT_GT(lines, session.GetTree().CountRows());
    return taken;
  };
  ExpectInProportion(measure, kClips);
}

/// The calls of each watched operation while the panel builds and exports a table.
std::map<std::string_view, std::uint64_t> CountHostCalls(
    DocumentDraft document, const std::filesystem::path& output,
    const standalone::IndexOptions& shown = ShowEverything()) {
  IndexSession session;
  standalone::SetUpPanel(session, shown);
  const scaling::HostCallCounts before = scaling::GetHostCallCounts();
  session.ShowDocument(std::move(document));
  session.Export(output);
  scaling::HostCallCounts counts = scaling::GetHostCallCounts();
  for (auto& [name, count] : counts) count -= before.at(name);
  return counts;
}

TEST_F(Growth, EachRowCostsTheSameNumberOfHostCalls) {
  constexpr std::size_t kClips = 1000;
  const auto smaller = CountHostCalls(generator::MakeDocument({.clips = kClips}), folder / "short.csv");
  const auto larger =
      CountHostCalls(generator::MakeDocument({.clips = kTimesMore * kClips}), folder / "long.csv");
  constexpr std::uint64_t kBasicCalls = 50;
  for (const auto& [name, count] : larger) {
    EXPECT_GT(count, 0U) << name;
    // Asked once for each media by each of the two threads that write a long table.
    const std::uint64_t threads = name == "GetMasterClipUsageCount" ? 2 : 1;
    EXPECT_LE(count, threads * GetLimit(smaller.at(name), kBasicCalls)) << name;
  }
}

TEST_F(Growth, ATableIsLaidOutOnceAndItsSequenceVisitedAsOftenHoweverLongItIs) {
  const auto shorter = CountHostCalls(generator::MakeDocument({.clips = 80}), folder / "short.csv");
  const auto longer = CountHostCalls(generator::MakeDocument({.clips = 8000}), folder / "long.csv");
  EXPECT_EQ(shorter.at("LayoutAfterAppendRow"), 1U);
  EXPECT_EQ(longer.at("LayoutAfterAppendRow"), 1U);
  EXPECT_EQ(longer.at("VisitSequence"), shorter.at("VisitSequence"));
}

TEST_F(Growth, NothingIsAskedForColumnsThatAreNotShown) {
  standalone::IndexOptions shown;
  shown.columns.kind = standalone::ColumnChoice::Kind::kListed;
  shown.columns.names = {"Clip Name", "File Name"};
  const auto calls =
      CountHostCalls(generator::MakeDocument({.clips = 1000}), folder / "index.csv", shown);
  EXPECT_EQ(calls.at("GetProjectItem"), 0U);
  EXPECT_EQ(calls.at("GetMasterClipUsageCount"), 0U);
}

/// What it takes to draw what a viewport shows.
struct ViewportCost {
  Allocations allocations;
  scaling::HostCallCounts calls;
  std::size_t texts = 0;
};

void DrawVisibleCells(const qelui::controls::UI_MultiColumnTree& tree, qelui::Drawbot& drawbot) {
  const std::size_t columns = tree.GetHeaderRow()->GetCountOfColumns();
  for (auto* const row : tree.GetVisibleRows()) {
    for (std::size_t i = 0; i < columns; ++i) tree.DrawCellOfRow(drawbot, row, i, {0, 0, 100, 18});
  }
}

/// Clips that differ in their times only: row by row the same, however many there are.
DocumentDraft MakeEvenDocument(std::size_t clips) {
  auto sequence = drafts::MakeSequence("Even");
  auto& track = drafts::AddTrack(sequence);
  for (std::int64_t i = 0; i < static_cast<std::int64_t>(clips); ++i) {
    auto& clip = drafts::AddClip(track, "Shot", i * 10, i * 10 + 10);
    drafts::AddEffect(clip, "Blur");
  }
  return drafts::MakeDocument(std::move(sequence));
}

ViewportCost MeasureViewport(std::size_t clips) {
  constexpr std::size_t kTopRow = 500;
  IndexSession session;
  standalone::SetUpPanel(session, ShowEverything());
  session.ShowDocument(MakeEvenDocument(clips));
  auto& tree = session.GetTree();
  tree.UI_SetBounds({0, 0, 2000, 400});
  tree.ScrollRowIntoView(tree.GetRow(kTopRow), true, true, true);
  standalone::RecordingDrawbot drawbot;
  // Once for the room in the recording.
  DrawVisibleCells(tree, drawbot);
  drawbot.Clear();
  const scaling::HostCallCounts before = scaling::GetHostCallCounts();
  const scaling::AllocationWatch watch;
  DrawVisibleCells(tree, drawbot);
  ViewportCost cost{watch.Take(), scaling::GetHostCallCounts(), drawbot.GetTextLines().size()};
  for (auto& [name, count] : cost.calls) count -= before.at(name);
  return cost;
}

TEST_F(Growth, DrawingAViewportCostsTheSameHoweverLongTheTableIs) {
  const ViewportCost shorter = MeasureViewport(1000);
  const ViewportCost longer = MeasureViewport(100000);
  EXPECT_GT(shorter.texts, 0U);
  EXPECT_GT(shorter.calls.at("GetRowIndex"), 0U);
  EXPECT_EQ(longer.calls, shorter.calls);
  EXPECT_EQ(longer.allocations.count, shorter.allocations.count);
}

}  // namespace
