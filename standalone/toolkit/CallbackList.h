#pragma once

#include <utility>
#include <vector>

#include "host/qelui/Controls.h"
#include "standalone/runtime/Guard.h"

namespace standalone {

/// The callbacks of a control for one kind of change. [main-thread]
class CallbackList {
 public:
  void Add(qelui::ui::SharedMessageFunction callback) { callbacks.push_back(std::move(callback)); }

  /// Runs them in the order added; one that fails is logged, and the others still run.
  void Run(const qelui::ui::Message& message) const {
    // A callback may let go of the control, so nothing of it is used once the first one runs.
    const std::vector<qelui::ui::SharedMessageFunction> held = callbacks;
    for (const auto& callback : held) {
      CallGuarded("a control's callback", [&] { (*callback)(message); });
    }
  }

 private:
  std::vector<qelui::ui::SharedMessageFunction> callbacks;
};

}  // namespace standalone
