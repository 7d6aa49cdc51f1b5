#include "export/RowLines.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "export/ExpectedLines.h"
#include "host/BE/Utilities.h"
#include "host/qelcore/Exceptions.h"
#include "host/qelcore/UTF8StringStream.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"

namespace Vantrel {
namespace {

using qelmediatypes::TickTime;

/// What is written of these rows by one object, row by row.
std::string Write(RowLines& lines, std::span<const TrackItemRowData> rows) {
  qelcore::oUTF8StringStream stream;
  lines.Append(stream, rows);
  return std::string(stream.str());
}

TEST(RowLines, WhatIsRememberedFromOtherRowsIsWhatEachRowSaysAlone) {
  rows::Host host;
  const auto sequence = host.Add(MakeRepeatingSequence());
  auto list = rows::Collect(sequence);
  rows::Number(list);
  const auto zeroPoint = BE::SequenceUtils::GetZeroPoint(sequence);
  RowLines lines(AllColumns(), zeroPoint);
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(Write(lines, list) == LinesOf(list, AllColumns(), zeroPoint)) << "time " << i;
  }
}

TEST(RowLines, EachColumnAloneSaysTheSame) {
  rows::Host host;
  const auto sequence = host.Add(MakeRepeatingSequence());
  const auto list = rows::Collect(sequence);
  const auto zeroPoint = BE::SequenceUtils::GetZeroPoint(sequence);
  for (const ColumnID column : AllColumns()) {
    RowLines lines({&column, 1}, zeroPoint);
    EXPECT_TRUE(Write(lines, list) == LinesOf(list, {column}, zeroPoint)) << column;
  }
}

/// Only the last digit is written anew in numbers of the same ten.
TEST(RowLines, NumbersAreThoseOfTheRowsInAnyOrder) {
  rows::Host host;
  auto list = rows::Collect(host.Add(MakeRepeatingSequence()));
  const std::vector<std::uint64_t> indices = {1,  2,  0,  1,   2,   8,     9,      10,     11, 12, 98,
                                              99, 99, 98, 100, 999, 1'000, 12'344, 12'345, 0,  0,  1};
  for (std::size_t i = 0; i < indices.size(); ++i) list[i].index = indices[i];
  list.erase(list.begin() + static_cast<std::ptrdiff_t>(indices.size()), list.end());
  std::string expected;
  for (const std::uint64_t index : indices) expected += std::to_string(index + 1) + "\n";
  const ColumnID column = kColumnIndex;
  RowLines lines({&column, 1}, {});
  for (int i = 0; i < 2; ++i) EXPECT_EQ(Write(lines, list), expected) << "time " << i;
  for (std::size_t first = 0; first < list.size(); ++first) {
    const TrackItemDataList one(1, list[first]);
    RowLines fresh({&column, 1}, {});
    EXPECT_EQ(Write(fresh, one), std::to_string(indices[first] + 1) + "\n");
  }
}

/// Clips are asked ahead, a block of rows at a time.
TEST(RowLines, AnyNumberOfRowsIsWritten) {
  rows::Host host;
  const auto sequence = host.Add(MakeRepeatingSequence());
  const auto list = rows::Collect(sequence);
  const std::vector<ColumnID> columns = {kColumnClipName, kColumnFilePath, kColumnStartTime};
  for (const std::size_t count : {0U, 1U, 2U, 31U, 32U, 33U, 64U, 65U, 200U}) {
    TrackItemDataList some(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(count));
    RowLines lines(columns, {});
    EXPECT_EQ(Write(lines, some), LinesOf(some, columns, {})) << count;
  }
}

/// Two entries of the project that were made from one file.
TEST(RowLines, ClipsOfOneMediaHaveTheirOwnNotes) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  for (int i = 0; i < 3; ++i) {
    auto& clip = drafts::AddClip(track, "A", i * 10, i * 10 + 10);
    clip.media.address = "/media/a, b.mov";
    clip.comment = i == 1 ? "" : "Note " + std::to_string(i);
    clip.tapeName = i == 2 ? "" : "Tape, " + std::to_string(i);
  }
  const auto list = rows::Collect(host.Add(draft));
  const std::vector<ColumnID> columns = {kColumnFileName, kColumnComment, kColumnTapeName,
                                         kColumnUsageCountInSequence};
  RowLines lines(columns, {});
  EXPECT_EQ(Write(lines, list),
            "\"a, b.mov\",Note 0,\"Tape, 0\",3\n"
            "\"a, b.mov\",,\"Tape, 1\",3\n"
            "\"a, b.mov\",Note 2,,3\n");
}

TEST(RowLines, AClipWithoutMediaIsNotTakenForAnother) {
  rows::Host host;
  auto draft = drafts::MakeOneClip("A");
  draft.tracks.front().items.front().clip->media.address = "/media/a.mov";
  auto list = rows::Collect(host.Add(draft));
  list.push_back(list.front());
  const qelcore::Ref fakeClip(new fakes::Clip(list.front().trackItem->GetClip()));
  fakeClip->hasMasterClip = false;
  const qelcore::Ref item(new fakes::TrackItem(list.front().trackItem));
  item->clip = qelcore::Ref<BE::IClip>(fakeClip);
  list.back().trackItem = item;
  list.push_back(list.front());
  const std::vector<ColumnID> columns = {kColumnFileName, kColumnUsageCountInSequence};
  RowLines lines(columns, {});
  EXPECT_EQ(Write(lines, list), "a.mov,1\n,\na.mov,1\n");
}

TEST(RowLines, TextsThatAreTooLongToBeRememberedAreWritten) {
  rows::Host host;
  auto list = rows::Collect(host.Add(drafts::MakeOneClip("A")));
  list.front().trackIndex = 9999999999999999999U;
  list.front().start = TickTime::Lowest();
  list.push_back(list.front());
  const std::vector<ColumnID> columns = {kColumnTrack, kColumnStartTime, kColumnDuration};
  RowLines lines(columns, {});
  EXPECT_EQ(Write(lines, list), LinesOf(list, columns, {}));
}

TEST(RowLines, RowsOfAnotherSequenceAreWrittenItsWay) {
  rows::Host host;
  auto draft = drafts::MakeOneClip("A");
  const auto timecode = rows::Collect(host.Add(draft));
  draft.timeFormat = standalone::TimeFormat::kFrames;
  const auto frames = rows::Collect(host.Add(draft));
  const std::vector<ColumnID> columns = {kColumnStartTime, kColumnDuration};
  const std::string inTimecode = LinesOf(timecode, columns, {});
  const std::string inFrames = LinesOf(frames, columns, {});
  EXPECT_TRUE(inTimecode.starts_with("00:00:00:00,00:"));
  EXPECT_TRUE(inFrames.starts_with("0,"));
  RowLines lines(columns, {});
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Write(lines, timecode), inTimecode);
    EXPECT_EQ(Write(lines, frames), inFrames);
  }
}

TEST(RowLines, RowsOfASequenceWithoutProjectHaveNoUsageCount) {
  rows::Host host;
  const auto inProject = rows::Collect(host.Add(drafts::MakeOneClip("A")));
  auto outside = inProject;
  outside.front().sequence = qelcore::Ref<BE::ISequence>(new fakes::Sequence(drafts::Frame(1)));
  const std::vector<ColumnID> columns = {kColumnUsageCountInSequence};
  RowLines lines(columns, {});
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Write(lines, inProject), "1\n");
    EXPECT_EQ(Write(lines, outside), "\n");
  }
}

TEST(RowLines, ARowWithoutTrackItemIsWrittenUnlessAColumnAsksIt) {
  const std::vector<TrackItemRowData> list(1);
  const std::vector<ColumnID> plain = {kColumnIndex, kColumnClipName};
  RowLines lines(plain, {});
  EXPECT_EQ(Write(lines, list), "1,\n");
  const std::vector<ColumnID> asking = {kColumnComment};
  RowLines askingLines(asking, {});
  EXPECT_THROW(Write(askingLines, list), qelcore::config::null_pointer_exception);
}

}  // namespace
}  // namespace Vantrel
