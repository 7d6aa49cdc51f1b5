#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/qelui/Drawbot.h"

namespace standalone {

/// Keeps what a cell shows in the end: the last colour that fills it, and its last line of text with
/// the text's colour. Nothing is made anew for a cell, as there may be millions. [main-thread]
class CellDrawbot final : public qelui::Drawbot {
 public:
  void Clear() noexcept {
    fill.reset();
    text.clear();
  }

  const std::optional<qelui::ColorRGBA>& GetFill() const noexcept { return fill; }
  /// Valid until the next cell is drawn.
  std::string_view GetText() const noexcept { return text; }
  const qelui::ColorRGBA& GetTextColor() const noexcept { return textColor; }

  void FillRect(const qelui::Rect&, const qelui::ColorRGBA& color) override { fill = color; }
  void StrokeRect(const qelui::Rect&, const qelui::ColorRGBA&, float) override {}
  void DrawTextLine(const qelui::TextLine& line) override {
    text = line.text.View();
    textColor = line.color;
  }

 private:
  std::optional<qelui::ColorRGBA> fill;
  /// A copy of a few bytes, which costs less than to count one more owner.
  std::string text;
  qelui::ColorRGBA textColor;
};

}  // namespace standalone
