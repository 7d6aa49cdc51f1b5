#include "export/CSVLines.h"

#include <algorithm>
#include <utility>

#include "export/CSVFormat.h"
#include "export/NeedsQuotes.h"

namespace Vantrel {
namespace {

constexpr char kQuote = '"';
constexpr std::size_t kCommaOrLineFeed = 1;

}  // namespace

CSVLines::CSVLines(std::size_t mostFields)
    : spare((mostFields + 1) * (ShortField::kRoom + kCommaOrLineFeed)),
      bytes(std::make_unique_for_overwrite<char[]>(spare)),
      end(bytes.get() + spare) {}

char* CSVLines::AddText(char* next, std::string_view text) {
  next = MakeRoom(next, text.size());
  return CopyUnlessSpecial(text, next) ? next + text.size() : AddQuoted(next, text);
}

char* CSVLines::AddQuoted(char* next, std::string_view text) {
  if (text.find(kQuote) != std::string_view::npos) {
    const qelcore::UTF8String quoted = QuoteCSVField(qelcore::UTF8String(text));
    return std::ranges::copy(quoted.View(), MakeRoom(next, quoted.View().size())).out;
  }
  // Most have a comma and nothing that is doubled.
  next = MakeRoom(next, text.size() + 2);
  *next++ = kQuote;
  next = std::ranges::copy(text, next).out;
  *next++ = kQuote;
  return next;
}

char* CSVLines::Grow(const char* next, std::size_t more) {
  const std::size_t size = CountBytes(next);
  const std::size_t wanted = std::max(2 * CountBytes(end), size + more);
  auto grown = std::make_unique_for_overwrite<char[]>(wanted);
  std::copy_n(bytes.get(), size, grown.get());
  bytes = std::move(grown);
  end = bytes.get() + wanted;
  return bytes.get() + size;
}

}  // namespace Vantrel
