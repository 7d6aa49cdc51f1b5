#include "host/qelcore/Localizer.h"

namespace qelcore::config {

namespace {

class HostLocalizer final : public Localizer {};

constexpr std::string_view kRemarkMark = "#{comment}";

/// The number after the "@" at `position`, or -1.
int ArgumentNumber(std::string_view text, std::size_t position) {
  if (text[position] != '@' || position + 1 >= text.size()) return -1;
  const char digit = text[position + 1];
  return digit >= '0' && digit <= '9' ? digit - '0' : -1;
}

}  // namespace

Localizer::Localizer() = default;
Localizer::~Localizer() = default;

const Localizer& Localizer::Get() {
  static const HostLocalizer localizer;
  return localizer;
}

UTF8String Localizer::Localize(std::string_view key) const {
  const std::size_t equals = key.find('=');
  if (equals == std::string_view::npos) return UTF8String(key);
  const std::string_view text = key.substr(equals + 1);
  return UTF8String(text.substr(0, text.find(kRemarkMark)));
}

UTF8String ReplaceArguments(std::string_view text, std::initializer_list<std::string_view> arguments) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int number = ArgumentNumber(text, i);
    if (number >= 0 && static_cast<std::size_t>(number) < arguments.size()) {
      result.append(arguments.begin()[number]);
      ++i;
    } else {
      result.push_back(text[i]);
    }
  }
  return UTF8String(result);
}

}  // namespace qelcore::config
