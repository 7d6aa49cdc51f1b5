#include "generator/TimelineFile.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "generator/DraftLines.h"
#include "generator/LongDocument.h"
#include "standalone/import/TimelineReader.h"
#include "support/Process.h"

/// The file and the document of a shape are the same timeline.
namespace {

using generator::TimelineShape;

std::string Write(const TimelineShape& shape) {
  std::ostringstream stream;
  generator::WriteTimeline(stream, shape);
  return stream.str();
}

void ExpectSame(const TimelineShape& shape) {
  const process::Folder folder;
  const auto file = folder / "cut.otio";
  generator::WriteTimeline(file, shape);
  const standalone::ImportResult result = standalone::ReadTimelineFile(file);
  EXPECT_TRUE(result.notes.empty());
  const auto read = draftlines::DescribeDocument(result.document);
  const auto made = draftlines::DescribeDocument(generator::MakeDocument(shape));
  ASSERT_EQ(read.size(), made.size());
  for (std::size_t i = 0; i < read.size(); ++i) ASSERT_EQ(read[i], made[i]) << "line " << i;
}

TEST(GeneratedFile, IsReadAsTheDocumentOfItsShape) {
  constexpr std::size_t kSizes[] = {1, 7, 60, 1000, 12345};
  for (std::uint64_t seed = 0; seed < 6; ++seed) {
    for (const std::size_t clips : kSizes) {
      SCOPED_TRACE("seed " + std::to_string(seed) + ", clips " + std::to_string(clips));
      ASSERT_NO_FATAL_FAILURE(ExpectSame({.seed = seed, .clips = clips}));
    }
  }
}

TEST(GeneratedFile, HasAnyNumberOfTracksAndAnyShareOfWorldText) {
  for (const std::size_t tracks : {1, 2, 3, 5, 12}) {
    SCOPED_TRACE(tracks);
    ASSERT_NO_FATAL_FAILURE(ExpectSame({.clips = 500, .tracksOfAKind = tracks}));
  }
  for (const unsigned percent : {0, 50, 100}) {
    SCOPED_TRACE(percent);
    ASSERT_NO_FATAL_FAILURE(ExpectSame({.clips = 500, .worldTextPercent = percent}));
  }
}

TEST(GeneratedFile, HasNamesAndTimesAloneWhenItIsLean) {
  for (const std::size_t clips : {1, 60, 1000}) {
    SCOPED_TRACE(clips);
    ASSERT_NO_FATAL_FAILURE(ExpectSame({.clips = clips, .isLean = true}));
  }
  const std::string text = Write({.isLean = true});
  EXPECT_LT(text.size(), 400 * 1000U);
  for (const char* word : {"\"media_references\"", "\"Effect.1\"", "\"comment\"", "\"Marker.2\""}) {
    EXPECT_EQ(text.find(word), std::string::npos) << word;
  }
}

TEST(GeneratedFile, IsTheSameEachTimeAndAnotherForAnotherSeed) {
  EXPECT_EQ(Write({.seed = 3}), Write({.seed = 3}));
  EXPECT_NE(Write({.seed = 3}), Write({.seed = 7}));
}

/// The bytes of one shape, whatever machine and library made them.
TEST(GeneratedFile, IsTheSameOnEachMachine) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char byte : Write({.seed = 11, .clips = 2000})) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  }
  EXPECT_EQ(hash, 5957476611936323042U);
}

TEST(GeneratedFile, TakesAboutAsManyBytesForAClipAsEditingProgramsDo) {
  const std::size_t size = Write({.clips = 10000}).size();
  EXPECT_GT(size, 2200 * 10000U);
  EXPECT_LT(size, 2600 * 10000U);
}

TEST(GeneratedFile, IsRefusedForAShapeThatNoTimelineHas) {
  EXPECT_THROW(Write({.clips = 0}), std::invalid_argument);
  EXPECT_THROW(Write({.tracksOfAKind = 0}), std::invalid_argument);
  EXPECT_THROW(Write({.clips = 1000000, .tracksOfAKind = 1}), std::invalid_argument);
}

TEST(GeneratedFile, ThatCannotBeWrittenIsAnError) {
  EXPECT_THROW(generator::WriteTimeline("/no such folder/cut.otio", TimelineShape()),
               std::ios_base::failure);
}

}  // namespace
