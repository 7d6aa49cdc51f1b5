#include "standalone/window/WindowStyle.h"

#include <QPainter>
#include <algorithm>

#include "standalone/toolkit/ThemeColors.h"
#include "standalone/window/Colors.h"

namespace standalone {

namespace {

/// The one style of every system that draws all of a widget in the palette's colours.
constexpr const char* kBaseStyle = "Fusion";
constexpr double kCorner = 2.5;
constexpr int kGrooveHeight = 3;

/// Saves the painter's state for its lifetime.
class PainterState {
 public:
  explicit PainterState(QPainter& painter) : painter(painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
  }
  ~PainterState() { painter.restore(); }
  PainterState(const PainterState&) = delete;
  PainterState& operator=(const PainterState&) = delete;

 private:
  QPainter& painter;
};

QColor GetLineColor(bool isEnabled) {
  const ThemeColors& colors = GetThemeColors();
  return ToQColor(isEnabled ? colors.headerText : colors.disabledText);
}

}  // namespace

WindowStyle::WindowStyle() : QProxyStyle(kBaseStyle) {}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  if (element == PE_IndicatorCheckBox) return DrawCheckBox(*option, *painter);
  if (element == PE_IndicatorRadioButton) return DrawRadioButton(*option, *painter);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void WindowStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
  const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control != CC_Slider || slider == nullptr) {
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  DrawSlider(*slider, *painter, widget);
}

void WindowStyle::DrawCheckBox(const QStyleOption& option, QPainter& painter) const {
  const PainterState state(painter);
  const ThemeColors& colors = GetThemeColors();
  const bool isOn = (option.state & State_On) != 0;
  const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool isEnabled = (option.state & State_Enabled) != 0;
  painter.setPen(isOn ? ToQColor(colors.accent) : GetLineColor(isEnabled));
  painter.setBrush(ToQColor(isOn ? colors.accent : colors.fieldBackground));
  painter.drawRoundedRect(box, kCorner, kCorner);
  const QPointF corner = box.topLeft();
  const double size = box.width();
  painter.setPen(QPen(isOn ? Qt::white : GetLineColor(isEnabled), 1.8));
  if (isOn) {
    painter.drawPolyline(
        QPolygonF({corner + QPointF(0.22, 0.52) * size, corner + QPointF(0.42, 0.72) * size,
                   corner + QPointF(0.78, 0.28) * size}));
  } else if ((option.state & State_NoChange) != 0) {
    painter.drawLine(corner + QPointF(0.25, 0.5) * size, corner + QPointF(0.75, 0.5) * size);
  }
}

void WindowStyle::DrawRadioButton(const QStyleOption& option, QPainter& painter) const {
  const PainterState state(painter);
  const ThemeColors& colors = GetThemeColors();
  const bool isOn = (option.state & State_On) != 0;
  const QRectF circle = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(isOn ? ToQColor(colors.accent) : GetLineColor((option.state & State_Enabled) != 0));
  painter.setBrush(ToQColor(isOn ? colors.accent : colors.fieldBackground));
  painter.drawEllipse(circle);
  if (!isOn) return;
  const double inset = circle.width() * 0.3;
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::white);
  painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
}

void WindowStyle::DrawSlider(const QStyleOptionSlider& option, QPainter& painter,
                             const QWidget* widget) const {
  const PainterState state(painter);
  const ThemeColors& colors = GetThemeColors();
  const QRect room = proxy()->subControlRect(CC_Slider, &option, SC_SliderGroove, widget);
  const QRect knob = proxy()->subControlRect(CC_Slider, &option, SC_SliderHandle, widget);
  QRect groove = room;
  if (option.orientation == Qt::Horizontal) {
    groove = QRect(room.left(), room.center().y() - 1, room.width(), kGrooveHeight);
  } else {
    groove = QRect(room.center().x() - 1, room.top(), kGrooveHeight, room.height());
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToQColor(colors.divider));
  painter.drawRoundedRect(groove, kGrooveHeight / 2.0, kGrooveHeight / 2.0);
  const double diameter = std::min(knob.width(), knob.height()) - 2.0;
  QRectF circle(0, 0, diameter, diameter);
  circle.moveCenter(QRectF(knob).center());
  const bool hasFocus = (option.state & State_HasFocus) != 0;
  painter.setBrush(hasFocus ? ToQColor(colors.accent)
                            : GetLineColor((option.state & State_Enabled) != 0));
  painter.drawEllipse(circle);
}

}  // namespace standalone
