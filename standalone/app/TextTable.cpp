#include "standalone/app/TextTable.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "standalone/app/ColumnWidths.h"
#include "standalone/app/DisplayText.h"

namespace standalone {

namespace {

constexpr std::size_t kSwatchWidth = 2;
constexpr std::string_view kEllipsis = "…";
constexpr std::size_t kEllipsisWidth = 1;

/// "#4A7FC1".
std::string_view WriteHex(const ZSL::Color& color, std::string& buffer) {
  std::array<char, sizeof "#FFFFFF"> text;
  std::snprintf(text.data(), text.size(), "#%02X%02X%02X", color.red, color.green, color.blue);
  buffer.assign(text.data());
  return buffer;
}

}  // namespace

TextTable::TextTable(TableSource& source, std::optional<std::size_t> room, ColorDepth colors)
    : source(source), colors(colors) {
  const auto& columns = source.GetColumns();
  std::vector<WantedWidth> wanted;
  wanted.reserve(columns.size());
  for (const TableColumn& column : columns) {
    wanted.push_back({MeasureTitle(column), column.isNarrowedLast});
  }
  const std::size_t rows = source.CountRows();
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      wanted[i].natural = std::max(wanted[i].natural, MeasureCell(source.ReadCell(row, i)));
    }
  }
  widths = FitColumnWidths(wanted, room);
}

std::size_t TextTable::CountOmittedColumns() const {
  return source.GetColumns().size() - widths.size();
}

void TextTable::Print(const LineSink& sink) {
  sink(MakeHeaderLine());
  const std::size_t rows = source.CountRows();
  for (std::size_t row = 0; row < rows; ++row) sink(MakeRowLine(row));
}

std::string_view TextTable::GetTitle(const TableColumn& column) const {
  return column.isSwatch && IsColored() ? std::string_view() : column.title;
}

std::size_t TextTable::MeasureTitle(const TableColumn& column) {
  const std::size_t least = column.isSwatch && IsColored() ? kSwatchWidth : 0;
  return std::max(least, CountColumns(MakeShowable(GetTitle(column), buffer)));
}

std::string_view TextTable::GetText(const TableCell& cell) {
  return cell.swatch ? WriteHex(*cell.swatch, buffer) : MakeShowable(cell.text, buffer);
}

std::size_t TextTable::MeasureCell(const TableCell& cell) {
  if (cell.swatch && IsColored()) return kSwatchWidth;
  return CountColumns(GetText(cell));
}

std::string_view TextTable::MakeHeaderLine() {
  const auto& columns = source.GetColumns();
  for (std::size_t i = 0; i < widths.size(); ++i) {
    AddGapBefore(i);
    AddText(MakeShowable(GetTitle(columns[i]), buffer), i,
            IsColored() ? TextStyle::kBold : TextStyle::kPlain);
  }
  return line.Finish();
}

std::string_view TextTable::MakeRowLine(std::size_t row) {
  for (std::size_t i = 0; i < widths.size(); ++i) {
    AddGapBefore(i);
    AddCell(source.ReadCell(row, i), i);
  }
  return line.Finish();
}

void TextTable::AddGapBefore(std::size_t column) {
  if (column > 0) line.AddBlanks(kColumnGap);
}

void TextTable::AddCell(const TableCell& cell, std::size_t column) {
  if (cell.swatch && IsColored()) {
    const std::size_t width = std::min(widths[column], kSwatchWidth);
    line.AddSwatch(*cell.swatch, width, colors);
    line.AddBlanks(widths[column] - width);
    return;
  }
  const bool isRed = cell.isAlert && IsColored();
  AddText(GetText(cell), column, isRed ? TextStyle::kRed : TextStyle::kPlain);
}

void TextTable::AddText(std::string_view text, std::size_t column, TextStyle style) {
  const std::size_t width = widths[column];
  const std::size_t wanted = CountColumns(text);
  if (wanted > width) {
    AddCutText(text, width, style);
    return;
  }
  const bool isRightAligned = source.GetColumns()[column].isRightAligned;
  if (isRightAligned) line.AddBlanks(width - wanted);
  line.AddText(text, style);
  if (!isRightAligned) line.AddBlanks(width - wanted);
}

void TextTable::AddCutText(std::string_view showable, std::size_t width, TextStyle style) {
  const TextBeginning beginning = FitIntoColumns(showable, width - kEllipsisWidth);
  std::string text(showable.substr(0, beginning.bytes));
  line.AddText(text.append(kEllipsis), style);
  line.AddBlanks(width - kEllipsisWidth - beginning.columns);
}

}  // namespace standalone
