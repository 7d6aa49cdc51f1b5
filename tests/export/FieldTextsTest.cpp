#include "export/FieldTexts.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "export/CSVFormat.h"
#include "host/BE/Utilities.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"

namespace Vantrel {
namespace {

/// Clips whose media, times, colours and counts come back, some of them only after others that would
/// take their place in a small memory.
standalone::SequenceDraft MakeRepeatingSequence() {
  auto draft = drafts::MakeSequence();
  draft.zeroPoint = drafts::Frame(1000);
  for (const auto kind : {standalone::TrackKind::kVideo, standalone::TrackKind::kAudio}) {
    auto& track = drafts::AddTrack(draft, kind);
    for (int i = 0; i < 3000; ++i) {
      if (i % 7 == 0) continue;
      auto& clip = drafts::AddClip(track, "Shot " + std::to_string(i), i * 10, i * 10 + 10);
      clip.media.address = "/media/" + std::to_string(i * i % 37) + ".mov";
      clip.media.isOffline = i % 5 == 0;
      clip.labelColor = {static_cast<std::uint8_t>(i % 200), static_cast<std::uint8_t>(i % 3), 0, 255};
      clip.comment = i % 2 == 0 ? "" : "Note, " + std::to_string(i % 11);
      clip.videoInfo = i % 3 == 0 ? "1920 x 1080 (1.0)" : "";
      clip.frameDuration = drafts::Frame(1 + i % 4);
    }
  }
  return draft;
}

TEST(FieldTexts, WhatIsRememberedFromOtherRowsIsWhatEachRowSaysAlone) {
  rows::Host host;
  const auto sequence = host.Add(MakeRepeatingSequence());
  auto list = rows::Collect(sequence);
  rows::Number(list);
  const auto zeroPoint = BE::SequenceUtils::GetZeroPoint(sequence);
  FieldTexts fields(zeroPoint);
  for (const auto& row : list) {
    fields.SetRow(row);
    for (ColumnID column = kFirstColumn - 1; column <= kLastColumn + 1; ++column) {
      ASSERT_EQ(fields.Get(column), RowFieldText(row, column, zeroPoint).View())
          << row.index << ' ' << column;
    }
  }
}

TEST(FieldTexts, RowsOfAnotherSequenceAreWrittenItsWay) {
  rows::Host host;
  auto draft = drafts::MakeOneClip("A");
  const auto timecode = rows::Collect(host.Add(draft));
  draft.timeFormat = standalone::TimeFormat::kFrames;
  const auto frames = rows::Collect(host.Add(draft));
  FieldTexts fields({});
  for (int i = 0; i < 2; ++i) {
    fields.SetRow(timecode.front());
    EXPECT_EQ(fields.Get(kColumnStartTime), "00:00:00:00");
    fields.SetRow(frames.front());
    EXPECT_EQ(fields.Get(kColumnStartTime), "0");
  }
}

TEST(FieldTexts, RowsOfASequenceWithoutProjectHaveNoUsageCount) {
  rows::Host host;
  const auto inProject = rows::Collect(host.Add(drafts::MakeOneClip("A")));
  auto outside = inProject;
  outside.front().sequence = qelcore::Ref<BE::ISequence>(new fakes::Sequence(drafts::Frame(1)));
  FieldTexts fields({});
  for (int i = 0; i < 2; ++i) {
    fields.SetRow(inProject.front());
    EXPECT_EQ(fields.Get(kColumnUsageCountInSequence), "1");
    fields.SetRow(outside.front());
    EXPECT_EQ(fields.Get(kColumnUsageCountInSequence), "");
  }
}

}  // namespace
}  // namespace Vantrel
