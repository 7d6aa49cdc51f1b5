#include "export/CSVLine.h"

#include <algorithm>

#include "export/CSVFormat.h"
#include "export/NeedsQuotes.h"

namespace Vantrel {
namespace {

constexpr std::string_view kQuote = "\"";
constexpr std::size_t kCommaOrLineFeed = 1;

}  // namespace

CSVLine::CSVLine(std::size_t mostFields)
    : spare((mostFields + 1) * (ShortField::kRoom + kCommaOrLineFeed)) {
  MakeRoom(0);
}

void CSVLine::AddText(std::string_view text) {
  MakeRoom(text.size());
  if (!CopyUnlessSpecial(text, bytes.get() + size)) return AddQuoted(text);
  size += text.size();
}

void CSVLine::AddQuoted(std::string_view text) {
  if (text.find(kQuote) != std::string_view::npos) {
    return AddReadyField(QuoteCSVField(qelcore::UTF8String(text)).View());
  }
  // Most have a comma and nothing that is doubled.
  AddReadyField(kQuote);
  AddReadyField(text);
  AddReadyField(kQuote);
}

void CSVLine::Grow(std::size_t more) {
  const std::size_t wanted = std::max(2 * capacity, size + more);
  auto grown = std::make_unique_for_overwrite<char[]>(wanted);
  std::copy_n(bytes.get(), size, grown.get());
  bytes = std::move(grown);
  capacity = wanted;
}

}  // namespace Vantrel
