#pragma once

#include <QLabel>

#include "host/qelcore/Reference.h"
#include "host/qelui/Controls.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ControlLink.h"

namespace standalone {

/// Shows a text. [main-thread]
class STANDALONE_API StaticTextWidget final : public QLabel {
 public:
  StaticTextWidget(const qelcore::Ref<qelui::controls::UI_StaticText>& text, QWidget* parent);

 private:
  ControlLink<qelui::controls::UI_StaticText> link;
};

}  // namespace standalone
