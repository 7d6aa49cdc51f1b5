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
  line.AddField("a");
  line.AddComma();
  line.AddField("b,c");
  line.AddComma();
  line.AddField("");
  EXPECT_EQ(line.End(), "a,\"b,c\",\n");
}

TEST(CSVLine, AReadyFieldIsAddedAsItIs) {
  CSVLine line(3);
  line.AddReadyField(std::string_view("\"a,b\""));
  line.AddComma();
  ShortField field;
  ASSERT_TRUE(field.Set("1,2"));
  line.AddReadyField(field);
  EXPECT_EQ(line.End(), "\"a,b\",1,2\n");
}

TEST(CSVLine, WhatWasAddedSinceIsTold) {
  CSVLine line(3);
  line.AddField("a");
  const std::size_t begin = line.GetSize();
  line.AddField("b,c");
  EXPECT_EQ(line.GetFrom(begin), "\"b,c\"");
}

TEST(CSVLine, ALineWithoutFieldsIsEmpty) {
  CSVLine line(3);
  EXPECT_EQ(line.End(), "\n");
}

TEST(CSVLine, AsManyShortFieldsAsWereToldHaveRoom) {
  constexpr std::size_t kFields = 40;
  CSVLine line(kFields);
  ShortField field;
  const std::string longest(ShortField::kRoom, 'a');
  ASSERT_TRUE(field.Set(longest));
  for (const std::string text : {"", "b", "a much longer field than the room of a short one"}) {
    std::string expected;
    for (std::size_t i = 0; i + 1 < kFields; ++i) {
      line.AddReadyField(field);
      line.AddComma();
      expected += longest + ",";
    }
    line.AddField(text);
    EXPECT_EQ(line.End(), expected + text + "\n");
  }
}

TEST(CSVLine, ALineBeginsWhereTheOneBeforeEnded) {
  CSVLine line(3);
  line.AddField("a much longer first line");
  line.End();
  line.AddField("b");
  EXPECT_EQ(line.End(), "b\n");
}

/// Of every length in which a text is copied in another way, and of some for which a line has to grow.
TEST(CSVLine, FieldsOfEveryLengthAreWrittenByteForByte) {
  CSVLine line(1000);
  std::string expected;
  for (std::size_t length = 0; length < 3000; length = length < 70 ? length + 1 : 2 * length) {
    for (const char last : {'z', ',', '"', '\n'}) {
      std::string text(length, 'a');
      for (std::size_t i = 0; i < length; ++i) text[i] = static_cast<char>('a' + i % 26);
      if (length > 0) text.back() = last;
      line.AddField(text);
      line.AddComma();
      expected.append(QuoteCSVField(qelcore::UTF8String(text)).View()).append(",");
    }
  }
  EXPECT_EQ(line.End(), expected + "\n");
}

TEST(CSVLine, AFieldThatGrowsByItsQuotesHasRoom) {
  for (std::size_t length = 1; length < 5000; length += 7) {
    CSVLine line(1);
    const std::string text(length, '"');
    line.AddField(text);
    EXPECT_EQ(line.End(), "\"" + text + text + "\"\n") << length;
  }
}

}  // namespace
}  // namespace Vantrel
