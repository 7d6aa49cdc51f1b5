#include <QDesktopServices>
#include <QMenu>
#include <QUrl>

#include "host/UIF/Windows.h"
#include "host/qelappsupport/Features.h"
#include "host/qelcore/Localizer.h"
#include "host/qelui/Controls.h"
#include "standalone/desktop/DesktopWindow.h"
#include "standalone/runtime/FeatureRegistry.h"
#include "standalone/runtime/Guard.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

QString Localise(const std::string& key) {
  return ToQString(qelcore::config::Localizer::Get().Localize(key).View());
}

}  // namespace

void DesktopWindow::OpenIndexPanel() {
  if (panelDock) {
    panelDock->raise();
    return;
  }
  std::shared_ptr<UIF::TabView> view;
  CallGuarded("panel", [&] { view = host.OpenPanel(); });
  if (!view) return;
  PanelDock::Actions actions;
  actions.obey = [this](UIF::CommandID id) { ObeyPanelCommand(id); };
  actions.closed = [this] { ClosePanel(); };
  panelDock = new PanelDock(view, std::move(actions), this);
  panelDock->setObjectName("panel");
  // In the same run it goes back to where it was closed, in the next to where it was left.
  if (!panelSize && restoreDockWidget(panelDock)) return;
  addDockWidget(panelArea, panelDock);
  if (!panelSize) return;
  resizeDocks({panelDock}, {panelSize->width()}, Qt::Horizontal);
  resizeDocks({panelDock}, {panelSize->height()}, Qt::Vertical);
}

void DesktopWindow::ClosePanel() {
  PanelDock* const closed = panelDock;
  panelDock = nullptr;
  if (closed != nullptr && !closed->isFloating()) {
    panelArea = dockWidgetArea(closed);
    panelSize = closed->size();
  }
  CallGuarded("panel", [&] { host.ClosePanel(); });
  if (closed != nullptr) closed->deleteLater();
}

// The window may go while a command asks for something.
void DesktopWindow::ObeyPanelCommand(UIF::CommandID id) {
  const auto view = host.GetPanel();
  if (!view) return statusLine->Say("The Sequence Index is closed; the Window menu opens it.");
  const QPointer<DesktopWindow> self(this);
  bool isObeyed = false;
  CallGuarded("panel command", [&] { isObeyed = view->ObeyCommand(UIF::Command(id)); });
  if (!self) return;
  const auto file = dialogs.TakeFileToOpen();
  if (isObeyed && id == kExportCommand && file) QDesktopServices::openUrl(QUrl::fromLocalFile(*file));
}

void DesktopWindow::FillWindowMenu(QMenu& menu, QMenu& features) {
  menu.clear();
  for (const WindowEntry& entry : host.GetFramework().GetWindowEntries()) {
    QAction* const action = menu.addAction(ToQString(entry.title.View()));
    action->setCheckable(true);
    action->setChecked(!panelDock.isNull());
    connect(action, &QAction::triggered, this, [this] {
      if (panelDock) {
        panelDock->close();
      } else {
        OpenIndexPanel();
      }
    });
  }
  menu.addAction(sequenceDock->toggleViewAction());
  menu.addAction(reportDock->toggleViewAction());
  menu.addSeparator();
  FillFeatureMenu(features);
  menu.addMenu(&features);
}

void DesktopWindow::FillFeatureMenu(QMenu& menu) {
  menu.clear();
  for (const FeatureEntry& feature : GetRegisteredFeatures()) {
    QAction* const action = menu.addAction(Localise(feature.titleKey));
    action->setToolTip(Localise(feature.descriptionKey));
    action->setCheckable(true);
    action->setChecked(qelappsupport::feature::IsFeatureEnabled(feature.name));
    connect(action, &QAction::triggered, this,
            [this, name = feature.name](bool isOn) { SwitchFeatureOn(name, isOn); });
  }
}

void DesktopWindow::SwitchFeatureOn(const std::string& name, bool isOn) {
  SwitchFeature(name, isOn);
  if (isOn) {
    OpenIndexPanel();
  } else {
    // The panel exists only while its feature is on, and so does its handler's entry in the menu.
    ClosePanel();
    host.GetFramework().DropHandlers();
  }
}

template <typename Control>
Control* DesktopWindow::FindControl() const {
  const auto view = host.GetPanel();
  if (!view) return nullptr;
  for (const auto& child : view->GetChildViews()) {
    if (auto* const control = dynamic_cast<Control*>(child.Get())) return control;
  }
  return nullptr;
}

void DesktopWindow::FocusSearchField() {
  OpenIndexPanel();
  const auto* const field = FindControl<qelui::controls::UI_SearchBox>();
  if (field == nullptr || !panelDock) return;
  if (QWidget* const widget = panelDock->GetPanel().FindWidget(*field)) {
    widget->setFocus(Qt::ShortcutFocusReason);
  }
}

void DesktopWindow::EditFilters() {
  OpenIndexPanel();
  const qelcore::Ref<qelui::controls::UI_PictureButton> button(
      FindControl<qelui::controls::UI_PictureButton>());
  constexpr std::uint32_t kNoModifierKeys = 0;
  if (button) CallGuarded("filter button", [&] { button->Click(kNoModifierKeys); });
}

void DesktopWindow::ScaleRows(double step) {
  const qelcore::Ref<qelui::controls::UI_Slider> slider(FindControl<qelui::controls::UI_Slider>());
  if (!slider) return;
  CallGuarded("row slider", [&] {
    slider->DragTo(slider->GetValue() + step);
    slider->Commit();
  });
}

}  // namespace standalone
