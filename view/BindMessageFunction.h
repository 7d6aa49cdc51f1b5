#pragma once

#include <memory>

#include "host/qelui/Controls.h"

namespace Vantrel {

/// A callback for a control that calls `operation` on `view` with the control's message, only while
/// the view is alive, and holds it for the call.
template <typename View>
qelui::ui::SharedMessageFunction BindMessageFunction(void (View::*operation)(const qelui::ui::Message&),
                                                     const std::weak_ptr<View>& view) {
  return std::make_shared<const qelui::ui::MessageFunction>(
      [operation, view](const qelui::ui::Message& message) {
        if (const auto alive = view.lock()) ((*alive).*operation)(message);
      });
}

}  // namespace Vantrel
