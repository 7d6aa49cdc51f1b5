#include "export/CSVLine.h"

#include <algorithm>
#include <utility>

#include "export/CSVFormat.h"
#include "export/NeedsQuotes.h"

namespace Vantrel {
namespace {

constexpr char kQuote = '"';
constexpr std::size_t kCommaOrLineFeed = 1;

}  // namespace

CSVLine::CSVLine(std::size_t mostFields)
    : spare((mostFields + 1) * (ShortField::kRoom + kCommaOrLineFeed)) {
  MakeRoom(nullptr, 0);
}

char* CSVLine::AddText(char* next, std::string_view text) {
  next = MakeRoom(next, text.size());
  return CopyUnlessSpecial(text, next) ? next + text.size() : AddQuoted(next, text);
}

char* CSVLine::AddQuoted(char* next, std::string_view text) {
  next = MakeRoom(next, 2 * text.size());
  *next++ = kQuote;
  for (std::string_view left = text; !left.empty();) {
    // Most have a comma and nothing that is doubled.
    const std::size_t plain = std::min(left.find(kQuote), left.size());
    next = std::copy_n(left.data(), plain, next);
    left.remove_prefix(plain);
    if (left.empty()) break;
    next = std::fill_n(next, 2, kQuote);
    left.remove_prefix(1);
  }
  *next++ = kQuote;
  return next;
}

char* CSVLine::Grow(const char* next, std::size_t more) {
  const std::size_t size = CountBytes(next);
  const std::size_t wanted = std::max(2 * CountBytes(end), size + more);
  auto grown = std::make_unique_for_overwrite<char[]>(wanted);
  std::copy_n(bytes.get(), size, grown.get());
  bytes = std::move(grown);
  end = bytes.get() + wanted;
  return bytes.get() + size;
}

}  // namespace Vantrel
