#include "standalone/app/TextTable.h"

#include <algorithm>

#include "standalone/app/DisplayText.h"

namespace standalone {

namespace {

constexpr std::size_t kSwatchWidth = 2;
constexpr std::size_t kHexWidth = sizeof "#FFFFFF" - 1;
constexpr std::string_view kEllipsis = "…";
constexpr std::size_t kEllipsisWidth = 1;

/// "#4A7FC1".
std::string_view WriteHex(const ZSL::Color& color, std::string& buffer) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  buffer = "#";
  for (const unsigned channel : {color.red, color.green, color.blue}) {
    buffer.push_back(kDigits[channel / 16]);
    buffer.push_back(kDigits[channel % 16]);
  }
  return buffer;
}

}  // namespace

TextTable::TextTable(TableSource& source, std::optional<std::size_t> room, ColorDepth colors)
    : source(source), colors(colors), widths(FitColumnWidths(MeasureColumns(), room)) {}

std::vector<WantedWidth> TextTable::MeasureColumns() {
  const auto& columns = source.GetColumns();
  std::vector<WantedWidth> wanted;
  wanted.reserve(columns.size());
  for (const TableColumn& column : columns) {
    wanted.push_back({MeasureTitle(column), column.isNarrowedLast});
  }
  const std::size_t rows = source.CountRows();
  kept.Reserve(rows * columns.size());
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const ShowableCell cell = ReadCell(row, i);
      wanted[i].natural = std::max(wanted[i].natural, cell.columns);
      kept.Keep(cell);
    }
  }
  return wanted;
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
  return std::max(least, MeasureShowable(GetTitle(column), buffer).columns);
}

ShowableCell TextTable::ReadCell(std::size_t row, std::size_t column) {
  const TableCell cell = source.ReadCell(row, column);
  if (cell.swatch && IsColored()) return {{}, kSwatchWidth, false, cell.swatch};
  const MeasuredText shown = cell.swatch ? MeasuredText{WriteHex(*cell.swatch, buffer), kHexWidth}
                                         : MeasureShowable(cell.text, buffer);
  return {shown.text, shown.columns, cell.isAlert, std::nullopt};
}

ShowableCell TextTable::GetCell(std::size_t row, std::size_t column) {
  const std::size_t position = row * source.GetColumns().size() + column;
  return position < kept.Count() ? kept.Get(position) : ReadCell(row, column);
}

std::string_view TextTable::MakeHeaderLine() {
  const auto& columns = source.GetColumns();
  for (std::size_t i = 0; i < widths.size(); ++i) {
    AddGapBefore(i);
    const MeasuredText title = MeasureShowable(GetTitle(columns[i]), buffer);
    AddText({title.text, title.columns, false, std::nullopt}, i,
            IsColored() ? TextStyle::kBold : TextStyle::kPlain);
  }
  return line.Finish();
}

std::string_view TextTable::MakeRowLine(std::size_t row) {
  for (std::size_t i = 0; i < widths.size(); ++i) {
    AddGapBefore(i);
    AddCell(GetCell(row, i), i);
  }
  return line.Finish();
}

void TextTable::AddGapBefore(std::size_t column) {
  if (column > 0) line.AddBlanks(kColumnGap);
}

void TextTable::AddCell(const ShowableCell& cell, std::size_t column) {
  if (cell.swatch) {
    const std::size_t width = std::min(widths[column], cell.columns);
    line.AddSwatch(*cell.swatch, width, colors);
    line.AddBlanks(widths[column] - width);
    return;
  }
  const bool isRed = cell.isAlert && IsColored();
  AddText(cell, column, isRed ? TextStyle::kRed : TextStyle::kPlain);
}

void TextTable::AddText(const ShowableCell& cell, std::size_t column, TextStyle style) {
  const std::size_t width = widths[column];
  if (cell.columns > width) {
    AddCutText(cell.text, width, style);
    return;
  }
  const std::size_t blanks = width - cell.columns;
  const bool isRightAligned = source.GetColumns()[column].isRightAligned;
  if (isRightAligned) line.AddBlanks(blanks);
  line.AddText(cell.text, style);
  if (!isRightAligned) line.AddBlanks(blanks);
}

void TextTable::AddCutText(std::string_view showable, std::size_t width, TextStyle style) {
  const TextBeginning beginning = FitIntoColumns(showable, width - kEllipsisWidth);
  std::string text(showable.substr(0, beginning.bytes));
  line.AddText(text.append(kEllipsis), style);
  line.AddBlanks(width - kEllipsisWidth - beginning.columns);
}

}  // namespace standalone
