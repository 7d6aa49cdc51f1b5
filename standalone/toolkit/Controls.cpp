#include "host/qelui/Controls.h"

#include <utility>
#include <vector>

#include "standalone/runtime/Guard.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::ui {

Message::Message() = default;
Message::~Message() = default;

}  // namespace qelui::ui

namespace qelui::controls {

class UI_ControlView::State {
 public:
  std::vector<ui::SharedMessageFunction> callbacks;
};

UI_ControlView::UI_ControlView() : state(std::make_unique<State>()) {}
UI_ControlView::~UI_ControlView() = default;

void UI_ControlView::NotifyWhenChanged(ui::SharedMessageFunction callback) {
  standalone::AssertMainThread("UI_ControlView::NotifyWhenChanged");
  state->callbacks.push_back(std::move(callback));
}

void UI_ControlView::BroadcastChanged(const ui::Message& message) {
  // A callback may let go of the control, so nothing of it is used once the first one runs.
  const std::vector<ui::SharedMessageFunction> callbacks = state->callbacks;
  for (const auto& callback : callbacks) {
    standalone::CallGuarded("a control's callback", [&] { (*callback)(message); });
  }
}

UI_ButtonChangedMessage::UI_ButtonChangedMessage(std::uint32_t modifierKeys)
    : modifierKeys(modifierKeys) {}
UI_ButtonChangedMessage::~UI_ButtonChangedMessage() = default;

UI_PictureButton::UI_PictureButton() = default;
UI_PictureButton::~UI_PictureButton() = default;

void UI_PictureButton::Click(std::uint32_t modifierKeys) {
  standalone::AssertMainThread("UI_PictureButton::Click");
  if (UI_IsEnabled()) BroadcastChanged(UI_ButtonChangedMessage(modifierKeys));
}

}  // namespace qelui::controls
