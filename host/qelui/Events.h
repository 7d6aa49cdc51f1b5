#pragma once

#include <cstdint>

#include "host/qelui/Geometry.h"

namespace qelui::ui {

/// What the pointer did. The numbers are the toolkit's.
enum class PointerAction : std::uint32_t { kMove = 0, kPress = 1, kRelease = 2 };

/// The buttons of a mouse, one bit each.
enum class MouseButton : std::uint32_t {
  kNone = 0,
  kPrimary = 1,
  kMiddle = 2,
  kContextMenu = 4,  ///< The button that opens context menus.
};

/// The bits of a modifier-key mask.
inline constexpr std::uint32_t kModifierShift = 1;
inline constexpr std::uint32_t kModifierAlt = 2;
inline constexpr std::uint32_t kModifierControl = 4;

/// An event of a pointing device. Valid for the call that delivers it.
class PointerEvent {
 public:
  PointerEvent(PointerAction action, Point position) noexcept : action(action), position(position) {}
  PointerAction GetAction() const noexcept { return action; }
  /// In pixels, relative to the view that receives the event.
  Point GetPosition() const noexcept { return position; }

 private:
  PointerAction action;
  Point position;
};

class MouseEvent : public PointerEvent {
 public:
  MouseEvent(PointerAction action, Point position, MouseButton button,
             std::uint32_t clickCount) noexcept
      : PointerEvent(action, position), button(button), clickCount(clickCount) {}
  MouseButton GetButton() const noexcept { return button; }
  /// 1 for a single click, 2 for the second press of a double click.
  std::uint32_t GetClickCount() const noexcept { return clickCount; }

 private:
  MouseButton button;
  std::uint32_t clickCount;
};

}  // namespace qelui::ui
