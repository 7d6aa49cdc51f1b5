#include "standalone/window/SliderWidget.h"
#include "standalone/window/Utf8.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <cmath>

namespace standalone {

using qelui::controls::SliderDirection;
using qelui::controls::UI_Slider;

namespace {

Qt::Orientation ToOrientation(SliderDirection direction) {
  return direction == SliderDirection::kVertical ? Qt::Vertical : Qt::Horizontal;
}

}  // namespace

SliderWidget::SliderWidget(const qelcore::Ref<UI_Slider>& slider, QWidget* parent)
    : QSlider(ToOrientation(slider->GetDirection()), parent),
      isJumpingToPointer(slider->IsJumpingToPointer()),
      link(slider, *this, [this](const UI_Slider& shown) { Follow(shown); }) {
  setSingleStep(kSteps / 50);
  setPageStep(kSteps / 10);
  connect(this, &QSlider::valueChanged, this, [this](int step) {
    link.Do("slider", [this, step](UI_Slider& dragged) {
      const double range = dragged.GetMaximum() - dragged.GetMinimum();
      dragged.DragTo(dragged.GetMinimum() + range * step / kSteps);
      // Keys and the wheel let go at once.
      if (!isSliderDown()) dragged.Commit();
    });
  });
  connect(this, &QSlider::sliderReleased, this,
          [this] { link.Do("slider", [](UI_Slider& released) { released.Commit(); }); });
}

void SliderWidget::Follow(const UI_Slider& slider) {
  const double range = slider.GetMaximum() - slider.GetMinimum();
  const double part = range > 0 ? (slider.GetValue() - slider.GetMinimum()) / range : 0;
  setRange(0, kSteps);
  setValue(static_cast<int>(std::lround(part * kSteps)));
  setAccessibleName(ToQString(slider.UI_GetToolTip().View()));
}

void SliderWidget::mousePressEvent(QMouseEvent* event) {
  if (isJumpingToPointer && event->button() == Qt::LeftButton) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect knob =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (!knob.contains(event->position().toPoint())) {
      const bool isVertical = orientation() == Qt::Vertical;
      const int length = (isVertical ? height() - knob.height() : width() - knob.width());
      const int at = isVertical ? height() - static_cast<int>(event->position().y()) - knob.height() / 2
                                : static_cast<int>(event->position().x()) - knob.width() / 2;
      setValue(QStyle::sliderValueFromPosition(minimum(), maximum(), at, length));
    }
  }
  QSlider::mousePressEvent(event);
}

}  // namespace standalone
