#include "standalone/import/EffectsList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "import/OtioText.h"
#include "standalone/import/TimelineReader.h"
#include "support/Process.h"

namespace standalone {
namespace {

using testing::ElementsAre;

/// The names of a clip's components, with "!" behind those that are missing.
std::vector<std::string> ListComponents(const ClipDraft& clip) {
  std::vector<std::string> names;
  for (const ComponentDraft& component : clip.components) {
    names.push_back(component.displayName + (component.isMissing ? "!" : ""));
  }
  return names;
}

/// A document of one clip with these effects.
DocumentDraft MakeDocument(const std::vector<std::string>& effects) {
  const std::string clip = otio::Clip("A", "25", R"(, "effects": )" + otio::List(effects));
  return otio::Read(otio::Timeline({otio::Track({clip})})).document;
}

const ClipDraft& GetOnlyClip(const DocumentDraft& document) {
  return document.sequences.at(0).tracks.at(0).items.at(0).clip.value();
}

/// What becomes of a clip with these effects where only `list` is there.
std::vector<std::string> Judge(const std::vector<std::string>& effects, std::string_view list) {
  DocumentDraft document = MakeDocument(effects);
  MarkMissingEffects(document, ParseEffectsList(list));
  return ListComponents(GetOnlyClip(document));
}

std::string Effect(const std::string& name, const std::string& extra = "") {
  return otio::Item("Effect.1", name, extra);
}

std::string GetParseFailure(std::string_view text) {
  try {
    ParseEffectsList(text);
  } catch (const ImportError& error) {
    return std::to_string(error.GetLine()) + ": " + error.what();
  }
  return "none";
}

TEST(EffectsList, EveryLineThatIsNotEmptyNamesAnEffect) {
  const EffectsList list = ParseEffectsList("Blur\n\n \t \n  Colour Balance\t\nφίλτρο");
  EXPECT_EQ(list.Count(), 3U);
  EXPECT_TRUE(list.Names("Blur"));
  EXPECT_TRUE(list.Names("Colour Balance"));
  EXPECT_TRUE(list.Names("φίλτρο"));
  EXPECT_FALSE(list.Names(""));
}

TEST(EffectsList, AByteOrderMarkAndCarriageReturnsBelongToNoName) {
  const EffectsList list = ParseEffectsList(
      "\xEF\xBB\xBF"
      "Blur\r\n\r\nGlow\r\n");
  EXPECT_EQ(list.Count(), 2U);
  EXPECT_TRUE(list.Names("Blur"));
  EXPECT_TRUE(list.Names("Glow"));
}

TEST(EffectsList, NamesAreComparedExactly) {
  const EffectsList list = ParseEffectsList("Blur");
  EXPECT_FALSE(list.Names("blur"));
  EXPECT_FALSE(list.Names("Blur 2"));
  EXPECT_FALSE(list.Names("Blu"));
}

TEST(EffectsList, TextThatIsNoUTF8IsRefusedWithItsLine) {
  EXPECT_EQ(GetParseFailure("Blur\nGl\xF6w\n"), "2: The list is not valid UTF-8; save it as UTF-8.");
  EXPECT_EQ(GetParseFailure("\xFF\xFE"
                            "B"),
            "1: The list is not valid UTF-8; save it as UTF-8.");
}

TEST(EffectsList, AFileIsReadAndAnEmptyOneNamesNothing) {
  const process::Folder folder;
  process::WriteFile(folder / "effects.txt", "Blur\nGlow\n");
  process::WriteFile(folder / "empty.txt", "");
  EXPECT_EQ(ReadEffectsList(folder / "effects.txt").Count(), 2U);
  EXPECT_EQ(ReadEffectsList(folder / "empty.txt").Count(), 0U);
}

TEST(EffectsList, AFileThatIsNotThereOrNoFileIsRefused) {
  const process::Folder folder;
  const auto getFailure = [](const std::filesystem::path& file) -> std::string {
    try {
      ReadEffectsList(file);
    } catch (const ImportError& error) {
      return error.what();
    }
    return "none";
  };
  EXPECT_EQ(getFailure(folder / "none.txt"), "There is no such file; check the path.");
  EXPECT_EQ(getFailure(folder.GetPath()), "The list can't be read: Is a directory.");
}

TEST(MissingEffects, WithoutAListOnlyWhatTheTimelineCallsMissingIs) {
  const DocumentDraft document =
      MakeDocument({Effect("Blur"), Effect("Glow", otio::Index(R"("missing": true)"))});
  EXPECT_THAT(ListComponents(GetOnlyClip(document)), ElementsAre("Blur", "Glow!"));
}

TEST(MissingEffects, AnAddedEffectThatTheListDoesNotNameIsMissing) {
  EXPECT_THAT(Judge({Effect("Blur"), Effect("Glow"), Effect("blur")}, "Blur\n"),
              ElementsAre("Blur", "Glow!", "blur!"));
  EXPECT_THAT(Judge({Effect("Blur")}, ""), ElementsAre("Blur!"));
}

TEST(MissingEffects, WhatTheTimelineSaysCountsMoreThanTheList) {
  EXPECT_THAT(Judge({Effect("Blur", otio::Index(R"("missing": true)")),
                     Effect("Glow", otio::Index(R"("missing": false)"))},
                    "Blur\n"),
              ElementsAre("Blur!", "Glow"));
}

TEST(MissingEffects, IntrinsicEffectsAndTextsAreNotJudged) {
  EXPECT_THAT(Judge({Effect("Motion", otio::Index(R"("intrinsic": true)")),
                     Effect("Handwriting", R"(, "metadata": {"font_name": "DejaVu Sans"})")},
                    "Blur\n"),
              ElementsAre("Motion", "Handwriting"));
}

TEST(MissingEffects, TransitionsAreNotJudged) {
  DocumentDraft document =
      otio::Read(otio::Timeline({otio::Track(
                     {otio::Clip("A", "25"), otio::Transition("Dissolve"), otio::Clip("B", "25")})}))
          .document;
  MarkMissingEffects(document, EffectsList());
  ASSERT_TRUE(GetOnlyClip(document).tailTransition);
  EXPECT_FALSE(GetOnlyClip(document).tailTransition->isMissing);
}

TEST(MissingEffects, NestedSequencesAreJudgedToo) {
  const std::string inner =
      otio::Track({otio::Clip("Inner", "25", R"(, "effects": )" + otio::List({Effect("Glow")}))});
  DocumentDraft document =
      otio::Read(otio::Timeline({otio::Track({otio::Stack({inner}, "Nested")})})).document;
  MarkMissingEffects(document, ParseEffectsList("Blur"));
  ASSERT_EQ(document.sequences.size(), 2U);
  EXPECT_THAT(ListComponents(document.sequences[1].tracks.at(0).items.at(0).clip.value()),
              ElementsAre("Glow!"));
}

}  // namespace
}  // namespace standalone
