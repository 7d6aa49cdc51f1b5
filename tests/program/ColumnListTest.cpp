#include "standalone/app/ColumnList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/app/CommandError.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Kind = ColumnChoice::Kind;

const std::vector<AvailableColumn> kColumns{{"#", 100000}, {"Clip Name", 100015}, {"Track", 100023}};

template <typename Function>
std::string GetErrorLine(const Function& function) {
  try {
    function();
  } catch (const CommandError& error) {
    return error.GetLine();
  }
  return "no error";
}

TEST(ColumnList, DefaultAndAllAreNoNames) {
  EXPECT_EQ(ReadColumnChoice("default").kind, Kind::kDefault);
  EXPECT_EQ(ReadColumnChoice("all").kind, Kind::kAll);
  EXPECT_EQ(ReadColumnChoice(" All ").kind, Kind::kAll);
}

TEST(ColumnList, NamesAreSeparatedByCommasAndTrimmed) {
  const ColumnChoice choice = ReadColumnChoice(" Clip Name ,#,\t100023");
  EXPECT_EQ(choice.kind, Kind::kListed);
  EXPECT_THAT(choice.names, ElementsAre("Clip Name", "#", "100023"));
}

TEST(ColumnList, AnEmptyListOrNameIsRefused) {
  for (const char* text : {"", " ", ",", "#,", ",#", "#,,Track"}) {
    EXPECT_THAT(GetErrorLine([text] { ReadColumnChoice(text); }),
                HasSubstr("--columns: A name is empty"))
        << text;
  }
}

TEST(ColumnList, ColumnsAreFoundByNameInAnyCaseAndByIdentifierInTheOrderWanted) {
  EXPECT_THAT(FindColumns({"track", "100000", "CLIP NAME"}, kColumns),
              ElementsAre(100023, 100000, 100015));
}

TEST(ColumnList, AnUnknownNameIsRefusedWithTheNamesThereAre) {
  for (const char* name : {"few", "Clip", "10002", "100001", "0100000"}) {
    EXPECT_EQ(GetErrorLine([name] {
                FindColumns({"#", name}, kColumns);
              }),
              "sequence-index: --columns: There is no column \"" + std::string(name) +
                  "\"; there are #, Clip Name, Track.");
  }
}

TEST(ColumnList, AColumnNamedTwiceIsRefused) {
  for (const char* name : {"Track", "track", "100023"}) {
    EXPECT_EQ(GetErrorLine([name] {
                FindColumns({"Track", "#", name}, kColumns);
              }),
              "sequence-index: --columns: The column \"Track\" is named twice.");
  }
}

}  // namespace
}  // namespace standalone
