#include "table/ColumnCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

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
  friend std::ostream& operator<<(std::ostream& stream, const ExpectedColumn& column) {
    return stream << column.name;
  }
};

const ExpectedColumn kExpectedColumns[] = {
    {1, 100000, "#", 30, true},
    {2, 100011, "Label Color", 10, true},
    {3, 100015, "Clip Name", 200, true},
    {4, 100023, "Track", 50, true},
    {5, 100021, "Start Time", 100, true},
    {6, 100004, "Duration", 100, true},
    {7, 100016, "Effects", 200, true},
    {8, 100017, "Transitions", 200, true},
    {9, 100012, "Offline Status", 100, false},
    {10, 100008, "Fonts Used", 100, false},
    {11, 100009, "Fonts Missing", 100, false},
    {12, 100005, "End Time", 100, false},
    {13, 100006, "File Name", 130, false},
    {14, 100007, "File Path", 146, false},
    {15, 100020, "Source Clip Name", 200, false},
    {16, 100018, "Proxy Media Path", 136, false},
    {17, 100019, "Proxy Status", 110, false},
    {18, 100013, "Effects Missing", 117, false},
    {19, 100014, "Multicam Camera", 125, false},
    {20, 100010, "Frame Rate", 100, false},
    {21, 100001, "Codec", 66, false},
    {22, 100024, "Usage Count In Sequence", 59, false},
    {23, 100022, "Tape Name", 91, false},
    {24, 100003, "Description", 179, false},
    {25, 100002, "Comment", 180, false},
    {26, 100025, "Video Info", 120, false},
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
