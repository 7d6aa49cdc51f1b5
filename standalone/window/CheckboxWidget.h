#pragma once

#include <QCheckBox>

#include "host/qelcore/Reference.h"
#include "host/qelui/Controls.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ControlLink.h"

namespace standalone {

/// Shows a checkbox. [main-thread]
class STANDALONE_API CheckboxWidget final : public QCheckBox {
 public:
  CheckboxWidget(const qelcore::Ref<qelui::controls::UI_Checkbox>& box, QWidget* parent);

 protected:
  /// A click is the control's affair, which answers with a value.
  void nextCheckState() override;

 private:
  void Follow(const qelui::controls::UI_Checkbox& box);

  ControlLink<qelui::controls::UI_Checkbox> link;
};

}  // namespace standalone
