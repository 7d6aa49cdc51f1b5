#include "export/CSVLines.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "export/CSVFormat.h"

namespace Vantrel {
namespace {

/// All lines, the one that ends there the last of them.
std::string_view Text(CSVLines& lines, char* next) {
  const char* const end = lines.End(next);
  return lines.GetFrom(0, end);
}

TEST(CSVLines, FieldsAreSeparatedByCommasAndEndedByALineFeed) {
  CSVLines lines(3);
  char* next = CSVLines::AddComma(lines.AddField(lines.Begin(), "a"), true);
  next = CSVLines::AddComma(lines.AddField(next, "b,c"), true);
  next = CSVLines::AddComma(lines.AddField(next, ""), false);
  EXPECT_EQ(Text(lines, next), "a,\"b,c\",\n");
}

TEST(CSVLines, AReadyFieldIsAddedAsItIs) {
  CSVLines lines(3);
  TextArena kept;
  ShortField field;
  ASSERT_TRUE(field.Set("1,2"));
  char* next = CSVLines::AddReadyField(lines.Begin(), field);
  next = lines.AddKeptField(CSVLines::AddComma(next, true), kept.Add("\"a,b\""));
  EXPECT_EQ(Text(lines, next), "1,2,\"a,b\"\n");
}

TEST(CSVLines, WhatWasAddedSinceIsTold) {
  CSVLines lines(3);
  char* next = lines.AddField(lines.Begin(), "a");
  const std::size_t begin = lines.CountBytes(next);
  next = lines.AddField(next, "b,c");
  EXPECT_EQ(lines.GetFrom(begin, next), "\"b,c\"");
}

TEST(CSVLines, WhatWasAddedIsToldWhereTheLinesGrewMeanwhile) {
  const std::string text(5000, 'a');
  CSVLines lines(1);
  char* next = lines.AddField(lines.Begin(), "before");
  const std::size_t begin = lines.CountBytes(next);
  next = lines.AddField(next, text);
  EXPECT_EQ(lines.GetFrom(begin, next), text);
  EXPECT_EQ(lines.GetFrom(0, next), "before" + text);
}

TEST(CSVLines, ALineWithoutFieldsIsEmpty) {
  CSVLines lines(3);
  EXPECT_EQ(Text(lines, lines.Begin()), "\n");
}

TEST(CSVLines, AsManyShortFieldsAsWereToldHaveRoom) {
  constexpr std::size_t kFields = 40;
  CSVLines lines(kFields);
  ShortField field;
  const std::string longest(ShortField::kRoom, 'a');
  ASSERT_TRUE(field.Set(longest));
  for (const std::string text : {"", "b", "a much longer field than the room of a short one"}) {
    std::string expected;
    char* next = lines.Begin();
    for (std::size_t i = 0; i + 1 < kFields; ++i) {
      next = CSVLines::AddComma(CSVLines::AddReadyField(next, field), true);
      expected += longest + ",";
    }
    next = lines.AddField(next, text);
    EXPECT_EQ(Text(lines, next), expected + text + "\n");
  }
}

TEST(CSVLines, FirstLinesBeginWhereTheOnesBeforeBegan) {
  CSVLines lines(3);
  lines.End(lines.AddField(lines.Begin(), "a much longer first line"));
  EXPECT_EQ(Text(lines, lines.AddField(lines.Begin(), "b")), "b\n");
}

TEST(CSVLines, EachOfManyLinesHasRoomForItsShortFields) {
  constexpr std::size_t kFields = 5;
  CSVLines lines(kFields);
  ShortField field;
  ASSERT_TRUE(field.Set(std::string(ShortField::kRoom, 'a')));
  std::string expected;
  char* next = lines.Begin();
  for (std::size_t line = 0; line < 1000; ++line) {
    for (std::size_t i = 0; i + 1 < kFields; ++i) {
      next = CSVLines::AddComma(CSVLines::AddReadyField(next, field), true);
      expected.append(ShortField::kRoom, 'a').append(",");
    }
    // Grows in the middle of a line, too.
    const std::string text(line % 100, 'b');
    next = lines.AddField(next, text);
    expected += text;
    next = lines.End(next);
    expected += "\n";
  }
  EXPECT_EQ(lines.GetFrom(0, next), expected);
}

/// Of every length in which a text is copied in another way, and of some for which a line has to grow.
TEST(CSVLines, FieldsOfEveryLengthAreWrittenByteForByte) {
  CSVLines lines(1000);
  std::string expected;
  char* next = lines.Begin();
  for (std::size_t length = 0; length < 3000; length = length < 70 ? length + 1 : 2 * length) {
    for (const char last : {'z', ',', '"', '\n'}) {
      std::string text(length, 'a');
      for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<char>('a' + i % 26);
      if (length > 0) text.back() = last;
      next = CSVLines::AddComma(lines.AddField(next, text), true);
      expected.append(QuoteCSVField(qelcore::UTF8String(text)).View()).append(",");
    }
  }
  EXPECT_EQ(Text(lines, next), expected + "\n");
}

TEST(CSVLines, KeptFieldsOfEveryLengthAreWrittenByteForByte) {
  CSVLines lines(200);
  TextArena kept;
  std::string expected;
  char* next = lines.Begin();
  for (std::size_t length = 0; length < 200; ++length) {
    const std::string text(length, static_cast<char>('a' + length % 26));
    next = CSVLines::AddComma(lines.AddKeptField(next, kept.Add(text)), true);
    expected += text + ",";
  }
  EXPECT_EQ(Text(lines, next), expected + "\n");
}

TEST(CSVLines, AFieldThatGrowsByItsQuotesHasRoom) {
  for (std::size_t length = 1; length < 5000; length += 7) {
    CSVLines lines(1);
    const std::string text(length, '"');
    EXPECT_EQ(Text(lines, lines.AddField(lines.Begin(), text)), "\"" + text + text + "\"\n") << length;
    CSVLines others(1);
    const std::string commas(length, ',');
    EXPECT_EQ(Text(others, others.AddField(others.Begin(), commas)), "\"" + commas + "\"\n") << length;
  }
}

TEST(CSVLines, DoubleQuotesAreDoubledWhereverTheyStand) {
  for (const std::string text : {"\"", "\"a", "a\"", "a\"b", "\"\"", "a\"\"b,\"c", "\"a\""}) {
    CSVLines lines(1);
    const std::string expected(QuoteCSVField(qelcore::UTF8String(text)).View());
    EXPECT_EQ(Text(lines, lines.AddField(lines.Begin(), text)), expected + "\n") << text;
  }
}

}  // namespace
}  // namespace Vantrel
