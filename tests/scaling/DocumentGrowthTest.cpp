#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <sstream>
#include <string>
#include <utility>

#include "generator/LongDocument.h"
#include "generator/TimelineFile.h"
#include "scaling/AllocationWatch.h"
#include "scaling/GrowthFixture.h"
#include "standalone/app/IndexSession.h"
#include "standalone/app/PanelSetUp.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/PreparedDocument.h"
#include "standalone/probing/MediaProber.h"

/// What comes with a document besides its rows: notes, media files, and its next version.
namespace {

using scaling::Allocations;
using scaling::Growth;
using standalone::DocumentDraft;
using standalone::IndexSession;

constexpr std::size_t kClips = 4000;

/// A timeline of which every label is written wrongly.
std::string WriteWithWrongLabels(std::size_t clips) {
  std::ostringstream stream;
  generator::WriteTimeline(stream, {.clips = clips});
  std::string text = stream.str();
  const std::string label = R"("label_color": "#)";
  for (std::size_t at = text.find(label); at != std::string::npos; at = text.find(label, at)) {
    at += label.size();
    text[at - 1] = '?';
  }
  return text;
}

TEST_F(Growth, NotingTroubleAllocatesInProportionToTheNotes) {
  ExpectInProportion(
      [this](std::size_t clips) {
        const auto file = folder / "cut.otio";
        process::WriteFile(file, WriteWithWrongLabels(clips));
        const scaling::AllocationWatch watch;
        const auto result = standalone::ReadTimelineFile(file);
        const Allocations taken = watch.Take();
        EXPECT_GT(result.notes.size(), clips / 4);
        return taken;
      },
      kClips);
}

TEST_F(Growth, LookingForMediaFilesAllocatesInProportionToTheClips) {
  ExpectInProportion(
      [](std::size_t clips) {
        DocumentDraft document = generator::MakeDocument({.clips = clips});
        standalone::MediaProber prober;
        const scaling::AllocationWatch watch;
        EXPECT_EQ(prober.Probe(document).readCount, 0U);
        return watch.Take();
      },
      kClips);
}

TEST_F(Growth, AFileThatManyClipsPlayIsReadOnce) {
  constexpr std::size_t kFiles = 20;
  DocumentDraft document = generator::MakeDocument({.clips = kClips});
  std::size_t next = 0;
  for (standalone::TrackItemDraft& item : document.sequences.front().tracks.front().items) {
    if (!item.clip) continue;
    item.clip->media.isOffline = false;
    item.clip->media.lookUpPath = (folder / (std::to_string(next++ % kFiles) + ".mov")).native();
  }
  for (std::size_t i = 0; i < kFiles; ++i) {
    process::WriteFile(folder / (std::to_string(i) + ".mov"), "picture");
  }
  std::atomic<std::size_t> reads = 0;
  standalone::MediaProber::Setup setup;
  setup.findReader = [&reads] {
    return standalone::MediaReader([&reads](const standalone::MediaReadRequest&) {
      ++reads;
      return standalone::MediaReading();
    });
  };
  standalone::MediaProber(std::move(setup)).Probe(document);
  EXPECT_EQ(reads, kFiles);
}

TEST_F(Growth, ReplacingASequenceAllocatesInProportionToItsRows) {
  ExpectInProportion(
      [](std::size_t clips) {
        IndexSession session;
        standalone::SetUpPanel(session, scaling::ShowEverything());
        session.ShowDocument(generator::MakeDocument({.clips = clips}));
        DocumentDraft next = generator::MakeDocument({.seed = 5, .clips = clips});
        standalone::ProjectModel& project = session.GetHost().GetProject();
        const auto sequence = project.GetActiveSequence();
        const scaling::AllocationWatch watch;
        project.ReplaceDocument({sequence}, standalone::PreparedDocument(std::move(next)));
        session.GetHost().GetRuntime().Drain();
        return watch.Take();
      },
      kClips);
}

}  // namespace
