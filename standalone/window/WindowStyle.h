#pragma once

#include <QProxyStyle>
#include <QStyleOptionSlider>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// How widgets of the window system are drawn: in the palette's colours, with check boxes, radio
/// buttons and sliders that can be told from a dark background. [main-thread]
class STANDALONE_API WindowStyle final : public QProxyStyle {
 public:
  WindowStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;

 private:
  void DrawCheckBox(const QStyleOption& option, QPainter& painter) const;
  void DrawRadioButton(const QStyleOption& option, QPainter& painter) const;
  void DrawSlider(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget) const;
};

}  // namespace standalone
