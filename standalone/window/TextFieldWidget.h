#pragma once

#include <QLineEdit>

#include "host/qelcore/Reference.h"
#include "host/qelui/Controls.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ControlLink.h"

namespace standalone {

/// Shows a text field: each change is typed into the control, Enter and leaving the field commit it. A
/// search field has a button that empties it, as Escape does. [main-thread]
class STANDALONE_API TextFieldWidget final : public QLineEdit {
 public:
  TextFieldWidget(const qelcore::Ref<qelui::controls::UI_TextEdit>& field, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Follow(const qelui::controls::UI_TextEdit& field);

  ControlLink<qelui::controls::UI_TextEdit> link;
};

}  // namespace standalone
