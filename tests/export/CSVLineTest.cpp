#include "export/CSVLine.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "export/CSVFormat.h"

namespace Vantrel {
namespace {

TEST(CSVLine, FieldsAreSeparatedByCommasAndEndedByALineFeed) {
  CSVLine line(3);
  char* next = CSVLine::AddComma(line.AddField(line.Begin(), "a"), true);
  next = CSVLine::AddComma(line.AddField(next, "b,c"), true);
  next = CSVLine::AddComma(line.AddField(next, ""), false);
  EXPECT_EQ(line.End(next), "a,\"b,c\",\n");
}

TEST(CSVLine, AReadyFieldIsAddedAsItIs) {
  CSVLine line(3);
  TextArena kept;
  ShortField field;
  ASSERT_TRUE(field.Set("1,2"));
  char* next = CSVLine::AddReadyField(line.Begin(), field);
  next = line.AddKeptField(CSVLine::AddComma(next, true), kept.Add("\"a,b\""));
  EXPECT_EQ(line.End(next), "1,2,\"a,b\"\n");
}

TEST(CSVLine, WhatWasAddedSinceIsTold) {
  CSVLine line(3);
  char* next = line.AddField(line.Begin(), "a");
  const std::size_t begin = line.CountBytes(next);
  next = line.AddField(next, "b,c");
  EXPECT_EQ(line.GetFrom(begin, next), "\"b,c\"");
}

TEST(CSVLine, ALineWithoutFieldsIsEmpty) {
  CSVLine line(3);
  EXPECT_EQ(line.End(line.Begin()), "\n");
}

TEST(CSVLine, AsManyShortFieldsAsWereToldHaveRoom) {
  constexpr std::size_t kFields = 40;
  CSVLine line(kFields);
  ShortField field;
  const std::string longest(ShortField::kRoom, 'a');
  ASSERT_TRUE(field.Set(longest));
  for (const std::string text : {"", "b", "a much longer field than the room of a short one"}) {
    std::string expected;
    char* next = line.Begin();
    for (std::size_t i = 0; i + 1 < kFields; ++i) {
      next = CSVLine::AddComma(CSVLine::AddReadyField(next, field), true);
      expected += longest + ",";
    }
    next = line.AddField(next, text);
    EXPECT_EQ(line.End(next), expected + text + "\n");
  }
}

TEST(CSVLine, ALineBeginsWhereTheOneBeforeBegan) {
  CSVLine line(3);
  line.End(line.AddField(line.Begin(), "a much longer first line"));
  EXPECT_EQ(line.End(line.AddField(line.Begin(), "b")), "b\n");
}

/// Of every length in which a text is copied in another way, and of some for which a line has to grow.
TEST(CSVLine, FieldsOfEveryLengthAreWrittenByteForByte) {
  CSVLine line(1000);
  std::string expected;
  char* next = line.Begin();
  for (std::size_t length = 0; length < 3000; length = length < 70 ? length + 1 : 2 * length) {
    for (const char last : {'z', ',', '"', '\n'}) {
      std::string text(length, 'a');
      for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<char>('a' + i % 26);
      if (length > 0) text.back() = last;
      next = CSVLine::AddComma(line.AddField(next, text), true);
      expected.append(QuoteCSVField(qelcore::UTF8String(text)).View()).append(",");
    }
  }
  EXPECT_EQ(line.End(next), expected + "\n");
}

TEST(CSVLine, KeptFieldsOfEveryLengthAreWrittenByteForByte) {
  CSVLine line(200);
  TextArena kept;
  std::string expected;
  char* next = line.Begin();
  for (std::size_t length = 0; length < 200; ++length) {
    const std::string text(length, static_cast<char>('a' + length % 26));
    next = CSVLine::AddComma(line.AddKeptField(next, kept.Add(text)), true);
    expected += text + ",";
  }
  EXPECT_EQ(line.End(next), expected + "\n");
}

TEST(CSVLine, AFieldThatGrowsByItsQuotesHasRoom) {
  for (std::size_t length = 1; length < 5000; length += 7) {
    CSVLine line(1);
    const std::string text(length, '"');
    EXPECT_EQ(line.End(line.AddField(line.Begin(), text)), "\"" + text + text + "\"\n") << length;
  }
}

TEST(CSVLine, DoubleQuotesAreDoubledWhereverTheyStand) {
  for (const std::string text : {"\"", "\"a", "a\"", "a\"b", "\"\"", "a\"\"b,\"c", "\"a\""}) {
    CSVLine line(1);
    const std::string expected(QuoteCSVField(qelcore::UTF8String(text)).View());
    EXPECT_EQ(line.End(line.AddField(line.Begin(), text)), expected + "\n") << text;
  }
}

}  // namespace
}  // namespace Vantrel
