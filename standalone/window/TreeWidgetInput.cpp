#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "standalone/runtime/Guard.h"
#include "standalone/toolkit/TreeControl.h"
#include "standalone/window/InputEvents.h"
#include "standalone/window/RowsText.h"
#include "standalone/window/TreeWidget.h"

namespace standalone {

namespace {

constexpr const char* kWhere = "table";

/// Milliseconds between the steps of a drag beyond the edge: as often as a screen shows a picture.
constexpr int kDragScrollInterval = 16;
/// A full step of a wheel, in the units of wheel events.
constexpr qreal kWheelStep = 120;

/// How many pixels a turn of the wheel moves; positive: to the left and up.
QPointF FindWheelWay(const QWheelEvent& event, int rowStep) {
  if (!event.pixelDelta().isNull()) return event.pixelDelta();
  const qreal step = rowStep * QApplication::wheelScrollLines() / kWheelStep;
  return QPointF(event.angleDelta()) * step;
}

}  // namespace

bool TreeWidget::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::ApplicationFontChange:
      fonts.Clear();
      FollowSoon();
      break;
    case QEvent::WindowActivate:
      viewport()->update();
      break;
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
      // A dialog that opens during a drag gets the release of the button.
      EndDrag();
      viewport()->update();
      break;
    default:
      break;
  }
  return QAbstractScrollArea::event(event);
}

void TreeWidget::resizeEvent(QResizeEvent*) {
  Follow();
}

void TreeWidget::scrollContentsBy(int dx, int dy) {
  const auto tree = GetTree();
  if (!tree || isFollowing) return;
  viewport()->update();
  if (dx != 0) header->Follow(GetColumns(), horizontalScrollBar()->value());
  // A move to the sides leaves alone where the table may have scrolled since the last Follow.
  if (dy == 0) return;
  CallGuarded(kWhere, [&] { tree->GetControl().ScrollTo(verticalScrollBar()->value()); });
}

void TreeWidget::wheelEvent(QWheelEvent* event) {
  FollowNow();
  QPointF way = FindWheelWay(*event, verticalScrollBar()->singleStep());
  // Shift turns the wheel sideways.
  if (event->modifiers().testFlag(Qt::ShiftModifier) && way.x() == 0) way = way.transposed();
  wheelRest += way;
  const QPoint whole(static_cast<int>(wheelRest.x()), static_cast<int>(wheelRest.y()));
  wheelRest -= whole;
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() - whole.x());
  verticalScrollBar()->setValue(verticalScrollBar()->value() - whole.y());
  event->accept();
}

bool TreeWidget::DoKey(Tree& tree, const QKeyEvent& event) {
  auto& control = tree.GetControl();
  if (event.modifiers().testAnyFlags(Qt::AltModifier | Qt::MetaModifier)) return false;
  const std::uint32_t modifiers = ToModifiers(event.modifiers());
  const auto move = FindRowMove(event.key());
  if (move && tree.CountRows() > 0) {
    control.MoveCurrent(*move, modifiers);
  } else if (event.key() == Qt::Key_Space && control.GetCurrent()) {
    control.SelectCurrent(modifiers);
  } else if (event.matches(QKeySequence::SelectAll)) {
    control.SelectAll();
  } else if (event.matches(QKeySequence::Copy) && control.CountSelected() > 0) {
    QApplication::clipboard()->setText(CopyRows(tree));
  } else {
    return ScrollColumns(event);
  }
  return true;
}

bool TreeWidget::ScrollColumns(const QKeyEvent& event) {
  const bool isModified = (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier;
  QScrollBar& bar = *horizontalScrollBar();
  if (isModified || bar.maximum() == 0) return false;
  if (event.key() == Qt::Key_Left) {
    bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
  } else if (event.key() == Qt::Key_Right) {
    bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
  } else {
    return false;
  }
  return true;
}

void TreeWidget::keyPressEvent(QKeyEvent* event) {
  const auto tree = GetTree();
  if (!tree) return event->ignore();
  if (AsksForContextMenu(*event)) return OpenColumnMenu();
  // A callback may end the window.
  const QPointer<TreeWidget> self(this);
  bool isHandled = false;
  CallGuarded(kWhere, [&] { isHandled = DoKey(*tree, *event); });
  if (self) Follow();
  event->setAccepted(isHandled);
}

void TreeWidget::OpenColumnMenu() {
  const auto& shown = GetColumns().GetShown();
  const std::size_t column = GetCurrentColumn();
  const int left = column < shown.size() ? shown[column].left - horizontalScrollBar()->value() : 0;
  header->OpenMenu({std::clamp(left, 0, std::max(header->width() - 1, 0)), header->height()});
}

std::optional<std::size_t> TreeWidget::FindPosition(const Tree& tree, int y) const {
  const auto& control = tree.GetControl();
  return control.FindPositionAt(control.GetScrollPosition() + y);
}

void TreeWidget::mousePressEvent(QMouseEvent* event) {
  DoPress(*event);
}

void TreeWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  DoPress(*event);
}

void TreeWidget::DoPress(QMouseEvent& event) {
  const auto tree = GetTree();
  if (!tree) return;
  const QPoint point = event.position().toPoint();
  const auto position = FindPosition(*tree, point.y());
  const auto column = GetColumns().FindAt(point.x() + horizontalScrollBar()->value());
  pressedColumn.reset();
  if (column) pressedColumn = GetColumns().GetShown()[*column].id;
  // A callback may end the window.
  const QPointer<TreeWidget> self(this);
  CallGuarded(kWhere, [&] {
    if (event.button() == Qt::LeftButton) {
      dragged = position;
      tree->GetControl().Click(position, ToModifiers(event.modifiers()));
    } else if (event.button() == Qt::RightButton) {
      tree->GetControl().ContextClick(position);
    }
  });
  if (self) Follow();
}

void TreeWidget::DoDrag(Tree& tree, QPoint point, std::uint32_t modifiers) {
  const int inside = std::clamp(point.y(), 0, std::max(viewport()->height() - 1, 0));
  auto position = FindPosition(tree, inside);
  if (!position && tree.CountRows() > 0) position = tree.CountRows() - 1;
  if (!position || position == dragged) return;
  dragged = position;
  const QPointer<TreeWidget> self(this);
  CallGuarded(kWhere, [&] { tree.GetControl().DragTo(*position, modifiers); });
  if (self) Follow();
}

void TreeWidget::mouseMoveEvent(QMouseEvent* event) {
  const auto tree = GetTree();
  if (!tree || !dragged || !event->buttons().testFlag(Qt::LeftButton)) return;
  const QPoint point = event->position().toPoint();
  const bool isInside = point.y() >= 0 && point.y() < viewport()->height();
  if (isInside) {
    dragScroll.stop();
  } else if (!dragScroll.isActive()) {
    dragScroll.start(kDragScrollInterval, this);
  }
  dragPoint = point;
  DoDrag(*tree, point, ToModifiers(event->modifiers()));
}

// The farther beyond the edge, the faster.
void TreeWidget::ScrollWithDrag() {
  FollowNow();
  const auto tree = GetTree();
  if (!tree || !dragged) return dragScroll.stop();
  const int beyond = dragPoint.y() < 0 ? dragPoint.y() : dragPoint.y() - viewport()->height() + 1;
  verticalScrollBar()->setValue(verticalScrollBar()->value() + beyond);
  DoDrag(*tree, dragPoint, ToModifiers(QApplication::keyboardModifiers()));
}

void TreeWidget::timerEvent(QTimerEvent* event) {
  if (event->timerId() == dragScroll.timerId()) {
    ScrollWithDrag();
  } else {
    QAbstractScrollArea::timerEvent(event);
  }
}

void TreeWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) EndDrag();
}

void TreeWidget::EndDrag() {
  dragged.reset();
  dragScroll.stop();
}

// Keys have opened the menu already; a press of the button has selected the row.
void TreeWidget::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
}

void TreeWidget::focusInEvent(QFocusEvent*) {
  viewport()->update();
}

void TreeWidget::focusOutEvent(QFocusEvent*) {
  viewport()->update();
}

}  // namespace standalone
