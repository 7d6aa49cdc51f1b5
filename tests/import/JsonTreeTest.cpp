#include "standalone/import/JsonTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace standalone {
namespace {

class Parsed {
 public:
  explicit Parsed(const std::string& text) : tree(text, {}, 1) {}
  JsonValue operator[](JsonKey key) const { return tree.GetRoot()[key]; }
  const JsonTree tree;
};

std::string ErrorOf(const std::string& text) {
  try {
    Parsed parsed(text);
  } catch (const ImportError& error) {
    return std::to_string(error.GetLine()) + ": " + error.what();
  }
  return "none";
}

TEST(JsonTrees, KeepWantedMembersAndDropOthers) {
  const Parsed parsed(
      R"({"studio": {"name": "no", "deep": [[1], {"name": 2}]}, "name": "yes", "x": 1})");
  EXPECT_EQ(parsed[JsonKey::kName].GetText(), "yes");
  EXPECT_EQ(parsed.tree.GetNodeCount(), 2u);
}

TEST(JsonTrees, NumbersKeepTheirDigits) {
  const Parsed parsed(
      R"({"value": 170141183460469231731687303715884105728, "rate": 23.976023976023978})");
  EXPECT_EQ(parsed[JsonKey::kValue].GetNumber(), "170141183460469231731687303715884105728");
  EXPECT_EQ(parsed[JsonKey::kRate].GetNumber(), "23.976023976023978");
}

TEST(JsonTrees, NaNAndInfinitiesAreNumbers) {
  for (const char* number : {"NaN", "Inf", "Infinity", "-Inf", "-Infinity"}) {
    const Parsed parsed(R"({"value": )" + std::string(number) + "}");
    EXPECT_EQ(parsed[JsonKey::kValue].GetNumber(), number);
  }
}

TEST(JsonTrees, TextsAreDecoded) {
  const Parsed parsed(R"({"name": "tab\tquote\" \u00fc \ud83c\udfac", "kind": "plain"})");
  EXPECT_EQ(parsed[JsonKey::kName].GetText(), "tab\tquote\" \u00fc \U0001F3AC");
  EXPECT_EQ(parsed[JsonKey::kKind].GetText(), "plain");
}

TEST(JsonTrees, HalfASurrogatePairBecomesAReplacementCharacter) {
  const auto name = [](const std::string& text) {
    return Parsed("{\"name\": \"" + text + "\"}")[JsonKey::kName].GetString();
  };
  EXPECT_EQ(name(R"(a\udc00b)"), "a\uFFFDb");
  EXPECT_EQ(name(R"(a\ud83cb)"), "a\uFFFDb");
  EXPECT_EQ(name(R"(\uD83C)"), "\uFFFD");
  EXPECT_EQ(name(R"(\ud83c\ud83c\udfac)"), "\uFFFD\U0001F3AC");
  EXPECT_EQ(name(R"(\ud83c\n\udfac)"), "\uFFFD\n\uFFFD");
  EXPECT_EQ(name(R"(\\ud83c \\\ud83c)"), "\\ud83c \\\uFFFD");
}

TEST(JsonTrees, ANameThatDiffersInOneLetterIsAnotherOne) {
  const std::pair<std::string, JsonKey> names[] = {
      {"r", JsonKey::kRed},
      {"name", JsonKey::kName},
      {"enabled", JsonKey::kEnabled},
      {"metadata", JsonKey::kMetadata},
      {"source_range", JsonKey::kSourceRange},
      {"media_references", JsonKey::kMediaReferences},
      {"active_media_reference_key", JsonKey::kActiveMediaReferenceKey}};
  for (const auto& [name, key] : names) {
    EXPECT_TRUE(Parsed("{\"" + name + "\": 1}")[key].HasValue()) << name;
    for (std::size_t i = 0; i < name.size(); ++i) {
      // Other letters, one of which may lead to the same place among the names.
      for (int letter = ' '; letter <= '~'; ++letter) {
        std::string other = name;
        other[i] = static_cast<char>(letter);
        if (other == name || letter == '"' || letter == '\\') continue;
        EXPECT_FALSE(Parsed("{\"" + other + "\": 1}")[key].HasValue()) << other;
      }
    }
  }
}

TEST(JsonTrees, EveryMemberMayStandOnceInAnObject) {
  const std::vector<std::string> names = {"name",
                                          "frame_rate",
                                          "audio_rate",
                                          "drop_frame",
                                          "time_display",
                                          "muted",
                                          "locked",
                                          "label_color",
                                          "label_name",
                                          "comment",
                                          "description",
                                          "tape",
                                          "source_clip_name",
                                          "video_info",
                                          "adjustment",
                                          "multicam",
                                          "is_multicam",
                                          "camera",
                                          "angles",
                                          "fonts",
                                          "missing",
                                          "intrinsic",
                                          "display_name",
                                          "codec",
                                          "fourcc",
                                          "width",
                                          "height",
                                          "pixel_aspect",
                                          "still",
                                          "synthetic",
                                          "graphic",
                                          "offline",
                                          "offline_reason",
                                          "status",
                                          "proxy",
                                          "Locked",
                                          "Media Url",
                                          "Effect Name",
                                          "Effects",
                                          "reel",
                                          "comments",
                                          "labels",
                                          "label2",
                                          "mastercomment1",
                                          "logginginfo",
                                          "file",
                                          "timecode",
                                          "note"};
  const auto countRepeats = [&](const std::string& more) {
    std::string members;
    for (const std::string& name : names) members += "\"" + name + "\": 1, ";
    const Parsed parsed("{\"metadata\": {\"sequence_index\": {" + members + more + "}}}");
    return parsed.tree.GetRepairs().repeatedMembers;
  };
  EXPECT_EQ(countRepeats("\"other\": 1"), 0u);
  for (const std::string& name : names) EXPECT_EQ(countRepeats("\"" + name + "\": 1"), 1u) << name;
}

TEST(JsonTrees, AFontMayGoBySeveralNames) {
  const Parsed parsed(R"({"parameters": {"font": "A", "fontname": "B", "text": "C", "text": "D"}})");
  EXPECT_EQ(parsed.tree.GetRepairs().repeatedMembers, 1u);
}

TEST(JsonTrees, AnyNumberOfBlanksMayStandBetweenTokens) {
  for (const char* before : {"", "\n", "\t", " \r\n", "\n\n "}) {
    for (std::size_t count = 0; count <= 70; ++count) {
      const std::string blanks = before + std::string(count, ' ');
      std::string text;
      for (const char* token : {"{", "\"name\"", ":", "\" a  b \"", ",", "\"tracks\"", ":", "[", "1",
                                ",", "true", "]", "}"}) {
        text += blanks + token;
      }
      const Parsed parsed(text + blanks);
      ASSERT_EQ(parsed[JsonKey::kName].GetText(), " a  b ") << text;
      std::string elements;
      for (const JsonValue element : parsed[JsonKey::kTracks]) {
        elements += std::string(element.GetNumber()) + (element.GetBool() ? "yes" : ",");
      }
      ASSERT_EQ(elements, "1,yes") << text;
    }
  }
}

TEST(JsonTrees, MembersOfFreeNamesKeepTheirNames) {
  const Parsed parsed(R"({"media_references": {"A": {"name": "a"}, "B": null, "C": 1}, "name": "n"})");
  std::vector<std::string> names;
  for (const JsonValue member : parsed[JsonKey::kMediaReferences]) {
    names.emplace_back(member.GetMemberName());
  }
  EXPECT_EQ(names, (std::vector<std::string>{"A", "B", "C"}));
  EXPECT_EQ(parsed[JsonKey::kName].GetText(), "n");
}

TEST(JsonTrees, AnObjectHasTheMembersThatItIsWrittenWithAndNoOthers) {
  const Parsed parsed(R"({"name": "yes", "tracks": {"duration": 2}, "enabled": true})");
  const auto expectOnly = [](JsonValue object, const std::vector<JsonKey>& members) {
    for (int i = static_cast<int>(JsonKey::kSchema); i < static_cast<int>(JsonKey::kCount); ++i) {
      const auto key = static_cast<JsonKey>(i);
      const bool isMember = std::find(members.begin(), members.end(), key) != members.end();
      EXPECT_EQ(object[key].HasValue(), isMember) << i;
    }
  };
  expectOnly(parsed.tree.GetRoot(), {JsonKey::kName, JsonKey::kTracks, JsonKey::kEnabled});
  expectOnly(parsed[JsonKey::kTracks], {JsonKey::kDuration});
  expectOnly(parsed[JsonKey::kName], {});
}

/// Short and long ones, ones that begin or end alike, of every size in which texts are compared.
TEST(JsonTrees, TextsThatRepeatOrAlmostRepeatTheLastOneOfTheirNameAreTold) {
  std::vector<std::string> texts = {"", "", "a", "b", "a"};
  for (std::size_t size = 1; size < 40; ++size) {
    const std::string text(size, 'x');
    texts.insert(texts.end(), {text, text});
    for (const std::size_t changed : {std::size_t{0}, size / 2, size - 1}) {
      std::string other = text;
      other[changed] = 'y';
      texts.insert(texts.end(), {other, other, text});
    }
  }
  std::string objects;
  for (const std::string& text : texts) {
    objects += R"({"kind": "Video", "name": ")" + text + R"(", "children": [")" + text + R"(", ")" +
               text + "\"]},";
  }
  const Parsed parsed(R"({"children": [)" + objects + "0]}");
  std::size_t at = 0;
  for (const JsonValue object : parsed[JsonKey::kChildren]) {
    if (at == texts.size()) break;
    const std::string& text = texts[at++];
    EXPECT_EQ(object[JsonKey::kName].GetText(), text);
    EXPECT_EQ(object[JsonKey::kKind].GetText(), "Video");
    for (const JsonValue element : object[JsonKey::kChildren]) EXPECT_EQ(element.GetText(), text);
  }
  EXPECT_EQ(at, texts.size());
}

TEST(JsonTrees, ATextThatRepeatsTheLastOneOfItsNameIsKeptOnce) {
  const Parsed parsed(R"({"tracks": {"kind": "a"}, "effects": {"kind": "a", "name": "a"}})");
  const char* const first = parsed[JsonKey::kTracks][JsonKey::kKind].GetText().data();
  EXPECT_EQ(parsed[JsonKey::kEffects][JsonKey::kKind].GetText().data(), first);
  EXPECT_NE(parsed[JsonKey::kEffects][JsonKey::kName].GetText().data(), first);
}

TEST(JsonTrees, AnArrayTellsItsElementsAndTheirNumber) {
  const Parsed parsed(R"({"children": [1, [2, 3], {"name": "a", "studio": [4]}, null], "effects": [],
                          "markers": [{"name": 1}, {}], "tracks": {"name": "b", "kind": "c"}})");
  const JsonValues elements = parsed[JsonKey::kChildren].GetElements();
  EXPECT_EQ(elements.Count(), 4u);
  std::vector<std::size_t> inner;
  for (const JsonValue element : elements) inner.push_back(element.GetElements().Count());
  EXPECT_EQ(inner, (std::vector<std::size_t>{0, 2, 0, 0}));
  EXPECT_EQ(parsed[JsonKey::kEffects].GetElements().Count(), 0u);
  EXPECT_EQ(parsed[JsonKey::kMarkers].GetElements().Count(), 2u);
  // Its elements are counted in place of its members.
  for (int i = static_cast<int>(JsonKey::kSchema); i < static_cast<int>(JsonKey::kCount); ++i) {
    EXPECT_FALSE(parsed[JsonKey::kChildren][static_cast<JsonKey>(i)].HasValue()) << i;
  }
  for (const JsonKey key : {JsonKey::kTracks, JsonKey::kName, JsonKey::kEffects}) {
    const JsonValues none = parsed[key].GetElements();
    EXPECT_EQ(none.Count(), 0u);
    EXPECT_FALSE(none.begin() != none.end());
  }
}

TEST(JsonTrees, AValueAloneIsAListOfOne) {
  const Parsed parsed(R"({"children": [{"name": "a", "effects": [1, 2]}, 5]})");
  const JsonValue item = *parsed[JsonKey::kChildren].begin();
  std::vector<std::uint32_t> indexes;
  for (const JsonValue alone : item.GetAlone()) indexes.push_back(alone.GetIndex());
  EXPECT_EQ(indexes, std::vector<std::uint32_t>{item.GetIndex()});
  EXPECT_EQ(item.GetAlone().Count(), 1u);
  EXPECT_EQ(parsed[JsonKey::kName].GetAlone().Count(), 0u);
}

TEST(JsonTrees, ArraysAtTheTopAndBelowFreeNamesTellTheirElements) {
  EXPECT_EQ(Parsed("[1, 2, 3]").tree.GetRoot().GetElements().Count(), 3u);
  const Parsed parsed(R"({"media_references": {"A": [1, 2], "B": [], "C": {"effects": [1]}}})");
  std::vector<std::size_t> counts;
  for (const JsonValue member : parsed[JsonKey::kMediaReferences]) {
    counts.push_back(member.GetElements().Count());
  }
  EXPECT_EQ(counts, (std::vector<std::size_t>{2, 0, 0}));
}

TEST(JsonTrees, MissingValuesAnswerEverything) {
  const Parsed parsed(R"({"name": 5})");
  const JsonValue missing = parsed[JsonKey::kTracks][JsonKey::kChildren];
  EXPECT_FALSE(missing.HasValue());
  EXPECT_EQ(missing.GetText(), "");
  EXPECT_EQ(missing.GetLine(), 0u);
  EXPECT_FALSE(missing.GetBool());
  EXPECT_FALSE(missing.begin() != missing.end());
  EXPECT_EQ(parsed[JsonKey::kName].GetText(), "");
}

TEST(JsonTrees, ValuesKnowTheirLine) {
  const Parsed parsed("{\n\"name\": \"a\\nb\",\n\n\"tracks\": {\n\"kind\": 1}}");
  EXPECT_EQ(parsed.tree.GetRoot().GetLine(), 1u);
  EXPECT_EQ(parsed[JsonKey::kTracks].GetLine(), 4u);
  EXPECT_EQ(parsed[JsonKey::kTracks][JsonKey::kKind].GetLine(), 5u);
}

TEST(JsonTrees, AByteOrderMarkIsSkipped) {
  EXPECT_EQ(Parsed("\xEF\xBB\xBF{\"name\": \"x\"}")[JsonKey::kName].GetText(), "x");
}

TEST(JsonTrees, ErrorsNameLineAndRemedy) {
  EXPECT_EQ(ErrorOf("{\n\"name\": \"a\""),
            "2: The file ends in the middle; it is not complete: export or copy it again.");
  EXPECT_EQ(ErrorOf("{\n\n\"name\": \"abc"),
            "3: The file ends in the middle; it is not complete: export or copy it again.");
  EXPECT_EQ(ErrorOf("{\"value\": 12"),
            "1: The file ends in the middle; it is not complete: export or copy it again.");
  EXPECT_EQ(ErrorOf("{\"name\": \"a\\nb\",\n\"kind\" 1}"),
            "2: This is not valid JSON; export the timeline again.");
  EXPECT_EQ(ErrorOf("{\n\"x\": \"\xFF\"}"), "2: The text is not valid UTF-8; save the file as UTF-8.");
  EXPECT_EQ(ErrorOf("{}\n{}"), "2: There is more text behind the end of the timeline; remove it.");
  EXPECT_EQ(ErrorOf("{\n\"x\": \"\\ud8zz\"}"), "2: This is not valid JSON; export the timeline again.");
  EXPECT_EQ(ErrorOf("{\n\"x\": 1e999}"), "2: A number is too big to be read; correct it.");
}

TEST(JsonTrees, ZeroBytesPadTheEndAndNothingStandsBehindThem) {
  const std::string padding(5, '\0');
  EXPECT_EQ(ErrorOf("{}\n" + padding + "\n"), "none");
  EXPECT_EQ(ErrorOf("{}\n" + padding + "{}"),
            "2: There is more text behind the end of the timeline; remove it.");
}

TEST(JsonTrees, NestingOfAnyDepthIsParsedWithoutTheCallStack) {
  const std::string open(300000, '[');
  const std::string close(300000, ']');
  EXPECT_EQ(Parsed(R"({"name": "n", "children": )" + open + close + "}")[JsonKey::kName].GetText(),
            "n");
  EXPECT_EQ(Parsed(R"({"studio": )" + open + close + R"(, "name": "n"})")[JsonKey::kName].GetText(),
            "n");
}

TEST(JsonTrees, CancellingEndsTheParse) {
  ImportProgress progress;
  progress.isCancelled = [] { return true; };
  EXPECT_THROW(JsonTree("{\"name\": 1}", progress, 1), ImportError);
}

}  // namespace
}  // namespace standalone
