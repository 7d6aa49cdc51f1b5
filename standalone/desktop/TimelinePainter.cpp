#include "standalone/desktop/TimelinePainter.h"

#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "host/ZSL/Timecode.h"
#include "standalone/desktop/TextColor.h"
#include "standalone/timeline/RulerMarks.h"
#include "standalone/toolkit/ThemeColors.h"
#include "standalone/window/Colors.h"
#include "standalone/window/Utf8.h"

namespace standalone {

using qelmediatypes::TickTime;

namespace {

constexpr int kTextInset = 6;
/// Narrower items have no room for a name.
constexpr int kNarrowestNamed = 24;
constexpr int kTransitionWidth = 14;
constexpr int kPlayheadGrip = 6;
constexpr int kHatchDistance = 8;
/// Of what hatches offline clips; to be told from a red label, too.
const QColor kOfflineOnDark(255, 120, 110);
const QColor kOfflineOnLight(150, 20, 20);

QColor Blend(const QColor& over, const QColor& under, double part) {
  const auto mix = [part](int a, int b) {
    return static_cast<int>(std::lround(a * part + b * (1 - part)));
  };
  return {mix(over.red(), under.red()), mix(over.green(), under.green()),
          mix(over.blue(), under.blue())};
}

class Painter {
 public:
  Painter(QPainter& painter, const TimelinePicture& picture)
      : painter(painter), picture(picture), colors(GetThemeColors()) {}

  void PaintAll() {
    painter.fillRect(QRect(QPoint(), picture.size), ToQColor(colors.tabBackground));
    PaintLanes();
    PaintRuler();
    PaintNames();
    PaintPlayhead();
  }

 private:
  QRect GetLaneArea(std::size_t lane) const {
    const QRect body = picture.GetBodyArea();
    return {body.left(), body.top() + picture.lanes.GetTop(lane) - picture.scrolledDown, body.width(),
            picture.lanes.GetHeight(lane)};
  }
  bool IsInView(const QRect& laneArea) const {
    return laneArea.bottom() >= TimelinePicture::kRulerHeight && laneArea.top() < picture.size.height();
  }
  int ToX(TickTime time) const {
    const double x = picture.scale.ToX(time);
    // Far outside is far enough: widths of 32 bits must not overflow.
    return TimelinePicture::kNamesWidth + static_cast<int>(std::floor(std::clamp(x, -1e6, 1e6)));
  }

  void PaintLanes() {
    painter.save();
    painter.setClipRect(picture.GetBodyArea());
    for (std::size_t lane = 0; lane < picture.lanes.Count(); ++lane) {
      const QRect area = GetLaneArea(lane);
      if (!IsInView(area)) continue;
      PaintLane(lane, area);
    }
    painter.restore();
  }

  void PaintLane(std::size_t lane, const QRect& area) {
    painter.fillRect(area.adjusted(0, 0, 0, -1), ToQColor(colors.rowBackground));
    painter.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), ToQColor(colors.divider));
    const bool isDimmed = picture.content.GetLanes()[lane].isDisabledOrMuted;
    picture.content.VisitItems(
        lane, picture.scale.GetStart(), picture.scale.GetEnd(), [&](const TimelineItem& item) {
          const int left = ToX(item.start);
          const int right = std::max(ToX(item.end), left + 1);
          PaintItem(item, QRect(left, area.top(), right - left, area.height() - 1), isDimmed);
          // What ends within the pixel that was drawn last adds nothing to the picture.
          return std::max(item.end, picture.scale.ToTime(right - TimelinePicture::kNamesWidth));
        });
  }

  void PaintItem(const TimelineItem& item, const QRect& area, bool isDimmed) {
    const bool isSelected = picture.selection.Contains(item.trackItem);
    if (item.isGap) {
      if (isSelected) PaintSelectionFrame(area);
      return;
    }
    const QColor under = ToQColor(colors.rowBackground);
    const QColor label(item.labelColor.red, item.labelColor.green, item.labelColor.blue);
    const QColor fill = Blend(label, under, item.isDisabled || isDimmed ? 0.35 : 0.85);
    painter.fillRect(area, fill);
    if (item.isOffline) {
      PaintHatch(area, GetTheme() == ThemeName::kDark ? kOfflineOnDark : kOfflineOnLight);
    }
    if (item.isDisabled) PaintHatch(area, ToQColor(colors.disabledText));
    if (item.hasHeadTransition) PaintTransition(area, true);
    if (item.hasTailTransition) PaintTransition(area, false);
    PaintItemName(item, area, fill);
    painter.fillRect(QRect(area.left(), area.top(), 1, area.height()), Blend(fill, Qt::black, 0.6));
    if (isSelected) PaintSelectionFrame(area);
  }

  void PaintItemName(const TimelineItem& item, const QRect& area, const QColor& fill) {
    const QRect body = picture.GetBodyArea();
    const QRect seen = area.intersected(body).adjusted(kTextInset, 0, -kTextInset / 2, 0);
    if (seen.width() < kNarrowestNamed) return;
    painter.setPen(FindTextColor(fill));
    const QString name =
        painter.fontMetrics().elidedText(ToQString(item.name.View()), Qt::ElideRight, seen.width());
    painter.drawText(seen, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, name);
  }

  void PaintSelectionFrame(const QRect& area) {
    painter.setPen(QPen(ToQColor(colors.text), 2));
    painter.setBrush(Qt::NoBrush);
    const QRect seen = area.intersected(picture.GetBodyArea().adjusted(-4, -4, 4, 4));
    painter.drawRect(seen.adjusted(1, 1, -1, -1));
  }

  void PaintHatch(const QRect& area, const QColor& color) {
    const QRect seen = area.intersected(picture.GetBodyArea());
    if (seen.width() < kHatchDistance / 2) return;
    painter.save();
    painter.setClipRect(seen, Qt::IntersectClip);
    painter.setPen(QPen(color, 1.5));
    painter.setRenderHint(QPainter::Antialiasing);
    const int first = seen.left() - (seen.left() - seen.top()) % kHatchDistance - seen.height();
    for (int x = first; x < seen.right(); x += kHatchDistance) {
      painter.drawLine(x, seen.bottom() + 1, x + seen.height(), seen.top());
    }
    painter.restore();
  }

  /// A wedge at the cut.
  void PaintTransition(const QRect& area, bool isAtHead) {
    const int width = std::min(kTransitionWidth, area.width() / 2);
    if (width < 3) return;
    const int cut = isAtHead ? area.left() : area.right() + 1;
    const int inner = isAtHead ? cut + width : cut - width;
    QPainterPath wedge(QPointF(cut, area.top()));
    wedge.lineTo(inner, area.top());
    wedge.lineTo(cut, area.bottom() + 1);
    wedge.closeSubpath();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(wedge, QColor(255, 255, 255, 110));
    painter.restore();
  }

  void PaintRuler() {
    const QRect area(0, 0, picture.size.width(), TimelinePicture::kRulerHeight);
    painter.fillRect(area, ToQColor(colors.headerBackground));
    painter.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), ToQColor(colors.divider));
    painter.save();
    painter.setClipRect(picture.GetRulerArea());
    painter.setPen(ToQColor(colors.headerText));
    const TimeNotation& notation = picture.content.GetNotation();
    const int labelWidth = painter.fontMetrics().horizontalAdvance("00:00:00:00") + 3 * kTextInset;
    for (const RulerMark& mark : FindRulerMarks(picture.scale, notation, labelWidth)) {
      const int x = ToX(mark.time);
      const int height = mark.hasLabel ? 10 : 5;
      painter.drawLine(x, area.bottom() - height, x, area.bottom() - 1);
      if (!mark.hasLabel) continue;
      const ZSL::Timecode time(notation.zeroPoint + mark.time, notation.frameDuration,
                               notation.display);
      const QString text = ToQString(time.GetStringUTF8().View());
      if (x + 4 + painter.fontMetrics().horizontalAdvance(text) > area.right()) continue;
      painter.drawText(QRect(x + 4, 0, labelWidth, area.height() - 8), Qt::AlignLeft | Qt::AlignVCenter,
                       text);
    }
    painter.restore();
  }

  void PaintNames() {
    painter.save();
    painter.setClipRect(
        QRect(0, TimelinePicture::kRulerHeight, TimelinePicture::kNamesWidth, picture.size.height()));
    for (std::size_t lane = 0; lane < picture.lanes.Count(); ++lane) {
      const QRect area = GetLaneArea(lane);
      if (!IsInView(area)) continue;
      PaintName(picture.content.GetLanes()[lane],
                QRect(0, area.top(), TimelinePicture::kNamesWidth, area.height()));
    }
    painter.restore();
    painter.fillRect(QRect(TimelinePicture::kNamesWidth - 1, 0, 1, picture.size.height()),
                     ToQColor(colors.divider));
  }

  void PaintName(const TimelineLane& lane, const QRect& area) {
    painter.fillRect(area.adjusted(0, 0, 0, -1), ToQColor(colors.headerBackground));
    painter.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), ToQColor(colors.divider));
    const QRect text = area.adjusted(kTextInset + 2, 0, -kTextInset, 0);
    painter.setPen(ToQColor(lane.isDisabledOrMuted ? colors.disabledText : colors.headerText));
    const QString state = DescribeState(lane);
    const int stateWidth =
        state.isEmpty() ? 0 : painter.fontMetrics().horizontalAdvance(state) + kTextInset;
    painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, state);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(ToQString(lane.name.View()), Qt::ElideRight,
                                                      text.width() - stateWidth));
  }

  static QString DescribeState(const TimelineLane& lane) {
    QString state;
    if (lane.isDisabledOrMuted) state = lane.isVideo ? "off" : "mute";
    if (lane.isLocked) state += state.isEmpty() ? "lock" : ", lock";
    return state;
  }

  void PaintPlayhead() {
    if (picture.lanes.Count() == 0) return;
    const int x = ToX(picture.position);
    if (x < TimelinePicture::kNamesWidth || x > picture.size.width()) return;
    const QColor color = ToQColor(colors.accent);
    painter.fillRect(QRect(x, 0, 1, picture.size.height()), color);
    QPainterPath grip(QPointF(x - kPlayheadGrip + 0.5, TimelinePicture::kRulerHeight - 12));
    grip.lineTo(x + kPlayheadGrip + 0.5, TimelinePicture::kRulerHeight - 12);
    grip.lineTo(x + 0.5, TimelinePicture::kRulerHeight - 1);
    grip.closeSubpath();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(grip, color);
    painter.restore();
  }

  QPainter& painter;
  const TimelinePicture& picture;
  const ThemeColors& colors;
};

}  // namespace

void PaintTimeline(QPainter& painter, const TimelinePicture& picture) {
  Painter(painter, picture).PaintAll();
}

}  // namespace standalone
