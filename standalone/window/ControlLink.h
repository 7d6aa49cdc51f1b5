#pragma once

#include <QScopedValueRollback>
#include <QWidget>
#include <functional>
#include <utility>

#include "host/qelcore/CountedObject.h"
#include "host/qelcore/Reference.h"
#include "standalone/runtime/Guard.h"
#include "standalone/window/NodeWatch.h"
#include "standalone/window/NodeWidgets.h"
#include "standalone/window/ToolTip.h"

namespace standalone {

/// Ties a widget to the control that it shows: the widget takes over what changes in the control, and
/// hands it what the user does. Holds the control weakly; once it is gone the widget is disabled.
/// [main-thread]
template <typename Control>
class ControlLink {
 public:
  /// @param follow takes over the control's value; `widget` owns this link
  ControlLink(const qelcore::Ref<Control>& control, QWidget& widget,
              std::function<void(const Control&)> follow)
      : control(control), widget(widget), follow(std::move(follow)), place(*control, widget) {
    watch = NodeWatch(
        control, [this] { Follow(); }, [&widget] { widget.setEnabled(false); });
    Follow();
  }
  ControlLink(const ControlLink&) = delete;
  ControlLink& operator=(const ControlLink&) = delete;

  /// Hands the control what the user did; a failure goes to the host's log. Nothing happens while the
  /// widget takes over a change, which its own signals would report back.
  template <typename Action>
  void Do(const char* what, Action&& action) {
    if (isFollowing) return;
    const auto held = control.Lock();
    if (held) CallGuarded(what, [&] { action(*held); });
  }

 private:
  void Follow() {
    const auto held = control.Lock();
    if (!held) return;
    const QScopedValueRollback following(isFollowing, true);
    widget.setEnabled(held->UI_IsEnabled());
    widget.setToolTip(MakeToolTip(held->UI_GetToolTip().View(), held->UI_GetToolTipWidth()));
    follow(*held);
  }

  const qelcore::WeakRef<Control> control;
  QWidget& widget;
  const std::function<void(const Control&)> follow;
  const NodeWidget place;
  NodeWatch watch;
  bool isFollowing = false;
};

}  // namespace standalone
