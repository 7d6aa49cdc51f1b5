#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "host/ZSL/Color.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

struct LabelColor {
  std::string_view name;
  ZSL::Color color;
};

/// The host's label colours: plain colour words, the first one for items that carry no label.
inline constexpr std::array kLabelPalette = {
    LabelColor{"Grey", {0x8A, 0x8A, 0x8A, 0xFF}},   LabelColor{"Red", {0xC8, 0x4B, 0x46, 0xFF}},
    LabelColor{"Orange", {0xDB, 0x7F, 0x3B, 0xFF}}, LabelColor{"Amber", {0xE2, 0xA4, 0x2C, 0xFF}},
    LabelColor{"Yellow", {0xD9, 0xCB, 0x4A, 0xFF}}, LabelColor{"Lime", {0x9F, 0xC2, 0x4A, 0xFF}},
    LabelColor{"Green", {0x5A, 0x8F, 0x29, 0xFF}},  LabelColor{"Teal", {0x2F, 0x9C, 0x8C, 0xFF}},
    LabelColor{"Cyan", {0x45, 0xB5, 0xCE, 0xFF}},   LabelColor{"Blue", {0x4A, 0x7F, 0xC1, 0xFF}},
    LabelColor{"Indigo", {0x5B, 0x5F, 0xB8, 0xFF}}, LabelColor{"Violet", {0x8A, 0x63, 0xBF, 0xFF}},
    LabelColor{"Purple", {0xB3, 0x5A, 0x9F, 0xFF}}, LabelColor{"Pink", {0xDB, 0x86, 0xA8, 0xFF}},
    LabelColor{"Brown", {0x8E, 0x66, 0x45, 0xFF}},  LabelColor{"Tan", {0xC2, 0xA8, 0x82, 0xFF}},
};

inline constexpr ZSL::Color kDefaultLabelColor = kLabelPalette[0].color;

/// The palette's colour of that word, in any case of ASCII letters.
STANDALONE_API std::optional<ZSL::Color> FindLabelColor(std::string_view name);

/// The palette's word for exactly that colour; empty when it has none.
STANDALONE_API std::string_view FindLabelName(const ZSL::Color& color);

/// Reads "#RRGGBB".
STANDALONE_API std::optional<ZSL::Color> ParseHexColor(std::string_view text);

}  // namespace standalone
