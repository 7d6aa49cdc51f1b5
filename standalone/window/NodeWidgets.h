#pragma once

#include <QWidget>

#include "host/qelui/Node.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Says, for its lifetime, which widget shows a control: there menus of the control open.
/// [main-thread]
class STANDALONE_API NodeWidget {
 public:
  /// Neither is owned; the widget is the owner of this object.
  NodeWidget(const qelui::ui::UI_Node& node, QWidget& widget);
  ~NodeWidget();
  NodeWidget(const NodeWidget&) = delete;
  NodeWidget& operator=(const NodeWidget&) = delete;

 private:
  const qelui::ui::UI_Node* node;
  QWidget* widget;
};

/// The widget whose top left corner is the control's; null when none shows it. [main-thread]
STANDALONE_API QWidget* FindNodeWidget(const qelui::ui::UI_Node& node);

}  // namespace standalone
