#pragma once

namespace qelui {

/// A point in pixels; y grows downward.
struct Point {
  float x = 0;
  float y = 0;
  friend constexpr bool operator==(const Point&, const Point&) noexcept = default;
};

/// A rectangle in pixels. The host counts a negative width or height as 0.
struct Rect {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  friend constexpr bool operator==(const Rect&, const Rect&) noexcept = default;
};

/// A colour as four floats from 0 to 1, not premultiplied.
struct ColorRGBA {
  float red = 0;
  float green = 0;
  float blue = 0;
  float alpha = 1;
  /// Exact, float for float.
  friend constexpr bool operator==(const ColorRGBA&, const ColorRGBA&) noexcept = default;
};

}  // namespace qelui
