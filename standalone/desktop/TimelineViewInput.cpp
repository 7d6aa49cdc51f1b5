#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "standalone/desktop/TimelinePainter.h"
#include "standalone/desktop/TimelineView.h"

namespace standalone {

using qelmediatypes::TickTime;

namespace {

/// A notch of the wheel.
constexpr double kWheelZoom = 1.25;
constexpr int kWheelNotch = 120;
/// Pixels that a notch of the wheel scrolls.
constexpr int kWheelPixels = 60;
constexpr int kScrubScrollInterval = 40;

}  // namespace

void TimelineView::wheelEvent(QWheelEvent* event) {
  const QPoint turned = event->angleDelta();
  if (event->modifiers() & Qt::ControlModifier) {
    const double notches = static_cast<double>(turned.y()) / kWheelNotch;
    Zoom(std::pow(kWheelZoom, -notches), event->position().x() - TimelinePicture::kNamesWidth);
  } else if (event->modifiers() & Qt::ShiftModifier) {
    verticalScrollBar()->setValue(verticalScrollBar()->value() -
                                  (turned.y() + turned.x()) * kWheelPixels / kWheelNotch);
  } else {
    const int along = turned.x() != 0 ? turned.x() : turned.y();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() -
                                    along * kWheelPixels / kWheelNotch);
  }
  event->accept();
}

void TimelineView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const QPoint place = event->position().toPoint();
  if (place.x() < TimelinePicture::kNamesWidth) return;
  if (place.y() < TimelinePicture::kRulerHeight) {
    scrubX = place.x();
    scrubScroll.start(kScrubScrollInterval, this);
    MovePlayheadTo(place.x());
  } else {
    SelectAt(place, event->modifiers());
  }
}

void TimelineView::mouseMoveEvent(QMouseEvent* event) {
  if (!scrubX) return;
  scrubX = event->position().toPoint().x();
  MovePlayheadTo(*scrubX);
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  scrubX.reset();
  scrubScroll.stop();
}

void TimelineView::mouseDoubleClickEvent(QMouseEvent* event) {
  const auto item = FindItemAt(event->position().toPoint());
  if (!item) return mousePressEvent(event);
  if (player) player->SetCurrentPosition(item->start);
}

/// The pointer is held beyond an edge: the timeline goes by under it.
void TimelineView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != scrubScroll.timerId() || !scrubX)
    return QAbstractScrollArea::timerEvent(event);
  const int left = TimelinePicture::kNamesWidth;
  if (*scrubX >= left && *scrubX <= viewport()->width()) return;
  const int beyond = *scrubX < left ? *scrubX - left : *scrubX - viewport()->width();
  scale.ScrollTo(scale.ToTime(beyond));
  MovePlayheadTo(*scrubX);
}

/// To the frame under a place of the viewport.
void TimelineView::MovePlayheadTo(int x) {
  if (!player) return;
  const int limited = std::clamp(x, TimelinePicture::kNamesWidth, std::max(viewport()->width() - 1, 0));
  const TickTime time = scale.ToTime(limited - TimelinePicture::kNamesWidth);
  const TickTime frame = content.GetFrameDuration();
  if (frame.GetTicks() < 1) return;
  player->SetCurrentPosition(TickTime(time.ToFrame64(frame) * frame.GetTicks()));
}

std::optional<TimelineItem> TimelineView::FindItemAt(QPoint place) const {
  const int y = place.y() - TimelinePicture::kRulerHeight + verticalScrollBar()->value();
  const bool isOutside =
      place.x() < TimelinePicture::kNamesWidth || place.y() < TimelinePicture::kRulerHeight;
  const auto lane = lanes.FindLaneAt(y);
  if (!lane || isOutside) return std::nullopt;
  return content.FindItemAt(*lane, scale.ToTime(place.x() - TimelinePicture::kNamesWidth));
}

void TimelineView::SelectAt(QPoint place, Qt::KeyboardModifiers modifiers) {
  const auto item = FindItemAt(place);
  const bool isAdding = (modifiers & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
  if (!item && isAdding) return;
  if (!item) {
    selection.Clear();
  } else if (isAdding) {
    selection.Toggle(item->trackItem);
  } else {
    selection.Select(item->trackItem);
  }
  SelectionWasChanged();
}

// The keys of the transport are the window's, the arrows among them.
void TimelineView::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
  switch (isPlain ? event->key() : 0) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return ZoomIn();
    case Qt::Key_Minus:
      return ZoomOut();
    case Qt::Key_Backslash:
      return ZoomToFit();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return SelectAtPlayhead();
    case Qt::Key_Escape:
      if (selection.Count() == 0) return event->ignore();
      selection.Clear();
      return SelectionWasChanged();
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return QAbstractScrollArea::keyPressEvent(event);
    default:
      event->ignore();
  }
}

void TimelineView::SelectAtPlayhead() {
  selection.Clear();
  for (std::size_t lane = 0; lane < lanes.Count(); ++lane) {
    const auto item = content.FindItemAt(lane, GetPosition());
    if (item && !item->isGap) selection.Toggle(item->trackItem);
  }
  SelectionWasChanged();
}

}  // namespace standalone
