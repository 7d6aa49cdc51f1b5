#include "table/ColumnCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "support/LocalizedKeys.h"
#include "support/SteppedHost.h"

namespace Vantrel {
namespace {

class ColumnCatalogue : public testing::Test {
 private:
  SteppedHost host;
};

struct ExpectedColumn {
  std::int32_t position;
  ColumnID id;
  const char* name;
  std::uint64_t width;
  bool isShown;
  const char* key;
  friend std::ostream& operator<<(std::ostream& stream, const ExpectedColumn& column) {
    return stream << column.name;
  }
};

const ExpectedColumn kExpectedColumns[] = {
    {1, 100000, "#", 30, true, "$$$/Handlers/SequenceIndex/IndexColumnIndex=##{comment}QELMX-4248997"},
    {2, 100011, "Label Color", 10, true,
     "$$$/Handlers/SequenceIndex/IndexColumnLabelColor=Label Color#{comment}QELMX-4248997"},
    {3, 100015, "Clip Name", 200, true,
     "$$$/Handlers/SequenceIndex/IndexColumnName=Clip Name#{comment}QELMX-4248997"},
    {4, 100023, "Track", 50, true,
     "$$$/Handlers/SequenceIndex/IndexColumnTrackIndex=Track#{comment}QELMX-4248997"},
    {5, 100021, "Start Time", 100, true,
     "$$$/Handlers/SequenceIndex/IndexColumnStartTime=Start Time#{comment}QELMX-4248997"},
    {6, 100004, "Duration", 100, true,
     "$$$/Handlers/SequenceIndex/IndexColumnDuration=Duration#{comment}QELMX-4248997"},
    {7, 100016, "Effects", 200, true,
     "$$$/Handlers/SequenceIndex/PresentEffects=Effects#{comment}QELMX-4248997"},
    {8, 100017, "Transitions", 200, true,
     "$$$/Handlers/SequenceIndex/PresentTransitions=Transitions#{comment}QELMX-4248997"},
    {9, 100012, "Offline Status", 100, false,
     "$$$/Handlers/SequenceIndex/IndexColumnOfflineStatus=Offline Status#{comment}QELMX-4248997"},
    {10, 100008, "Fonts Used", 100, false,
     "$$$/Handlers/SequenceIndex/IndexColumnFontsUsed=Fonts Used#{comment}QELMX-4248997"},
    {11, 100009, "Fonts Missing", 100, false,
     "$$$/Handlers/SequenceIndex/IndexColumnFontsMissing=Fonts Missing#{comment}QELMX-4248997"},
    {12, 100005, "End Time", 100, false,
     "$$$/Handlers/SequenceIndex/IndexColumnEndTime=End Time#{comment}QELMX-4248997"},
    {13, 100006, "File Name", 130, false,
     "$$$/Handlers/SequenceIndex/IndexColumnFileName=File Name#{comment}QELMX-4248997"},
    {14, 100007, "File Path", 146, false,
     "$$$/Handlers/SequenceIndex/IndexColumnFilePath=File Path#{comment}QELMX-4248997"},
    {15, 100020, "Source Clip Name", 200, false,
     "$$$/Handlers/SequenceIndex/IndexSourceMasterClipName=Source Clip Name#{comment}QELMX-4248997"},
    {16, 100018, "Proxy Media Path", 136, false,
     "$$$/Handlers/SequenceIndex/IndexProxyPath=Proxy Media Path#{comment}QELMX-4248997"},
    {17, 100019, "Proxy Status", 110, false,
     "$$$/Handlers/SequenceIndex/IndexProxyStatus=Proxy Status#{comment}QELMX-4248997"},
    {18, 100013, "Effects Missing", 117, false,
     "$$$/Handlers/SequenceIndex/EffectsMissing=Effects Missing#{comment}QELMX-4248997"},
    {19, 100014, "Multicam Camera", 125, false,
     "$$$/Handlers/SequenceIndex/IndexColumnMulticamCamera=Multicam Camera#{comment}QELMX-4248997"},
    {20, 100010, "Frame Rate", 100, false,
     "$$$/Handler/SequenceIndex/IndexColumnFrameRate=Frame Rate#{comment}QELMX-4248997"},
    {21, 100001, "Codec", 66, false,
     "$$$/Handlers/SequenceIndex/IndexColumnCodec=Codec#{comment}QELMX-4248997"},
    {22, 100024, "Usage Count In Sequence", 59, false,
     "$$$/Handlers/SequenceIndex/IndexColumnUsageCount=Usage Count In Sequence#{comment}QELMX-4248997"},
    {23, 100022, "Tape Name", 91, false,
     "$$$/Handlers/SequenceIndex/IndexColumnTapeName=Tape Name#{comment}QELMX-4248997"},
    {24, 100003, "Description", 179, false,
     "$$$/Handlers/SequenceIndex/IndexColumnDescription=Description#{comment}QELMX-4248997"},
    {25, 100002, "Comment", 180, false,
     "$$$/Handlers/SequenceIndex/IndexColumnComment=Comment#{comment}QELMX-4248997"},
    {26, 100025, "Video Info", 120, false,
     "$$$/Handler/SequenceIndex/IndexColumnVideoInfo=Video Info#{comment}QELMX-4248997"},
};

TEST(ColumnLayoutEntryTest, AFreshEntryHasNoWidthsAndNoPositionsAndIsShown) {
  const ColumnLayoutEntry entry;
  EXPECT_EQ(entry.defaultWidth, 0U);
  EXPECT_EQ(entry.width, 0U);
  EXPECT_TRUE(entry.defaultShown);
  EXPECT_TRUE(entry.shown);
  EXPECT_EQ(entry.defaultPosition, -1);
  EXPECT_EQ(entry.position, -1);
}

TEST_F(ColumnCatalogue, HoldsEachColumnWithItsNameWidthPositionAndVisibility) {
  const ColumnLayoutList catalogue = GetColumnCatalogue();
  ASSERT_EQ(catalogue.size(), std::size(kExpectedColumns));
  for (const ExpectedColumn& expected : kExpectedColumns) {
    SCOPED_TRACE(expected.name);
    const auto found = std::ranges::find(catalogue, expected.id, &ColumnLayoutEntry::id);
    ASSERT_NE(found, catalogue.end());
    EXPECT_EQ(found->name, expected.name);
    EXPECT_EQ(found->defaultWidth, expected.width);
    EXPECT_EQ(found->defaultShown, expected.isShown);
    EXPECT_EQ(found->defaultPosition, expected.position);
  }
}

TEST_F(ColumnCatalogue, LocalisesTheKeyOfEachColumnOnce) {
  GetColumnCatalogue();
  GetColumnName(kColumnIndex);
  for (const ExpectedColumn& expected : kExpectedColumns) {
    EXPECT_EQ(hostcalls::LocalizedKeys::Get().Count(expected.key), 1U) << expected.key;
  }
}

TEST_F(ColumnCatalogue, TheLayoutOfEveryColumnIsItsDefault) {
  for (const ColumnLayoutEntry& column : GetColumnCatalogue()) {
    EXPECT_EQ(column.width, column.defaultWidth);
    EXPECT_EQ(column.shown, column.defaultShown);
    EXPECT_EQ(column.position, column.defaultPosition);
  }
}

TEST_F(ColumnCatalogue, IsSortedByHeaderTextWithTheShorterTextFirst) {
  std::vector<std::string> names;
  for (const ColumnLayoutEntry& column : GetColumnCatalogue()) names.emplace_back(column.name.View());
  const std::vector<std::string> expected{"#",
                                          "Clip Name",
                                          "Codec",
                                          "Comment",
                                          "Description",
                                          "Duration",
                                          "Effects",
                                          "Effects Missing",
                                          "End Time",
                                          "File Name",
                                          "File Path",
                                          "Fonts Missing",
                                          "Fonts Used",
                                          "Frame Rate",
                                          "Label Color",
                                          "Multicam Camera",
                                          "Offline Status",
                                          "Proxy Media Path",
                                          "Proxy Status",
                                          "Source Clip Name",
                                          "Start Time",
                                          "Tape Name",
                                          "Track",
                                          "Transitions",
                                          "Usage Count In Sequence",
                                          "Video Info"};
  EXPECT_EQ(names, expected);
}

TEST_F(ColumnCatalogue, ChangingACopyDoesNotChangeTheCatalogue) {
  ColumnLayoutList copy = GetColumnCatalogue();
  copy.front().name = qelcore::UTF8String("changed");
  copy.pop_back();
  EXPECT_EQ(GetColumnCatalogue().size(), 26U);
  EXPECT_EQ(GetColumnCatalogue().front().name, "#");
}

TEST_F(ColumnCatalogue, NamesAColumnByItsIdentifier) {
  EXPECT_EQ(GetColumnName(kColumnIndex), "#");
  EXPECT_EQ(GetColumnName(kColumnVideoInfo), "Video Info");
}

TEST_F(ColumnCatalogue, HasNoNameForAnIdentifierThatIsNoColumn) {
  for (const ColumnID id : {99999U, 100026U, 0U}) EXPECT_TRUE(GetColumnName(id).Empty());
}

TEST(ColumnNames, SortByUnsignedBytesWithAPrefixFirst) {
  ColumnLayoutList columns(4);
  columns[0].name = qelcore::UTF8String("\xC3\x89tat");
  columns[1].name = qelcore::UTF8String("Zone");
  columns[2].name = qelcore::UTF8String("Effects Missing");
  columns[3].name = qelcore::UTF8String("Effects");
  SortByName(columns);
  EXPECT_EQ(columns[0].name, "Effects");
  EXPECT_EQ(columns[1].name, "Effects Missing");
  EXPECT_EQ(columns[2].name, "Zone");
  EXPECT_EQ(columns[3].name, "\xC3\x89tat");
}

}  // namespace
}  // namespace Vantrel
