#include "standalone/import/LabelPalette.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "standalone/model/TextCase.h"

namespace standalone {

std::optional<ZSL::Color> FindLabelColor(std::string_view name) {
  const auto found =
      std::find_if(kLabelPalette.begin(), kLabelPalette.end(),
                   [&](const LabelColor& label) { return EqualsIgnoringCase(label.name, name); });
  if (found == kLabelPalette.end()) return std::nullopt;
  return found->color;
}

std::string_view FindLabelName(const ZSL::Color& color) {
  const auto found = std::find_if(kLabelPalette.begin(), kLabelPalette.end(),
                                  [&](const LabelColor& label) { return label.color == color; });
  return found == kLabelPalette.end() ? std::string_view() : found->name;
}

std::optional<ZSL::Color> ParseHexColor(std::string_view text) {
  if (text.size() != 7 || text.front() != '#') return std::nullopt;
  std::uint32_t value = 0;
  const char* last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data() + 1, last, value, 16);
  if (error != std::errc{} || end != last) return std::nullopt;
  const auto channel = [value](int shift) { return static_cast<std::uint8_t>(value >> shift & 0xFF); };
  return ZSL::Color{channel(16), channel(8), channel(0), 255};
}

}  // namespace standalone
