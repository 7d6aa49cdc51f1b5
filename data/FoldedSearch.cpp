#include "data/FoldedSearch.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "host/qelcore/Strings.h"

namespace Vantrel {
namespace {

constexpr std::size_t kLongestStep = std::numeric_limits<std::uint8_t>::max();

std::uint8_t ToStep(std::size_t bytes) {
  return static_cast<std::uint8_t>(std::clamp<std::size_t>(bytes, 1, kLongestStep));
}

}  // namespace

FoldedSearch::FoldedSearch(const qelcore::UTF8String& wanted)
    : locale(&qelcore::Locale::Default()), lowered(qelcore::string::LowerCase(wanted, *locale)) {
  const std::string_view bytes = lowered.View();
  if (bytes.empty()) return;
  const std::string_view before = bytes.substr(0, bytes.size() - 1);
  const auto stepBehind = [before](char byte) {
    const std::size_t found = before.rfind(byte);
    return ToStep(found == std::string_view::npos ? before.size() + 1 : before.size() - found);
  };
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const char byte = locale->ToLower(static_cast<char>(i));
    steps[i] = byte == bytes.back() ? 0 : stepBehind(byte);
  }
  stepAfterLast = stepBehind(bytes.back());
}

bool FoldedSearch::Find(std::string_view text) const noexcept {
  const std::size_t size = lowered.Size();
  if (size == 0) return true;
  for (std::size_t end = size; end <= text.size();) {
    const std::uint8_t step = steps[static_cast<unsigned char>(text[end - 1])];
    if (step == 0 && BeginsWith(text.data() + end - size)) return true;
    end += step == 0 ? stepAfterLast : step;
  }
  return false;
}

bool FoldedSearch::BeginsWith(const char* bytes) const noexcept {
  for (const char wanted : lowered.View()) {
    if (locale->ToLower(*bytes++) != wanted) return false;
  }
  return true;
}

}  // namespace Vantrel
