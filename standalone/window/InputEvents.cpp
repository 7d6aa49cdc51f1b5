#include "standalone/window/InputEvents.h"

#include <QKeyEvent>

namespace standalone {

namespace {

using qelui::ui::MouseButton;
using qelui::ui::PointerAction;

MouseButton ToButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return MouseButton::kPrimary;
    case Qt::MiddleButton:
      return MouseButton::kMiddle;
    case Qt::RightButton:
      return MouseButton::kContextMenu;
    default:
      return MouseButton::kNone;
  }
}

PointerAction ToAction(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return PointerAction::kPress;
    case QEvent::MouseButtonRelease:
      return PointerAction::kRelease;
    default:
      return PointerAction::kMove;
  }
}

}  // namespace

std::uint32_t ToModifiers(Qt::KeyboardModifiers modifiers) {
  std::uint32_t mask = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) mask |= qelui::ui::kModifierShift;
  if (modifiers.testFlag(Qt::AltModifier)) mask |= qelui::ui::kModifierAlt;
  if (modifiers.testFlag(Qt::ControlModifier)) mask |= qelui::ui::kModifierControl;
  return mask;
}

qelui::ui::MouseEvent ToMouseEvent(const QMouseEvent& event) {
  const QPointF place = event.position();
  const std::uint32_t clickCount = event.type() == QEvent::MouseButtonDblClick ? 2 : 1;
  return {ToAction(event.type()),
          {static_cast<float>(place.x()), static_cast<float>(place.y())},
          ToButton(event.button()),
          clickCount};
}

std::optional<RowMove> FindRowMove(int key) {
  switch (key) {
    case Qt::Key_Up:
      return RowMove::kUp;
    case Qt::Key_Down:
      return RowMove::kDown;
    case Qt::Key_PageUp:
      return RowMove::kPageUp;
    case Qt::Key_PageDown:
      return RowMove::kPageDown;
    case Qt::Key_Home:
      return RowMove::kFirst;
    case Qt::Key_End:
      return RowMove::kLast;
    default:
      return std::nullopt;
  }
}

bool AsksForContextMenu(const QKeyEvent& event) {
  return event.key() == Qt::Key_Menu ||
         (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

}  // namespace standalone
