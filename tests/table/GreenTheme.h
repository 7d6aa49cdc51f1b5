#pragma once

#include "host/qelui/Theme.h"

namespace Vantrel {

/// A theme whose colours no theme of the host has; text and dividers differ.
class GreenTheme final : public qelui::ui::ThemeProvider {
 public:
  qelui::ColorRGBA GetTextColor() const override { return {0, 0.5F, 0, 0.75F}; }
  qelui::ColorRGBA GetDividerColor() const override { return {0, 0.25F, 0.125F, 0.5F}; }
  qelui::ColorRGBA GetTabBackgroundColor() const override { return {0, 1, 0, 1}; }
};

}  // namespace Vantrel
