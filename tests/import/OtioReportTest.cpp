#include "standalone/import/OtioReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/DraftText.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"

namespace standalone {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// "3: track V1, clip "A": sentence"
std::vector<std::string> Lines(const ImportResult& result) {
  std::vector<std::string> lines;
  for (const ImportNote& note : result.report) {
    lines.push_back(std::to_string(note.line) + ": " + note.place + ": " + note.sentence);
  }
  return lines;
}

/// Of a timeline that says all that can be assumed, so that only its items are reported.
std::vector<std::string> LinesOf(const std::vector<std::string>& tracks) {
  return Lines(
      otio::Read(otio::Timeline(tracks, R"(, "global_start_time": )" + otio::Time("0") +
                                            otio::Index(R"("frame_rate": 25, "audio_rate": 48000)"))));
}

TEST(Report, OfAFileWithEverythingHasALineForEach) {
  EXPECT_THAT(
      Lines(fixtures::Read("report_everything.otio")),
      ElementsAre(
          "1: : Assumed: 30000/1001 frames a second, that of the first picture item.",
          "1: : Not shown: metadata \"studio\" of 2 objects (the first is here).",
          "1: : Not shown: metadata \"approved\".",
          "1: : Assumed: the sequence has no name and takes the file's.",
          "1: : Assumed: the sequence starts at zero; the file gives no start time.",
          "1: : Assumed: drop-frame timecode, as is usual at this frame rate.",
          "10: : Not shown: 2 effects on the whole timeline (the first is here).",
          "13: : Not shown: a marker of the timeline.",
          "15: track V1: Assumed: a track without a kind holds pictures.",
          "20: track V1: Not shown: an effect on a whole track.",
          "23: track V1: Not shown: 2 markers of tracks (the first is here).",
          "27: track V1, clip \"Later\": Not shown: where a clip begins in its media.",
          "27: track V1, clip \"Later\": Assumed: the rate 29.97 means 30000/1001, 2 times (the first "
          "is here).",
          "35: track V1, clip \"Later\": Not shown: 2 markers of clips (the first is here).",
          "38: track V1, clip \"Later\": Not shown: that an effect is switched off.",
          "40: track V1, clip \"Later\": Not shown: the speed of a clip, only that it is changed.",
          "41: track V1, clip \"Later\": Assumed: an effect is a built-in setting of the program that "
          "wrote the file, and is not listed.",
          "45: track V1, clip \"Later\": Assumed: a media file on a network address is online; it "
          "can't be looked up.",
          "49: track V1, clip \"Later\": Assumed: a media file is the proxy because of its name in the "
          "clip.",
          "49: track V1, clip \"Later\": Assumed: a media file on another system's path is offline; it "
          "can't be looked up.",
          "53: track V1, clip \"Later\": Not shown: metadata \"grading\".",
          "53: track V1, clip \"Later\": Not shown: a clip's further media, neither in use nor its "
          "proxy.",
          "60: track V1, transition \"Dissolve\": Not shown: how long a transition is.",
          "67: track V1, clip \"\": Assumed: a clip without a name takes its media's.",
          "67: track V1, clip \"\": Assumed: a clip without a range plays all of its media.",
          "82: track V1, stack \"Inner\": Not shown: what a nested sequence holds; it is one row.",
          "93: sequence \"Inner\", track V1, clip \"Title\": Not shown: metadata \"inner\".",
          "93: sequence \"Inner\", track V1, clip \"Title\": Not shown: the text of a title.",
          "93: sequence \"Inner\", track V1, clip \"Title\": Assumed: a generated clip has the "
          "sequence's frame rate.",
          "121: track V1, gap \"\": Not shown: a marker of a gap.",
          "122: track V1, gap \"\": Not shown: an effect on a gap.",
          "124: track V1, item \"Group\": Not shown: what an object of an unknown kind holds.",
          "134: track V1, gap \"\": Assumed: a gap at the end of a track is padding and has no row.",
          "145: track V2: Assumed: an item that stands in no track has one of its own.",
          "170: track A1, clip \"Atmosphere\": Assumed: a clip of sound has 48000 samples a second, "
          "unless its media file tells another rate.",
          "179: track A1, clip \"Beyond\": Not shown: an item outside its track's range."));
}

TEST(Report, OfAPlainFileIsEmpty) {
  const std::string clip = otio::Clip(
      "A", "10",
      otio::Media(otio::File("a.mov")) + R"(, "markers": [], "effects": [], "metadata": {})");
  const std::string transition =
      otio::Item("Transition.1", "T", R"(, "in_offset": null, "out_offset": )" + otio::Time("0"));
  EXPECT_THAT(LinesOf({otio::Track({clip, transition, clip, otio::Gap("3"), clip}, "Video",
                                   R"(, "markers": [], "effects": [])"),
                       otio::Track({clip}, "Audio")}),
              IsEmpty());
}

TEST(Report, CountsAThousandMarkersInOneLineWithTheFirst) {
  std::string markers = R"({"OTIO_SCHEMA": "Marker.3", "name": "M"})";
  for (int i = 1; i < 500; ++i) markers += R"(, {"OTIO_SCHEMA": "Marker.3", "name": "M"})";
  const std::string marked = otio::Clip("Marked", "10", ", \"markers\":\n[" + markers + "]");
  EXPECT_THAT(
      LinesOf({otio::Track({otio::Clip("A", "10"), marked, marked})}),
      ElementsAre("3: track V1, clip \"Marked\": Not shown: 1000 markers of clips (the first is "
                  "here)."));
}

TEST(Report, CountsMetadataByNameWithThePlaceOfTheFirst) {
  std::vector<std::string> clips = {otio::Clip("Plain", "1")};
  for (int i = 0; i < 1000; ++i) {
    clips.push_back(otio::Clip("C" + std::to_string(i), "1", R"(, "metadata": {"studio": {"a": 1}})"));
  }
  EXPECT_THAT(
      LinesOf({otio::Track({}, "Audio"), otio::Track({}), otio::Track(clips)}),
      ElementsAre("4: track V2, clip \"C0\": Not shown: metadata \"studio\" of 1000 objects (the "
                  "first is here)."));
}

TEST(Report, NamesAtMost20KindsOfMetadata) {
  std::string members = R"("m0": 1)";
  for (int i = 1; i < 26; ++i) members += ", \"m" + std::to_string(i) + "\": 1";
  const auto lines =
      LinesOf({otio::Track({otio::Clip("A", "1", R"(, "metadata": {)" + members + "}")})});
  ASSERT_EQ(lines.size(), 21u);
  EXPECT_THAT(lines,
              Contains("1: track V1, clip \"A\": Not shown: 6 values of metadata under further names "
                       "(the first is here)."));
}

TEST(Report, CountsKnownWritersMetadataThatIsReadOnlyInPart) {
  const auto clip = [](const char* name, const std::string& writer) {
    return otio::Clip(name, "1", R"(, "metadata": {"Resolve_OTIO": )" + writer + "}");
  };
  EXPECT_THAT(LinesOf({otio::Track({
                  clip("Read", R"({"Locked": true, "Link Group ID": null, "Channels": []})"),
                  clip("Lost", R"({"Link Group ID": 4, "Channels": [1], "Effects": {"Type": 5}})"),
                  clip("Deep", R"({"Effects": {"Effect Name": "Cross", "Type": 5}})"),
              })}),
              ElementsAre("2: track V1, clip \"Lost\": Not shown: the rest of metadata "
                          "\"Resolve_OTIO\" of 2 objects (the first is here)."));
}

TEST(Report, TellsThatAGeneratorIsNotShown) {
  const auto clip = [](const std::string& parameters) {
    return otio::Clip("G", "1",
                      otio::Media(R"({"OTIO_SCHEMA": "GeneratorReference.1", "generator_kind": "Bars",)"
                                  R"( "available_range": )" +
                                  otio::Range("0", "1") + R"(, "parameters": )" + parameters + "}"));
  };
  EXPECT_THAT(
      LinesOf({otio::Track({clip(R"({"font": {"size": 9}})"), clip(R"({"text": "Harbour"})")})}),
      ElementsAre("1: track V1, clip \"G\": Not shown: which generator makes a clip.",
                  "2: track V1, clip \"G\": Not shown: the text of a title."));
}

TEST(Report, TakesFlatMetadataOfEffectsForTheirParameters) {
  const std::string effect =
      otio::Item("Effect.1", "Blur", R"(, "metadata": {"radius": 5, "studio": {"a": 1}})");
  EXPECT_THAT(LinesOf({otio::Track({otio::Clip("A", "1", R"(, "effects": [)" + effect + "]")})}),
              ElementsAre("1: track V1, clip \"A\": Not shown: metadata \"studio\"."));
}

TEST(Report, PlacesMetadataOfMediaTracksAndNestedItems) {
  const std::string studio = R"(, "metadata": {"studio": {"a": 1}})";
  const auto placeOf = [](const std::string& track) {
    const ImportResult result = otio::Read(otio::Timeline({otio::Track({}), track}));
    for (const ImportNote& note : result.report) {
      if (note.sentence == "Not shown: metadata \"studio\".") return note.place;
    }
    return std::string("none");
  };
  const std::string media = otio::Media(otio::File("a.mov", studio));
  EXPECT_EQ(placeOf(otio::Track({otio::Clip("A", "1", media)}, "Audio")), "track A1, clip \"A\"");
  EXPECT_EQ(placeOf(otio::Track({}, "Video", studio)), "track V2");
  EXPECT_EQ(placeOf(otio::Track({}, "Data", studio)), "track \"\"");
  EXPECT_EQ(placeOf(otio::Clip("Loose", "1", studio)), "track V2, clip \"Loose\"");
  EXPECT_EQ(placeOf(otio::Track({otio::Stack({}, "Inner", studio)})), "track V2, stack \"Inner\"");
  EXPECT_EQ(placeOf(otio::Track({otio::Stack({otio::Track({otio::Clip("B", "1", studio)})}, "Inner")})),
            "sequence \"Inner\", track V1, clip \"B\"");
  EXPECT_EQ(placeOf(otio::Stack({otio::Clip("C", "1", studio)})),
            "sequence \"Nested sequence\", track V1, clip \"C\"");
}

TEST(Report, TellsWhatTheFrameRateWasTakenFrom) {
  const auto lineOf = [](const std::string& timeline) {
    for (const std::string& line : Lines(otio::Read(timeline))) {
      if (line.find(" frames a second, ") != std::string::npos) return line;
    }
    return std::string("none");
  };
  const auto item = [](const std::string& value, const std::string& rate) {
    return otio::Item("Clip.2", "A", R"(, "source_range": )" + otio::Range("0", value, rate));
  };
  EXPECT_EQ(lineOf(otio::Timeline({otio::Track({item("10", "30")})})),
            "1: : Assumed: 30 frames a second, that of the first picture item.");
  EXPECT_EQ(
      lineOf(otio::Timeline({otio::Track({item("2002", "24000"), item("1001", "24000")})})),
      "1: : Assumed: 24000/1001 frames a second, of which the picture items' lengths are multiples.");
  EXPECT_EQ(lineOf(otio::Timeline({otio::Track({item("10", "25")}, "Audio")})),
            "1: : Assumed: 25 frames a second, that of the first sound item.");
  EXPECT_EQ(lineOf(otio::Timeline({})),
            "1: : Assumed: 24 frames a second, since nothing tells its frame rate.");
  EXPECT_EQ(lineOf(otio::Timeline({}, otio::Index(R"("frame_rate": 25)"))), "none");
  EXPECT_EQ(lineOf(otio::Timeline({}, R"(, "global_start_time": )" + otio::Time("0"))), "none");
}

TEST(Report, NamesRoundedRatesButNotExactOnes) {
  const auto linesOf = [](const std::string& rate) {
    return Lines(otio::Read(
        otio::Timeline({}, R"(, "global_start_time": )" + otio::Time("0", rate) +
                               otio::Index(R"("frame_rate": "30000/1001", "drop_frame": true)"))));
  };
  EXPECT_THAT(linesOf("23.98"), ElementsAre("1: : Assumed: the rate 23.98 means 24000/1001."));
  EXPECT_THAT(linesOf("23.976023976023978"), IsEmpty());
  EXPECT_THAT(linesOf("25"), IsEmpty());
}

TEST(Report, NamesTheTimelineWhereAFileHoldsSeveral) {
  const std::string timeline = otio::Timeline({otio::Track({}, "Video", R"(, "markers": [1])")});
  const ImportResult result = otio::Read(otio::Item(
      "SerializableCollection.1", "", R"(, "children": )" + otio::List({timeline, timeline})));
  EXPECT_THAT(Lines(result),
              Contains("1: sequence \"Cut\", track V1: Not shown: 2 markers of tracks (the first is "
                       "here)."));
}

TEST(Report, LeavesOutProxiesAndMediaThatOurOwnKeysSettle) {
  const std::string proxy = otio::File("p.mov", otio::Index(R"("proxy": true, "offline": false)"));
  const std::string online =
      otio::File("https://example.org/a.mov", otio::Index(R"("offline": false)"));
  const std::string media =
      R"(, "media_references": {"DEFAULT_MEDIA": )" + online + R"(, "proxy": )" + proxy + "}";
  EXPECT_THAT(LinesOf({otio::Track({otio::Clip("A", "1", media)})}), IsEmpty());
}

TEST(Report, DoesNotTakeATransitionBetweenGapsForShown) {
  const auto result = otio::Read(otio::Timeline(
      {otio::Track({otio::Clip("A", "5"), otio::Gap("5"), otio::Transition("T"), otio::Gap("5")})}));
  EXPECT_THAT(draft::Sentences(result),
              ElementsAre("track V1, transition \"T\": It touches no clip; it is left out."));
}

}  // namespace
}  // namespace standalone
