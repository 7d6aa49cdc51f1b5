#include "standalone/window/TabViewWidget.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include "standalone/runtime/Guard.h"
#include "standalone/window/ControlWidgets.h"
#include "standalone/window/PainterDrawbot.h"
#include "standalone/window/TreeWidget.h"
#include "standalone/window/Utf8.h"

namespace standalone {

TabViewWidget::TabViewWidget(const std::shared_ptr<UIF::TabView>& view, QWidget* parent)
    : QWidget(parent), weakView(view) {
  setAccessibleName(ToQString(view->GetName().View()));
  MakeWidgets(*view);
  connect(qApp, &QApplication::focusChanged, this,
          [this](const QWidget*, const QWidget* now) { FocusMoved(now); });
}

TabViewWidget::~TabViewWidget() {
  // The focus wanders while the widgets of the controls go.
  disconnect(qApp, nullptr, this, nullptr);
  SetOnDuty(false);
}

void TabViewWidget::MakeWidgets(const UIF::TabView& view) {
  QWidget* last = nullptr;
  for (const auto& control : view.GetChildViews()) {
    QWidget* const widget = MakeControlWidget(control, this);
    if (widget == nullptr) continue;
    widgets.emplace_back(control, widget);
    // A table is what the panel is there for, and has no words of its own.
    if (dynamic_cast<TreeWidget*>(widget) != nullptr) widget->setAccessibleName(accessibleName());
    // Reached by keyboard in the order in which the view added its controls.
    if (last != nullptr) setTabOrder(last, widget);
    last = widget;
  }
  for (QWidget* const widget : findChildren<QWidget*>()) widget->installEventFilter(this);
  PlaceWidgets();
}

// A window that is in the background gets the press first, and the focus after it: what the press does
// is done on duty all the same.
bool TabViewWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    const auto* const pressed = static_cast<const QWidget*>(watched);
    const bool takesFocus =
        pressed->focusProxy() != nullptr || (pressed->focusPolicy() & Qt::ClickFocus);
    if (takesFocus) SetOnDuty(true);
  }
  return QWidget::eventFilter(watched, event);
}

void TabViewWidget::PlaceWidgets() {
  for (const auto& [weakControl, widget] : widgets) {
    const auto control = weakControl.Lock();
    if (!control) continue;
    const auto bounds = control->UI_GetBounds();
    widget->setGeometry(QRectF(bounds.left, bounds.top, bounds.width, bounds.height).toRect());
  }
}

QWidget* TabViewWidget::FindWidget(const qelui::ui::UI_Node& control) const {
  for (const auto& [weakControl, widget] : widgets) {
    if (weakControl.Lock().Get() == &control) return widget;
  }
  return nullptr;
}

void TabViewWidget::paintEvent(QPaintEvent*) {
  const auto view = GetView();
  if (!view) return;
  QPainter painter(this);
  CallGuarded("panel background", [&] {
    PainterDrawbot drawbot(painter, fonts);
    view->DrawBackground(drawbot);
  });
}

void TabViewWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const auto view = GetView();
  if (!view) return;
  CallGuarded("panel layout", [&] {
    view->Resize({0, 0, static_cast<float>(width()), static_cast<float>(height())});
  });
  PlaceWidgets();
}

// Nothing has the focus while the program is in the background: that ends no work.
void TabViewWidget::FocusMoved(const QWidget* now) {
  if (now != nullptr) SetOnDuty(now == this || isAncestorOf(now));
}

void TabViewWidget::SetOnDuty(bool onDuty) {
  if (onDuty == isOnDuty) return;
  isOnDuty = onDuty;
  const auto view = GetView();
  if (!view) return;
  CallGuarded("panel duty", [&] { onDuty ? view->NowOnDuty() : view->NowOffDuty(); });
}

}  // namespace standalone
