#include "data/TextShare.h"

#include <cstdint>

#include "host/qelcore/Strings.h"

namespace Vantrel {
namespace {

/// The number of a text that is not empty, below 1 << `bits`. Texts differ in their lengths and, lists
/// of one length, in some of their letters.
template <typename Text>
std::size_t NumberOf(const Text& text, unsigned bits) noexcept {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;  // 2^64 by the golden ratio.
  const std::size_t size = text.size();
  std::uint64_t number = size;
  for (const std::size_t at : {std::size_t{0}, size / 4, size / 2, size - size / 4 - 1}) {
    number = (number ^ static_cast<std::uint64_t>(text[at])) * kFactor;
  }
  return static_cast<std::size_t>(number >> (64 - bits));
}

}  // namespace

qelcore::UTF8String TextShare::Share(std::string_view text) {
  if (text.empty()) return {};
  qelcore::UTF8String& recent = recentTexts[NumberOf(text, kRecentBits)];
  if (recent != text) recent = Find(text);
  return recent;
}

std::string_view TextShare::ToUTF8(const std::u16string& name) {
  if (name.empty()) return {};
  const Names::value_type*& recent = recentNames[NumberOf(name, kRecentBits)];
  if (recent == nullptr || recent->first != name) recent = &FindName(name);
  return recent->second.View();
}

qelcore::UTF8String TextShare::Find(std::string_view text) {
  const auto found = texts.find(text);
  return found != texts.end() ? *found : *texts.emplace(text).first;
}

const TextShare::Names::value_type& TextShare::FindName(const std::u16string& name) {
  const auto found = names.find(name);
  if (found != names.end()) return *found;
  return *names.emplace(name, qelcore::string::UTF16to8(name)).first;
}

}  // namespace Vantrel
