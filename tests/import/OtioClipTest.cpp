#include "standalone/import/OtioClip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/DraftText.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"
#include "standalone/import/LabelPalette.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Clips, OurKeysAreRead) {
  const ClipDraft clip = fixtures::Clip(fixtures::ReadSequence("everything_of_ours.otio"), 0, 0);
  EXPECT_EQ(clip.name, "Shot");
  EXPECT_EQ(clip.labelColor, (ZSL::Color{0xE2, 0xA4, 0x2C, 255}));
  EXPECT_EQ(clip.labelName, "Honey");
  EXPECT_EQ(clip.comment, "Keep the breath");
  EXPECT_EQ(clip.description, "Wide");
  EXPECT_EQ(clip.tapeName, "A001");
  EXPECT_EQ(clip.sourceClipName, "A001_C003");
  EXPECT_EQ(clip.videoInfo, "Two by one");
  EXPECT_TRUE(clip.isAdjustment);
  EXPECT_TRUE(clip.multicam.isMulticam);
  EXPECT_THAT(clip.multicam.cameraNames, ElementsAre("A", "B", "C"));
  EXPECT_EQ(clip.multicam.selectedCamera, 1u);
}

TEST(Clips, WithoutAnyKeyTheyArePlain) {
  const ClipDraft clip = otio::ReadOnly(otio::Clip("A", "10"));
  EXPECT_EQ(clip.labelColor, kDefaultLabelColor);
  EXPECT_EQ(clip.labelName, "Grey");
  EXPECT_EQ(clip.comment + clip.description + clip.tapeName + clip.videoInfo + clip.sourceClipName, "");
  EXPECT_FALSE(clip.isAdjustment || clip.isDisabled || clip.isGraphic || clip.hasSpeedChange);
  EXPECT_FALSE(clip.multicam.isMulticam);
  EXPECT_THAT(clip.components, IsEmpty());
  EXPECT_FALSE(clip.proxy);
  EXPECT_FALSE(clip.nestedSequence);
}

TEST(Clips, AnEmptyNameIsFilledFromReferenceOrFile) {
  const SequenceDraft sequence = fixtures::ReadSequence("names.otio");
  EXPECT_EQ(sequence.name, "Two\nlines");
  std::vector<std::string> names;
  std::vector<std::string> sources;
  for (const TrackItemDraft& item : sequence.tracks.at(0).items) {
    names.push_back(item.clip->name);
    sources.push_back(item.clip->sourceClipName);
  }
  EXPECT_THAT(names, ElementsAre("Interview\nsecond line", "A001_C003", "Reference", "",
                                 "\u00c5lesund \u591c \U0001F3AC"));
  EXPECT_THAT(sources, ElementsAre("a.mov", "A001_C003.mov", "Reference", "", "\u591c.mov"));
}

TEST(Clips, KeysOfOtherWritersFillWhatOursLeaveOpen) {
  const SequenceDraft sequence = fixtures::ReadSequence("other_writers.otio");
  const ClipDraft list = fixtures::Clip(sequence, 0, 0);
  EXPECT_EQ(list.tapeName, "ZZ100_50");
  EXPECT_EQ(list.comment, "First remark; Second remark");
  const ClipDraft dictionary = fixtures::Clip(sequence, 0, 1);
  EXPECT_EQ(dictionary.labelName, "Teal");
  EXPECT_EQ(dictionary.labelColor, FindLabelColor("Teal"));
  EXPECT_EQ(dictionary.comment, "Best one");
  EXPECT_EQ(dictionary.description, "Sunrise");
  EXPECT_EQ(dictionary.tapeName, "R007");
  const ClipDraft note = fixtures::Clip(sequence, 0, 3);
  EXPECT_EQ(note.comment, "From the reference");
  EXPECT_EQ(note.tapeName, "R008");
}

TEST(Clips, OursWinOverOtherWriters) {
  const ClipDraft clip = otio::ReadOnly(otio::Clip(
      "A", "10",
      R"(, "metadata": {"cmx_3600": {"reel": "R1", "comments": ["no"]}, "fcp_xml": {"labels": {"label2":
      "Red"}, "comments": {"mastercomment1": "no"}, "logginginfo": {"description": "no"}},
      "sequence_index": {"tape": "T1", "comment": "yes", "description": "sure", "label_color": "#010203"}})"));
  EXPECT_EQ(clip.tapeName, "T1");
  EXPECT_EQ(clip.comment, "yes");
  EXPECT_EQ(clip.description, "sure");
  EXPECT_EQ(clip.labelColor, (ZSL::Color{1, 2, 3, 255}));
}

TEST(Labels, AnItemsOwnColourIsRoundedTo8Bits) {
  const ClipDraft clip = fixtures::Clip(fixtures::ReadSequence("other_writers.otio"), 0, 4);
  EXPECT_EQ(clip.labelColor, (ZSL::Color{226, 164, 44, 255}));
  EXPECT_EQ(clip.labelName, "Amber");
}

TEST(Labels, ChannelsOutsideOfTheRangeAreClamped) {
  const ClipDraft clip = otio::ReadOnly(otio::Clip(
      "A", "10", R"(, "color": {"OTIO_SCHEMA": "Color.1", "name": "", "r": -1, "g": 7.5, "b": 0.5})"));
  EXPECT_EQ(clip.labelColor, (ZSL::Color{0, 255, 128, 255}));
}

TEST(Labels, AColourThatCantBeReadIsTheDefault) {
  for (const char* extra : {R"(, "color": null)", R"(, "color": {"r": NaN, "g": 0, "b": 0})",
                            R"(, "metadata": {"sequence_index": {"label_color": "red-ish"}})"}) {
    EXPECT_EQ(otio::ReadOnly(otio::Clip("A", "10", extra)).labelColor, kDefaultLabelColor) << extra;
  }
}

TEST(Labels, AStrangersLabelNameIsKept) {
  const ClipDraft clip = fixtures::Clip(fixtures::ReadSequence("other_writers.otio"), 0, 2);
  EXPECT_EQ(clip.labelName, "Best Take");
  EXPECT_EQ(clip.labelColor, kDefaultLabelColor);
}

TEST(Labels, AColourOfThePaletteHasItsWord) {
  const ClipDraft clip =
      otio::ReadOnly(otio::Clip("A", "10", otio::Index(R"("label_color": "#5A8F29")")));
  EXPECT_EQ(clip.labelName, "Green");
}

TEST(Multicam, ACameraBesideTheAnglesIsAddedToThem) {
  const ClipDraft clip = otio::ReadOnly(
      otio::Clip("A", "10", otio::Index(R"("multicam": {"camera": "Crane", "angles": ["A", "B"]})")));
  EXPECT_TRUE(clip.multicam.isMulticam);
  EXPECT_THAT(clip.multicam.cameraNames, ElementsAre("A", "B", "Crane"));
  EXPECT_EQ(clip.multicam.selectedCamera, 2u);
}

TEST(Multicam, WithoutACameraTheFirstAngleIsSelected) {
  const ClipDraft clip =
      otio::ReadOnly(otio::Clip("A", "10", otio::Index(R"("multicam": {"angles": ["A", "B"]})")));
  EXPECT_EQ(clip.multicam.selectedCamera, 0u);
  EXPECT_THAT(clip.multicam.cameraNames, ElementsAre("A", "B"));
}

TEST(VideoInfo, ComesFromTheReferencesFrameSize) {
  const auto info = [](const std::string& members, const std::string& kind = "Video") {
    return otio::ReadOnly(otio::Clip("A", "10", otio::Media(otio::File("a.mov", otio::Index(members)))),
                          kind)
        .videoInfo;
  };
  EXPECT_EQ(info(R"("width": 1920, "height": 1080)"), "1920 x 1080 (1.0)");
  EXPECT_EQ(info(R"("width": 720, "height": 576, "pixel_aspect": 1.094)"), "720 x 576 (1.094)");
  EXPECT_EQ(info(R"("width": 720, "height": 480, "pixel_aspect": 2)"), "720 x 480 (2.0)");
  EXPECT_EQ(info(R"("width": 720, "height": 480, "pixel_aspect": NaN)"), "720 x 480 (1.0)");
  EXPECT_EQ(info(R"("width": 1920)"), "");
  EXPECT_EQ(info(R"("width": 1920, "height": 0)"), "");
  EXPECT_EQ(info(R"("width": 1920, "height": 1080)", "Audio"), "");
}

}  // namespace
}  // namespace standalone
