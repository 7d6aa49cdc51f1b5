#include "standalone/import/OtioReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/DraftText.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Names(const ImportResult& result) {
  std::vector<std::string> names;
  for (const SequenceDraft& sequence : result.document.sequences) names.push_back(sequence.name);
  return names;
}

TEST(TopObjects, ATimelineIsOneSequence) {
  const ImportResult result = otio::Read(otio::Timeline({otio::Track({otio::Clip("A", "10")})}));
  EXPECT_THAT(Names(result), ElementsAre("Cut"));
  EXPECT_EQ(result.document.timelineCount, 1u);
  EXPECT_THAT(result.notes, IsEmpty());
}

TEST(TopObjects, ATimelineWithoutANameTakesTheFiles) {
  EXPECT_THAT(Names(otio::Read(otio::Item("Timeline.1", ""))), ElementsAre("scene"));
}

TEST(TopObjects, CollectionsAreFlattenedInTheOrderOfTheFile) {
  const ImportResult result = fixtures::Read("collections_in_collections.otio");
  EXPECT_THAT(Names(result), ElementsAre("First", "Second", "collections_in_collections"));
  EXPECT_EQ(result.document.timelineCount, 3u);
}

TEST(TopObjects, WhatStandsBesideTimelinesIsNoted) {
  EXPECT_THAT(draft::Sentences(fixtures::Read("collections_in_collections.otio")),
              ElementsAre("clip \"Loose\": It stands beside the timelines and is not shown.",
                          "track \"Loose track\": It stands beside the timelines and is not shown.",
                          "object \"Bin\": It stands beside the timelines and is not shown."));
}

TEST(TopObjects, ABareTrackStackOrClipIsOneSequence) {
  const ImportResult track = fixtures::Read("bare_track.otio");
  EXPECT_THAT(Names(track), ElementsAre("Dialogue"));
  EXPECT_THAT(draft::Rows(track.document.sequences[0], draft::k25),
              ElementsAre("A1 0-10 A", "A1 10-30 B"));
  const ImportResult stack = fixtures::Read("bare_stack.otio");
  EXPECT_THAT(Names(stack), ElementsAre("bare_stack"));
  EXPECT_THAT(draft::Rows(stack.document.sequences[0], draft::k25),
              ElementsAre("V1 0-10 A", "V2 0-20 B"));
  const ImportResult clip = fixtures::Read("bare_clip.otio");
  EXPECT_THAT(Names(clip), ElementsAre("Only"));
  EXPECT_THAT(draft::Rows(clip.document.sequences[0], draft::k24), ElementsAre("V1 0-48 Only"));
}

TEST(TopObjects, ACollectionWithoutTimelinesShowsWhatItHas) {
  const std::string head = R"(, "children": )";
  EXPECT_THAT(
      Names(otio::Read(otio::Item("SerializableCollection.1", "",
                                  head + otio::List({otio::Clip("A", "1"), otio::Clip("B", "1")})))),
      ElementsAre("A", "B"));
  EXPECT_THAT(
      Names(otio::Read(otio::Item("SerializableCollection.1", "",
                                  head + otio::List({otio::Clip("A", "1"), otio::Stack({}, "S")})))),
      ElementsAre("S"));
}

TEST(TopObjects, CollectionsMayBeNestedInAnyDepth) {
  std::string text;
  for (int i = 0; i < 20000; ++i)
    text += R"({"OTIO_SCHEMA": "SerializableCollection.1", "children": [)";
  text += otio::Clip("Deep", "10");
  for (int i = 0; i < 20000; ++i) text += "]}";
  EXPECT_THAT(Names(otio::Read(text)), ElementsAre("Deep"));
}

TEST(Schemas, OldNamesMeanTheirSuccessors) {
  const SequenceDraft sequence = fixtures::ReadSequence("legacy_names.otio");
  EXPECT_THAT(draft::Rows(sequence, draft::k25),
              ElementsAre("V1 0-10 (gap)", "V1 10-30 No media", "V1 30-60 With media"));
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 1).media.isOffline);
  EXPECT_EQ(fixtures::Clip(sequence, 0, 2).media.address, "legacy.mov");
}

TEST(Schemas, ANewerVersionIsReadAndNotedOnce) {
  const ImportResult result = fixtures::Read("newer_versions.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(0), draft::k25),
              ElementsAre("V1 0-10 A", "V1 10-30 B", "V1 30-35 C"));
  EXPECT_EQ(fixtures::Clip(result.document.sequences.at(0), 0, 1).media.address, "b.mov");
  EXPECT_THAT(
      draft::Sentences(result),
      ElementsAre("track V1, item \"A\": Clip.3 is newer than this reader; only the fields it knows "
                  "are read."));
}

TEST(Schemas, TheOrderOfMembersDoesNotMatter) {
  const SequenceDraft sequence = fixtures::ReadSequence("schema_last.otio");
  EXPECT_THAT(draft::Rows(sequence, draft::k25),
              ElementsAre("V1 0-5 (gap)", "V1 5-15 A", "V1 15-35 B", "A1 0-30 S"));
  EXPECT_EQ(sequence.name, "Order");
  EXPECT_EQ(sequence.zeroPoint.GetTicks(), 250 * draft::k25);
  EXPECT_EQ(fixtures::Clip(sequence, 0, 1).media.address, "a.mov");
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 1).tailTransition);
}

TEST(Schemas, NumbersBeyond64BitsInMetadataAreNoTrouble) {
  EXPECT_EQ(fixtures::ReadSequence("numbers_beyond_json.otio").name, "Numbers");
}

TEST(Recognition, GoesByContent) {
  const OtioReader reader;
  EXPECT_TRUE(reader.Recognises("{", "a.txt"));
  EXPECT_TRUE(reader.Recognises("\xEF\xBB\xBF \n\t{", "a"));
  EXPECT_FALSE(reader.Recognises("<?xml", "a.otio"));
  EXPECT_FALSE(reader.Recognises("", "a.otio"));
  EXPECT_EQ(reader.GetFormatName(), "OpenTimelineIO");
}

TEST(Places, NameTheSequenceWhereThereAreSeveral) {
  const std::string clip = otio::Item("Clip.2", "A");
  const std::string timeline = otio::Timeline({otio::Track({clip})});
  const ImportResult result = otio::Read(otio::Item(
      "SerializableCollection.1", "", R"(, "children": )" + otio::List({timeline, timeline})));
  EXPECT_THAT(draft::Sentences(result),
              ElementsAre("sequence \"Cut\", track V1, clip \"A\": It has no range; it is shown with "
                          "duration 0.",
                          "sequence \"Cut\", track V1, clip \"A\": It has no range; it is shown with "
                          "duration 0."));
}

}  // namespace
}  // namespace standalone
