#include "standalone/app/TextTable.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "standalone/app/DisplayText.h"

namespace standalone {
namespace {

struct Cell {
  std::string text;
  bool isAlert = false;
  std::optional<ZSL::Color> swatch = std::nullopt;
};

/// A table that a test writes down.
class WrittenTable final : public TableSource {
 public:
  explicit WrittenTable(std::vector<TableColumn> columns) : columns(std::move(columns)) {}
  void AddRow(std::vector<Cell> cells) { rows.push_back(std::move(cells)); }

  const std::vector<TableColumn>& GetColumns() const override { return columns; }
  std::size_t CountRows() const override { return rows.size(); }
  TableCell ReadCell(std::size_t row, std::size_t column) override {
    const Cell& cell = rows[row][column];
    ++readCells;
    lastText = cell.text;
    return {lastText, cell.isAlert, cell.swatch};
  }

  std::size_t CountReadCells() const { return readCells; }

 private:
  std::vector<TableColumn> columns;
  std::vector<std::vector<Cell>> rows;
  std::size_t readCells = 0;
  /// One text at a time, as promised.
  std::string lastText;
};

TableColumn MakeNumber(const char* title) {
  return {title, true, false, true};
}
TableColumn MakeText(const char* title) {
  return {title, false, false, false};
}
TableColumn MakeSwatch(const char* title) {
  return {title, false, true, false};
}

std::string Print(TableSource& source, std::optional<std::size_t> room = std::nullopt,
                  ColorDepth colors = ColorDepth::kNone) {
  std::string text;
  TextTable table(source, room, colors);
  table.Print([&text](std::string_view line) { text += line; });
  return text;
}

TEST(TextTable, AnEmptyTableIsItsHeader) {
  WrittenTable table({MakeNumber("#"), MakeText("Clip Name"), MakeText("Track")});
  EXPECT_EQ(Print(table), "#  Clip Name  Track\n");
}

TEST(TextTable, NumbersStandAtTheRightAndTextsAtTheLeft) {
  WrittenTable table({MakeNumber("#"), MakeText("Clip Name"), MakeNumber("Uses"), MakeText("Track")});
  table.AddRow({{"9"}, {"Harbour at dawn"}, {"1"}, {"V1"}});
  table.AddRow({{"10"}, {"Ferry"}, {"12"}, {""}});
  EXPECT_EQ(Print(table),
            " #  Clip Name        Uses  Track\n"
            " 9  Harbour at dawn     1  V1\n"
            "10  Ferry              12\n");
}

TEST(TextTable, EveryWritingKeepsTheColumnsAligned) {
  WrittenTable table({MakeText("Clip Name"), MakeText("Track")});
  for (const char* name :
       {"渡し船の夜明け", "👩‍🚀 lands", "Cafe\u0301", "שלום", "two\nlines", "\u202Eevil"}) {
    table.AddRow({{name}, {"V1"}});
  }
  EXPECT_EQ(Print(table),
            "Clip Name       Track\n"
            "渡し船の夜明け  V1\n"
            "👩‍🚀 lands        V1\n"
            "Cafe\u0301            V1\n"
            "שלום            V1\n"
            "two␊lines       V1\n"
            "�evil           V1\n");
}

TEST(TextTable, WhatIsCutEndsInAnEllipsisAndNothingIsHalved) {
  WrittenTable table({MakeText("Clip Name"), MakeText("Track")});
  table.AddRow({{"Harbour"}, {"V1"}});
  table.AddRow({{"渡し船の夜明け"}, {"V1"}});
  table.AddRow({{"aeioue\u0301e\u0301xx"}, {"V1"}});
  EXPECT_EQ(Print(table, 15),
            "Clip Na…  Track\n"
            "Harbour   V1\n"
            "渡し船…   V1\n"
            "aeioue\u0301e\u0301…  V1\n");
}

TEST(TextTable, ColumnsWithoutRoomAreLeftOutAndCounted) {
  WrittenTable table({MakeText("Clip Name"), MakeText("Comment"), MakeText("Tape Name")});
  table.AddRow({{"Harbour"}, {"Hold"}, {"A001"}});
  EXPECT_EQ(Print(table, 17), "Clip Na…  Comment\nHarbour   Hold\n");
  EXPECT_EQ(TextTable(table, 17, ColorDepth::kNone).CountOmittedColumns(), 1U);
  EXPECT_EQ(TextTable(table, 80, ColorDepth::kNone).CountOmittedColumns(), 0U);
}

TEST(TextTable, WithoutColoursASwatchIsItsNumber) {
  WrittenTable table({MakeSwatch("Label"), MakeText("Name")});
  table.AddRow({{"", false, ZSL::Color{74, 127, 193}}, {"A", true}});
  table.AddRow({{"", false, ZSL::Color{0, 0, 10}}, {"B"}});
  EXPECT_EQ(Print(table), "Label    Name\n#4A7FC1  A\n#00000A  B\n");
}

TEST(TextTable, WithColoursASwatchIsTwoColumnsWideAndHasNoTitle) {
  WrittenTable table({MakeNumber("#"), MakeSwatch("Label Color"), MakeText("Name")});
  table.AddRow({{"1"}, {"", false, ZSL::Color{74, 127, 193}}, {"A", true}});
  EXPECT_EQ(Print(table, std::nullopt, ColorDepth::kTrue),
            "\033[1m#\033[0m      \033[1mName\033[0m\n"
            "1  \033[48;2;74;127;193m  \033[0m  \033[31mA\033[0m\n");
  EXPECT_EQ(Print(table, std::nullopt, ColorDepth::kPalette),
            "\033[1m#\033[0m      \033[1mName\033[0m\n"
            "1  \033[48;5;67m  \033[0m  \033[31mA\033[0m\n");
}

std::string MakeRandomText(std::mt19937& random) {
  const char* const pieces[] = {"a",
                                "Ferry ",
                                " ",
                                "渡",
                                "e\u0301",
                                "👩‍🚀",
                                "🇩🇪",
                                "\u0301",
                                "שלום",
                                "\n",
                                "\033[31m",
                                "ﾞ",
                                "\u200D",
                                "\u202E",
                                "\xFF",
                                "❤️",
                                "\u1112\u1161",
                                "…",
                                "\u0600",
                                "🇩",
                                "\u0E19\u0E33",
                                "\t"};
  std::string text;
  for (auto count = random() % 12; count > 0; --count) text += pieces[random() % std::size(pieces)];
  return text;
}

/// The widest line of a text, without its escape sequences.
std::size_t MeasureWidestLine(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\033') i = text.find('m', i) + 1;
    if (i < text.size() && text[i] == '\033') {
      --i;
      continue;
    }
    if (i < text.size()) plain += text[i];
  }
  std::istringstream lines(plain);
  std::size_t widest = 0;
  for (std::string line; std::getline(lines, line);) widest = std::max(widest, CountColumns(line));
  return widest;
}

TEST(TextTable, NoLineIsWiderThanTheRoomWhateverTheTexts) {
  std::mt19937 random(11);
  for (int round = 0; round < 500; ++round) {
    std::vector<TableColumn> columns;
    for (auto count = 1 + random() % 6; count > 0; --count) {
      columns.push_back(
          {MakeRandomText(random), random() % 2 == 0, random() % 4 == 0, random() % 2 == 0});
    }
    WrittenTable table(columns);
    for (int row = 0; row < 4; ++row) {
      std::vector<Cell> cells;
      for (const TableColumn& column : columns) {
        cells.push_back({MakeRandomText(random), random() % 5 == 0, std::nullopt});
        if (column.isSwatch) cells.back().swatch = ZSL::Color{1, 2, 3};
      }
      table.AddRow(std::move(cells));
    }
    const std::size_t room = 1 + random() % 60;
    for (const ColorDepth colors : {ColorDepth::kNone, ColorDepth::kTrue}) {
      const std::string text = Print(table, room, colors);
      ASSERT_LE(MeasureWidestLine(text), room) << text;
      ASSERT_EQ(std::count(text.begin(), text.end(), '\n'), 5) << text;
      ASSERT_EQ(text.find(" \n"), std::string::npos) << text;
    }
  }
}

TEST(TextTable, EachCellIsReadOnce) {
  WrittenTable table({MakeNumber("#"), MakeText("Clip Name"), MakeSwatch("Label Color")});
  for (int i = 0; i < 100; ++i) table.AddRow({{"1"}, {"Ferry"}, {"", false, ZSL::Color{1, 2, 3}}});
  Print(table);
  EXPECT_EQ(table.CountReadCells(), 300U);
}

TEST(TextTable, WhatIsTooMuchToKeepIsReadOnceMore) {
  constexpr std::size_t kLong = std::size_t{20} << 20;
  WrittenTable table({MakeText("Clip Name"), MakeText("Track")});
  table.AddRow({{"Ferry"}, {"V1"}});
  table.AddRow({{std::string(kLong, 'x')}, {"V2"}});
  table.AddRow({{"Harbour"}, {"V3"}});
  EXPECT_EQ(Print(table, 20),
            "Clip Name      Track\n"
            "Ferry          V1\n"
            "xxxxxxxxxxxx…  V2\n"
            "Harbour        V3\n");
  EXPECT_EQ(table.CountReadCells(), 6U + 4U);
}

}  // namespace
}  // namespace standalone
