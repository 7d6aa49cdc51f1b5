#include "export/CSVFormat.h"

#include <gmock/gmock.h>

#include <clocale>
#include <limits>
#include <locale>
#include <string>
#include <string_view>

#include "host/qelcore/Exceptions.h"
#include "support/CollectedRows.h"
#include "support/Csv.h"
#include "support/Drafts.h"

namespace Vantrel {
namespace {

using qelcore::UTF8String;
using testing::ElementsAre;

std::string Quoted(std::string_view text) {
  return std::string(QuoteCSVField(UTF8String(text)).View());
}

TEST(QuoteCSVField, APlainTextIsWrittenAsItIs) {
  for (const std::string_view text :
       {"", "A", "  blanks  ", "a;b", "'a'", "=1+1", "a\rb", "\r", "\t", "\xC3\x84", "#"}) {
    EXPECT_EQ(Quoted(text), text);
  }
}

TEST(QuoteCSVField, APlainTextIsSharedNotCopied) {
  const UTF8String text("plain");
  EXPECT_TRUE(QuoteCSVField(text).SharesBufferWith(text));
}

TEST(QuoteCSVField, CommaQuoteAndLineFeedCauseQuoting) {
  EXPECT_EQ(Quoted("a,b"), "\"a,b\"");
  EXPECT_EQ(Quoted("a\nb"), "\"a\nb\"");
  EXPECT_EQ(Quoted("a\"b"), "\"a\"\"b\"");
  EXPECT_EQ(Quoted(","), "\",\"");
  EXPECT_EQ(Quoted("\r\n"), "\"\r\n\"");
}

TEST(QuoteCSVField, EveryQuoteIsDoubled) {
  EXPECT_EQ(Quoted("\""), "\"\"\"\"");
  EXPECT_EQ(Quoted("\"\"x\""), "\"\"\"\"\"x\"\"\"");
  EXPECT_EQ(Quoted("The \"End\", part 2"), "\"The \"\"End\"\", part 2\"");
}

TEST(QuoteCSVField, ZeroBytesAreOrdinaryContent) {
  const std::string_view plain("a\0b", 3);
  EXPECT_EQ(Quoted(plain), plain);
  EXPECT_EQ(Quoted(std::string_view("a\0,b", 4)), std::string_view("\"a\0,b\"", 6));
}

TEST(QuoteCSVField, WhatWasQuotedIsReadBackUnchanged) {
  for (const std::string_view text : {"a,b", "\"", "\n", ",\"\n\",", "\"\"", "x\r\ny"}) {
    EXPECT_THAT(csv::Parse(Quoted(text) + "\n"), ElementsAre(csv::Row{std::string(text)}));
  }
}

TEST(ColorField, IsUpperCaseHexadecimalWithoutLeadingZeros) {
  EXPECT_EQ(ColorFieldText({1, 0, 0, 1}), "FF0000");
  EXPECT_EQ(ColorFieldText({0, 1, 0, 1}), "FF00");
  EXPECT_EQ(ColorFieldText({0, 0, 1, 1}), "FF");
  EXPECT_EQ(ColorFieldText({0, 0, 0, 1}), "0");
  EXPECT_EQ(ColorFieldText({1, 1, 1, 1}), "FFFFFF");
  EXPECT_EQ(ColorFieldText({0x0A / 255.0F, 0xBC / 255.0F, 0xDE / 255.0F, 1}), "ABCDE");
}

TEST(ColorField, AlphaHasNoPartInIt) {
  EXPECT_EQ(ColorFieldText({1, 0, 0, 0}), "FF0000");
}

TEST(ColorField, ChannelsAreRoundedToTheNearestOf256Values) {
  EXPECT_EQ(ColorFieldText({0.999999F, 0, 0, 1}), "FF0000");
  EXPECT_EQ(ColorFieldText({0, 0, 1.4F / 255, 1}), "1");
  EXPECT_EQ(ColorFieldText({2, -1, 0, 1}), "FF0000");
}

/// Digits in groups of three, as a user's locale may write them.
struct GroupedDigits : std::numpunct<char> {
  char do_thousands_sep() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
};

class UnderAGroupingLocale : public testing::Test {
 protected:
  UnderAGroupingLocale()
      : before(std::locale::global(std::locale(std::locale::classic(), new GroupedDigits))) {}
  ~UnderAGroupingLocale() override { std::locale::global(before); }
  std::locale before;
};

TEST_F(UnderAGroupingLocale, NumbersAreWrittenInPlainDigits) {
  TrackItemRowData row;
  row.index = 1234566;
  row.trackIndex = 1233;
  EXPECT_EQ(RowFieldText(row, kColumnIndex, {}), "1234567");
  EXPECT_EQ(RowFieldText(row, kColumnTrack, {}), "A1234");
  EXPECT_EQ(NumberedColumnName(1233), "Column 1234");
  EXPECT_EQ(ColorFieldText({1, 1, 1, 1}), "FFFFFF");
}

TEST(NumberedColumnName, CountsFromOneWithTheHiddenColumn) {
  EXPECT_EQ(NumberedColumnName(0), "Column 1");
  EXPECT_EQ(NumberedColumnName(1), "Column 2");
}

TEST(ExportedColumns, OnlyTheTablesOwnColumnIsLeftOut) {
  EXPECT_FALSE(IsExportedColumn(0));
  EXPECT_FALSE(IsExportedColumn(1));
  EXPECT_TRUE(IsExportedColumn(2));
  EXPECT_TRUE(IsExportedColumn(kFirstColumn));
}

TEST(BlockSize, UpTo32BitsIsAccepted) {
  EXPECT_EQ(RequireBlockSize(0), 0U);
  EXPECT_EQ(RequireBlockSize(4294967295), 4294967295U);
}

TEST(BlockSize, AByteMoreRaisesTheHostsLimitError) {
  for (const std::size_t size : {std::size_t{4294967296}, std::numeric_limits<std::size_t>::max()}) {
    try {
      RequireBlockSize(size);
      ADD_FAILURE();
    } catch (const qelcore::config::qel_exception& failure) {
      EXPECT_EQ(failure.GetKind(), qelcore::config::ExceptionKind::kLimit);
      EXPECT_EQ(failure.GetObject(), std::to_string(size));
    }
  }
}

// ---- Fields of rows

class RowFields : public testing::Test {
 protected:
  RowFields() {
    auto draft = drafts::MakeSequence();
    draft.zeroPoint = drafts::Frame(25 * 3600);
    auto& track = drafts::AddTrack(draft);
    drafts::AddGap(track, 0, 25);
    auto& clip = drafts::AddClip(track, "A", 25, 75);
    clip.labelColor = ZSL::Color{255, 0, 0, 255};
    clip.comment = "Comment";
    clip.description = "Description";
    clip.tapeName = "Tape";
    clip.videoInfo = "1920 x 1080 (1.0)";
    clip.media.codec = "H.264";
    drafts::AddEffect(clip, "Blur");
    drafts::AddEffect(clip, "Gone", true);
    clip.headTransition = standalone::TransitionDraft{"Fade", false};
    clip.proxy.emplace().address = "/proxy/A.mov";
    list = rows::Collect(host.Add(draft));
    rows::Number(list);
  }

  rows::Host host;
  TrackItemDataList list;
};

/// The colour apart, a file says what the table shows.
TEST_F(RowFields, EveryFieldButTheColourIsTheCellsText) {
  for (const auto& row : list) {
    for (ColumnID column = kFirstColumn - 2; column <= kLastColumn + 2; ++column) {
      const UTF8String wanted =
          column == kColumnLabelColor ? ColorFieldText(row.labelColor) : CellText(row, column);
      EXPECT_EQ(RowFieldText(row, column, drafts::Frame(25 * 3600)), wanted) << column;
    }
  }
  EXPECT_EQ(RowFieldText(list[1], kColumnLabelColor, {}), "FF0000");
  EXPECT_EQ(RowFieldText(list[0], kColumnLabelColor, {}), "0");
}

TEST_F(RowFields, TheZeroPointIsTheOneGiven) {
  EXPECT_EQ(RowFieldText(list[1], kColumnStartTime, {}), "00:00:01:00");
  EXPECT_EQ(RowFieldText(list[1], kColumnEndTime, {}), "00:00:03:00");
  EXPECT_EQ(RowFieldText(list[1], kColumnDuration, drafts::Frame(1000)), "00:00:02:00");
}

TEST_F(RowFields, OtherIdentifiersGiveEmptyFields) {
  for (const ColumnID column : {2U, 99999U, 100026U, 4294967295U}) {
    EXPECT_EQ(RowFieldText(list[1], column, {}), "") << column;
  }
}

}  // namespace
}  // namespace Vantrel
