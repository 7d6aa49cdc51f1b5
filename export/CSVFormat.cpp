#include "export/CSVFormat.h"

#include <cstdio>
#include <limits>
#include <string>
#include <string_view>

#include "data/CellText.h"
#include "export/NeedsQuotes.h"
#include "host/UIF/QELConversionUtilities.h"
#include "host/qelcore/Exceptions.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {
namespace {

using qelcore::UTF8String;

constexpr std::string_view kQuote = "\"";
constexpr std::string_view kDoubledQuote = "\"\"";

}  // namespace

UTF8String QuoteCSVField(const UTF8String& text) {
  if (!NeedsQuotes(text)) return text;
  std::string quoted = qelcore::string::ReplaceInString(text, kQuote, kDoubledQuote);
  quoted.insert(0, kQuote).append(kQuote);
  return UTF8String(quoted);
}

std::uint32_t ColorFieldValue(const qelui::ColorRGBA& color) {
  const ZSL::Color rounded = UIF::QELConversionUtilities::QELColorRGBAtoZSLColor(color);
  return rounded.red * 65536u + rounded.green * 256u + rounded.blue;
}

UTF8String ColorFieldText(std::uint32_t value) {
  char buffer[sizeof "FFFFFFFF"];
  std::snprintf(buffer, sizeof buffer, "%X", value);
  return UTF8String(buffer);
}

UTF8String ColorFieldText(const qelui::ColorRGBA& color) {
  return ColorFieldText(ColorFieldValue(color));
}

UTF8String RowFieldText(const TrackItemRowData& row, ColumnID column,
                        qelmediatypes::TickTime zeroPoint) {
  return column == kColumnLabelColor ? ColorFieldText(row.labelColor)
                                     : CellText(row, column, zeroPoint);
}

UTF8String NumberedColumnName(std::size_t displayIndex) {
  char buffer[qelcore::string::kUInt64BufferSize];
  std::string name("Column ");
  name.append(qelcore::string::ConvertUInt64ToBufferT(displayIndex + 1, buffer));
  return UTF8String(name);
}

std::uint32_t RequireBlockSize(std::size_t size) {
  constexpr std::size_t kHighestSize = std::numeric_limits<std::uint32_t>::max();
  if (size > kHighestSize) {
    const std::string bytes = std::to_string(size);
    throw qelcore::config::qel_exception(
        qelcore::config::ExceptionKind::kLimit,
        "The exported text has " + bytes + " bytes; a file takes at most 4294967295 in one block.",
        bytes);
  }
  return static_cast<std::uint32_t>(size);
}

}  // namespace Vantrel
