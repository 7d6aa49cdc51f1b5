#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "standalone/import/JsonTree.h"

/// A text is read in blocks. Wherever one ends, the tree is that of the whole text.
namespace standalone {
namespace {

/// As the parser reads them.
constexpr std::size_t kBlockSize = std::size_t{1} << 18;

std::string ErrorOf(const std::string& text) {
  try {
    const JsonTree tree(text, {}, 1);
  } catch (const ImportError& error) {
    return std::to_string(error.GetLine()) + ": " + error.what();
  }
  return "none";
}

/// Elements that nobody reads, longer than two blocks, on ten lines.
std::string MakeLongList() {
  std::string list = "[1";
  for (int i = 0; i < 10; ++i) list += ",\n" + std::string(kBlockSize / 4, ' ') + "\"x\"";
  return list + "]";
}

TEST(JsonWindows, ATokenAcrossTheEndOfABlockIsReadWhole) {
  const std::string members =
      R"("name": "a\ud83c\udfac\u00fc)"
      "\u00fc\U0001F3AC"
      R"(\"plain text of some length", "value": -1234567.890625, "enabled": true, "color": null,)"
      "\n"
      R"("kind": "\udc00 half", "rate": 25})";
  for (std::size_t shift = 0; shift < members.size() + 70; ++shift) {
    const JsonTree tree("{" + std::string(kBlockSize - shift, ' ') + members, {}, 1);
    const JsonValue root = tree.GetRoot();
    ASSERT_EQ(root[JsonKey::kName].GetText(),
              "a\U0001F3AC\u00fc\u00fc\U0001F3AC\"plain text of some length")
        << shift;
    ASSERT_EQ(root[JsonKey::kValue].GetNumber(), "-1234567.890625") << shift;
    ASSERT_EQ(root[JsonKey::kEnabled].GetBool(), true) << shift;
    ASSERT_EQ(root[JsonKey::kColor].GetType(), JsonValue::Type::kNull) << shift;
    ASSERT_EQ(root[JsonKey::kKind].GetText(), "\uFFFD half") << shift;
    ASSERT_EQ(root[JsonKey::kRate].GetNumber(), "25") << shift;
    ASSERT_EQ(root[JsonKey::kRate].GetLine(), 2u) << shift;
    ASSERT_EQ(tree.GetRepairs().brokenCharacters, 1u) << shift;
    ASSERT_EQ(tree.GetRepairs().brokenCharacterLine, 2u) << shift;
  }
}

TEST(JsonWindows, AStringLongerThanSeveralBlocksIsReadWhole) {
  std::string written;
  std::string expected;
  for (std::size_t i = 0; i < kBlockSize / 4; ++i) {
    written += R"(\u65e5\n\"plain )";
    expected += "\u65e5\n\"plain ";
  }
  const JsonTree tree("{\"name\": \"" + written + "\", \"kind\": \"last\"}", {}, 1);
  EXPECT_TRUE(tree.GetRoot()[JsonKey::kName].GetText() == expected);
  EXPECT_EQ(tree.GetRoot()[JsonKey::kKind].GetText(), "last");
}

TEST(JsonWindows, ManyEscapesInARowAreReadWhole) {
  std::string written;
  for (std::size_t i = 0; i < kBlockSize; ++i) written += R"(\u00fc)";
  const JsonTree tree("{\"name\": \"" + written + "\"}", {}, 1);
  EXPECT_EQ(tree.GetRoot()[JsonKey::kName].GetText().size(), 2 * kBlockSize);
}

TEST(JsonWindows, NamesThatAreToldAboutOutliveTheirBlock) {
  const std::string list = MakeLongList();
  const JsonTree tree("{\"metadata\": {\"studio\": " + list + ", \"sequence_index\": {\"comment\": \"" +
                          std::string(2 * kBlockSize, 'c') + "\", \"other\": " + list +
                          "}}, \"name\": 1, \"name\": 2, \"markers\": " + list + "}",
                      {}, 1);
  ASSERT_EQ(tree.GetUnreadMetadata().size(), 2u);
  EXPECT_EQ(tree.GetUnreadMetadata()[0].name, "studio");
  EXPECT_EQ(tree.GetUnreadMetadata()[1].name, "sequence_index");
  EXPECT_EQ(tree.GetRepairs().repeatedMemberName, "name");
  EXPECT_EQ(tree.GetRepairs().repeatedMemberLine, 21u);
}

TEST(JsonWindows, ErrorsBehindTheFirstBlockHaveTheirLine) {
  const std::string list = MakeLongList();
  EXPECT_EQ(ErrorOf("{\"x\": " + list + ",\n nonsense}"),
            "12: This is not valid JSON; export the timeline again.");
  EXPECT_EQ(ErrorOf("{\"x\": " + list + ",\n\"name\": \"\xFF\"}"),
            "12: The text is not valid UTF-8; save the file as UTF-8.");
  EXPECT_EQ(ErrorOf("{\"x\": " + list + ",\n\"name\": \"cut"),
            "12: The file ends in the middle; it is not complete: export or copy it again.");
}

TEST(JsonWindows, PaddingOfSeveralBlocksIsNoText) {
  const std::string padding(3 * kBlockSize, '\0');
  EXPECT_EQ(ErrorOf("{}" + padding), "none");
  EXPECT_EQ(ErrorOf("{}" + padding + "x"),
            "1: There is more text behind the end of the timeline; remove it.");
}

}  // namespace
}  // namespace standalone
