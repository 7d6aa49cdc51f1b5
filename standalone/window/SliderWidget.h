#pragma once

#include <QSlider>

#include "host/qelcore/Reference.h"
#include "host/qelui/Controls.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ControlLink.h"

namespace standalone {

/// Shows a slider, in a thousand steps. [main-thread]
class STANDALONE_API SliderWidget final : public QSlider {
 public:
  static constexpr int kSteps = 1000;

  SliderWidget(const qelcore::Ref<qelui::controls::UI_Slider>& slider, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void Follow(const qelui::controls::UI_Slider& slider);

  bool isJumpingToPointer;
  ControlLink<qelui::controls::UI_Slider> link;
};

}  // namespace standalone
