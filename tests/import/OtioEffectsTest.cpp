#include "standalone/import/OtioEffects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/ML/TextFilter.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// "Blur", "(Motion)" for an intrinsic one, "Old Film!" for a missing one.
std::vector<std::string> Effects(const ClipDraft& clip) {
  std::vector<std::string> names;
  for (const ComponentDraft& component : clip.components) {
    std::string name = component.displayName;
    if (component.isIntrinsic) name = "(" + name + ")";
    if (component.isMissing) name += "!";
    names.push_back(name);
  }
  return names;
}

ClipDraft WithEffect(const std::string& effect) {
  return otio::ReadOnly(otio::Clip("A", "10", R"(, "effects": [)" + effect + "]"));
}

bool ChangesSpeed(const std::string& schema, const std::string& extra) {
  return WithEffect(otio::Item(schema, "", extra)).hasSpeedChange;
}

TEST(Effects, AreNamedInOrderAndFlaggedByOurKeys) {
  const ClipDraft clip = fixtures::Clip(fixtures::ReadSequence("everything_of_ours.otio"), 0, 0);
  EXPECT_THAT(Effects(clip),
              ElementsAre("Blur", "Old Film!", "(Motion)", "Shown", "vignette", "Effect"));
  EXPECT_EQ(clip.components[0].matchName, "blur");
}

TEST(Effects, BuiltInPanelsAreSettingsAndOthersOfTheSameWriterEffects) {
  const SequenceDraft sequence = fixtures::ReadSequence("builtin_panels.otio");
  EXPECT_THAT(Effects(fixtures::Clip(sequence, 0, 0)),
              ElementsAre("(Transform)", "(Cropping)", "(Dynamic Zoom)", "(Composite)",
                          "(Lens Correction)", "(Retime and Scaling)", "(Video Faders)", "Film Grain"));
  for (const ComponentDraft& panel : fixtures::Clip(sequence, 2, 0).components) {
    EXPECT_TRUE(panel.isIntrinsic) << panel.displayName;
  }
}

TEST(Effects, TheSameNameFromAnotherWriterIsAnEffect) {
  EXPECT_THAT(Effects(WithEffect(otio::Item("Effect.1", "Transform"))), ElementsAre("Transform"));
}

TEST(Effects, OfTrackAndStackAreNoClipEffects) {
  const SequenceDraft sequence = fixtures::ReadSequence("effects_on_track_and_stack.otio");
  EXPECT_THAT(Effects(fixtures::Clip(sequence, 0, 0)), IsEmpty());
  EXPECT_THAT(Effects(fixtures::Clip(sequence, 0, 1)), ElementsAre("studio:Flip"));
}

TEST(SpeedChanges, AreTimeWarpsOtherThanNormalSpeed) {
  EXPECT_TRUE(ChangesSpeed("LinearTimeWarp.1", R"(, "time_scalar": 2)"));
  EXPECT_TRUE(ChangesSpeed("LinearTimeWarp.1", R"(, "time_scalar": -1.0)"));
  EXPECT_FALSE(ChangesSpeed("LinearTimeWarp.1", R"(, "time_scalar": 1.0)"));
  EXPECT_FALSE(ChangesSpeed("LinearTimeWarp.1", ""));
  EXPECT_TRUE(ChangesSpeed("FreezeFrame.1", ""));
  EXPECT_TRUE(ChangesSpeed("TimeEffect.1", ""));
  EXPECT_FALSE(ChangesSpeed("TimeEffect.1", R"(, "time_scalar": 1)"));
  EXPECT_FALSE(ChangesSpeed("LinearTimeWarp.1", R"(, "time_scalar": 2, "enabled": false)"));
  EXPECT_FALSE(ChangesSpeed("Effect.1", R"(, "time_scalar": 2)"));
}

TEST(SpeedChanges, AreNoListedEffectsAndLeaveTheDuration) {
  const auto result = otio::Read(otio::Timeline({otio::Track({otio::Clip(
      "A", "10",
      R"(, "effects": [)" + otio::Item("LinearTimeWarp.1", "", R"(, "time_scalar": 2)") + "]")})}));
  const TrackItemDraft& item = result.document.sequences.at(0).tracks.at(0).items.at(0);
  EXPECT_THAT(item.clip->components, IsEmpty());
  EXPECT_EQ(item.end.GetTicks(), 10 * 10160640000);
}

TEST(Graphics, FontsOfOurKeysAndParametersStandInATextComponent) {
  const ClipDraft clip = fixtures::Clip(fixtures::ReadSequence("everything_of_ours.otio"), 0, 1);
  EXPECT_TRUE(clip.isGraphic);
  ASSERT_EQ(clip.components.size(), 1u);
  EXPECT_EQ(clip.components[0].matchName, ML::kMatchnameText);
  EXPECT_TRUE(clip.components[0].isIntrinsic);
  EXPECT_THAT(clip.components[0].fonts, ElementsAre("Listed Font", "Serif One", "Sans Two"));
}

TEST(Graphics, AreFlaggedOrGeneratorsOfText) {
  const auto isGraphic = [](const std::string& reference, const std::string& extra = "") {
    return otio::ReadOnly(otio::Clip("A", "10", otio::Media(reference) + extra)).isGraphic;
  };
  const std::string bars = otio::Item("GeneratorReference.1", "bars", R"(, "parameters": {"tone": 1})");
  EXPECT_FALSE(isGraphic(bars));
  EXPECT_TRUE(isGraphic(otio::Item("GeneratorReference.1", "", R"(, "parameters": {"text": "Hi"})")));
  EXPECT_TRUE(
      isGraphic(otio::Item("GeneratorReference.1", "", R"(, "parameters": {"font_family": "X"})")));
  EXPECT_TRUE(
      isGraphic(bars, R"(, "effects": [{"OTIO_SCHEMA": "Effect.1", "effect_name": "studio:Text"}])"));
  EXPECT_FALSE(isGraphic(bars, R"(, "effects": [{"OTIO_SCHEMA": "Effect.1", "effect_name": "Blur"}])"));
  EXPECT_TRUE(isGraphic(otio::File("a.mov", otio::Index(R"("graphic": true)"))));
  EXPECT_FALSE(isGraphic(otio::File("a.mov")));
}

TEST(Graphics, AFontIsListedOnceWhereItIsFirstNamed) {
  const std::string reference =
      otio::Item("GeneratorReference.1", "", R"(, "parameters": {"font": "B"})");
  const ClipDraft clip = otio::ReadOnly(
      otio::Clip("A", "10", otio::Media(reference) + otio::Index(R"("fonts": ["A", "B", "A", "C"])")));
  EXPECT_THAT(clip.components.at(0).fonts, ElementsAre("A", "B", "C"));
}

TEST(Graphics, FontsListedForANestedItemAreItsOwn) {
  const ClipDraft clip =
      otio::ReadOnly(otio::Stack({}, "Titles", otio::Index(R"("fonts": ["Serif One"])")));
  EXPECT_TRUE(clip.isGraphic);
  ASSERT_EQ(clip.components.size(), 1u);
  EXPECT_THAT(clip.components[0].fonts, ElementsAre("Serif One"));
}

TEST(Graphics, FontsInAnEffectsMetadataBelongToThatEffect) {
  const ClipDraft clip = WithEffect(
      R"({"OTIO_SCHEMA": "Effect.1", "name": "Burn in", "metadata": {"font_name": "Mono", "size": 3}})");
  ASSERT_EQ(clip.components.size(), 1u);
  EXPECT_THAT(clip.components[0].fonts, ElementsAre("Mono"));
  EXPECT_EQ(clip.components[0].matchName, ML::kMatchnameText);
  EXPECT_FALSE(clip.components[0].isIntrinsic);
}

TEST(Transitions, AreNamedByOurKeyThenNameThenWriterThenType) {
  const auto name = [](const std::string& members) {
    const auto result = otio::Read(otio::Timeline(
        {otio::Track({otio::Clip("A", "10"), R"({"OTIO_SCHEMA": "Transition.1")" + members + "}"})}));
    return result.document.sequences.at(0).tracks.at(0).items.at(0).clip->tailTransition->displayName;
  };
  const std::string type = R"(, "transition_type": "SMPTE_Dissolve")";
  const std::string writer =
      R"(, "metadata": {"Resolve_OTIO": {"Effects": {"Effect Name": "Cross Fade"}}})";
  EXPECT_EQ(name(type), "SMPTE_Dissolve");
  EXPECT_EQ(name(type + writer), "Cross Fade");
  EXPECT_EQ(name(type + writer + R"(, "name": "Named")"), "Named");
  EXPECT_EQ(name(type + R"(, "name": "Named")" + otio::Index(R"("display_name": "Ours")")), "Ours");
  EXPECT_EQ(name(""), "Transition");
}

TEST(Transitions, AreMissingWhereOurKeySaysSo) {
  const SequenceDraft sequence = fixtures::ReadSequence("everything_of_ours.otio");
  const auto tail = fixtures::Clip(sequence, 0, 0).tailTransition;
  ASSERT_TRUE(tail);
  EXPECT_TRUE(tail->isMissing);
  EXPECT_EQ(tail->displayName, "Shown cross");
}

TEST(PaddedTracks, TrailingGapsMakeNoRowsAndLocksAreRead) {
  const SequenceDraft sequence = fixtures::ReadSequence("builtin_panels.otio");
  EXPECT_EQ(sequence.name, "builtin_panels");
  EXPECT_EQ(sequence.tracks.at(0).items.size(), 1u);
  EXPECT_EQ(sequence.tracks.at(1).items.size(), 0u);
  EXPECT_EQ(sequence.tracks.at(2).items.size(), 1u);
  EXPECT_TRUE(sequence.tracks.at(0).isLocked);
  EXPECT_FALSE(sequence.tracks.at(2).isLocked);
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 0).isDisabled);
  EXPECT_EQ(fixtures::Clip(sequence, 2, 0).media.address, "/raid/lost/voice.wav");
}

}  // namespace
}  // namespace standalone
