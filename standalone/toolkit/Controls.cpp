#include "host/qelui/Controls.h"

#include <utility>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/CallbackList.h"

namespace qelui::ui {

Message::Message() = default;
Message::~Message() = default;

}  // namespace qelui::ui

namespace qelui::controls {

class UI_ControlView::State {
 public:
  standalone::CallbackList callbacks;
};

UI_ControlView::UI_ControlView() : state(std::make_unique<State>()) {}
UI_ControlView::~UI_ControlView() = default;

void UI_ControlView::NotifyWhenChanged(ui::SharedMessageFunction callback) {
  standalone::AssertMainThread("UI_ControlView::NotifyWhenChanged");
  state->callbacks.Add(std::move(callback));
}

void UI_ControlView::BroadcastChanged(const ui::Message& message) {
  state->callbacks.Run(message);
}

class UI_InteractiveControlView::State {
 public:
  standalone::CallbackList callbacks;
};

UI_InteractiveControlView::UI_InteractiveControlView() : state(std::make_unique<State>()) {}
UI_InteractiveControlView::~UI_InteractiveControlView() = default;

void UI_InteractiveControlView::NotifyWhenChangedInteractively(ui::SharedMessageFunction callback) {
  standalone::AssertMainThread("UI_InteractiveControlView::NotifyWhenChangedInteractively");
  state->callbacks.Add(std::move(callback));
}

void UI_InteractiveControlView::BroadcastChangedInteractively(const ui::Message& message) {
  state->callbacks.Run(message);
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
