#include "standalone/desktop/PanelDock.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <array>
#include <utility>

#include "standalone/runtime/Guard.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

/// The commands of panels' wing menus that the program knows. The first two are kept for later and are
/// never enabled.
constexpr std::array kWingCommands = {
    PanelCommand{36001, "Reserved (36001)"},
    PanelCommand{36002, "Reserved (36002)"},
    PanelCommand{kExportCommand, "Export Sequence Index…"},
};

}  // namespace

PanelDock::PanelDock(const std::shared_ptr<UIF::TabView>& view, Actions actions, QWidget* parent)
    : QDockWidget(parent), weakView(view), actions(std::move(actions)), panel(new TabViewWidget(view)) {
  setWidget(panel);
  MakeTitleBar();
  view->SetNameWatcher([this] { FollowName(); });
  FollowName();
}

PanelDock::~PanelDock() {
  if (const auto view = weakView.lock()) view->SetNameWatcher({});
}

void PanelDock::MakeTitleBar() {
  auto* const bar = new QWidget(this);
  auto* const layout = new QHBoxLayout(bar);
  layout->setContentsMargins(12, 4, 8, 4);
  title = new QLabel();
  title->setTextFormat(Qt::PlainText);
  auto* const wing = new QToolButton();
  auto* const menu = new QMenu(wing);
  wing->setText("≡");
  wing->setAutoRaise(true);
  wing->setPopupMode(QToolButton::InstantPopup);
  wing->setAccessibleName("Panel menu");
  wing->setToolTip("Panel menu");
  wing->setMenu(menu);
  wing->setStyleSheet("QToolButton::menu-indicator { image: none; }");
  connect(menu, &QMenu::aboutToShow, this, [this, menu] { FillWingMenu(*menu); });
  auto* const close = new QToolButton();
  close->setText("×");
  close->setAutoRaise(true);
  close->setAccessibleName("Close panel");
  close->setToolTip("Close panel");
  connect(close, &QToolButton::clicked, this, [this] { this->close(); });
  layout->addWidget(title);
  layout->addStretch();
  layout->addWidget(wing);
  layout->addWidget(close);
  setTitleBarWidget(bar);
}

void PanelDock::FillWingMenu(QMenu& menu) {
  menu.clear();
  const auto view = weakView.lock();
  if (!view || view->GetWingMenuID().empty()) return;
  for (const PanelCommand& command : kWingCommands) {
    bool isEnabled = false;
    bool isKnown = false;
    CallGuarded("panel command", [&] { isKnown = view->FindCommandStatus(command.id, isEnabled); });
    if (!isKnown) continue;
    QAction* const action = menu.addAction(command.title);
    action->setEnabled(isEnabled);
    connect(action, &QAction::triggered, this, [this, id = command.id] { actions.obey(id); });
  }
}

void PanelDock::FollowName() {
  const auto view = weakView.lock();
  if (!view) return;
  const QString name = ToQString(view->GetName().View());
  setWindowTitle(name);
  title->setText(name);
  panel->setAccessibleName(name);
}

void PanelDock::closeEvent(QCloseEvent* event) {
  QDockWidget::closeEvent(event);
  if (event->isAccepted()) actions.closed();
}

}  // namespace standalone
