#include "standalone/window/PopupMenu.h"

#include <QCursor>
#include <QMenu>
#include <QPointer>
#include <cmath>

#include "host/qelui/Menu.h"
#include "standalone/window/NodeWidgets.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

constexpr std::uint32_t kSeparator = 0;

/// "&" stands for itself in the toolkit's texts, not for a key.
QString MakeItemText(const qelcore::UTF8String& text) {
  QString shown = ToQString(text.View());
  return shown.replace('&', "&&");
}

void AddItem(QMenu& menu, const MenuItem& item) {
  if (item.commandID == kSeparator) {
    menu.addSeparator();
    return;
  }
  QAction* const action = menu.addAction(MakeItemText(item.text));
  action->setData(item.commandID);
  action->setCheckable(item.isChecked);
  action->setChecked(item.isChecked);
}

QPoint FindPlace(const QWidget* widget, qelui::Point position) {
  if (widget == nullptr) return QCursor::pos();
  return widget->mapToGlobal(QPointF(position.x, position.y)).toPoint();
}

}  // namespace

std::uint32_t ChooseFromMenu(const std::vector<MenuItem>& items, qelui::ui::UI_Node& node,
                             qelui::Point position) {
  QWidget* const widget = FindNodeWidget(node);
  // Owned by the widget too, which may go while the menu is open.
  const QPointer<QMenu> menu(new QMenu(widget));
  for (const MenuItem& item : items) AddItem(*menu, item);
  const QAction* const chosen = menu->exec(FindPlace(widget, position));
  if (!menu) return qelui::ui::kMenuDismissed;
  const std::uint32_t command = chosen == nullptr ? qelui::ui::kMenuDismissed : chosen->data().toUInt();
  delete menu;
  return command;
}

}  // namespace standalone
