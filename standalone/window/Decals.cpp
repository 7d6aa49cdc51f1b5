#include "standalone/window/Decals.h"

#include <QPainter>
#include <QPainterPath>

#include "host/UIF/Decals.h"
#include "standalone/toolkit/ThemeColors.h"
#include "standalone/window/Colors.h"

namespace standalone {

namespace {

/// A funnel in a square of one by one.
QPainterPath MakeFunnel() {
  QPainterPath funnel(QPointF(0.02, 0.08));
  funnel.lineTo(0.98, 0.08);
  funnel.lineTo(0.6, 0.52);
  funnel.lineTo(0.6, 0.95);
  funnel.lineTo(0.4, 0.8);
  funnel.lineTo(0.4, 0.52);
  funnel.closeSubpath();
  return funnel;
}

void DrawFunnel(QPainter& painter, const QRect& area, bool isOn, bool isEnabled) {
  const ThemeColors& colors = GetThemeColors();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.topLeft());
  painter.scale(area.width(), area.height());
  const QColor active = ToQColor(isOn ? colors.accent : colors.text);
  const QColor color = isEnabled ? active : ToQColor(colors.disabledText);
  painter.setPen(QPen(color, 0.09, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(isOn ? QBrush(color) : Qt::NoBrush);
  painter.drawPath(MakeFunnel());
  painter.restore();
}

}  // namespace

void DrawDecal(QPainter& painter, std::uint32_t decal, const QRect& area, bool isEnabled) {
  const bool isOn = decal == UIF::kUIFFilterNotificationOnDecal;
  if (isOn || decal == UIF::kUIFFilterNotificationOffDecal) DrawFunnel(painter, area, isOn, isEnabled);
}

QString DescribeDecal(std::uint32_t decal) {
  if (decal == UIF::kUIFFilterNotificationOffDecal) return "Filters";
  if (decal == UIF::kUIFFilterNotificationOnDecal) return "Filters, active";
  return {};
}

}  // namespace standalone
