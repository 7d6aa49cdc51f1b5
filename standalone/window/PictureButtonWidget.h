#pragma once

#include <QToolButton>

#include "host/qelcore/Reference.h"
#include "host/qelui/Controls.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ControlLink.h"

namespace standalone {

/// Shows a picture button. [main-thread]
class STANDALONE_API PictureButtonWidget final : public QToolButton {
 public:
  PictureButtonWidget(const qelcore::Ref<qelui::controls::UI_PictureButton>& button, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Follow(const qelui::controls::UI_PictureButton& button);

  /// 0: no picture.
  std::uint32_t decal = 0;
  ControlLink<qelui::controls::UI_PictureButton> link;
};

}  // namespace standalone
