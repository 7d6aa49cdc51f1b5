#include "host/qelui/Controls.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::controls {

using standalone::AssertMainThread;

UI_TextChangedMessage::UI_TextChangedMessage() = default;
UI_TextChangedMessage::~UI_TextChangedMessage() = default;

class UI_TextEdit::State {
 public:
  qelcore::UTF8String text;
};

UI_TextEdit::UI_TextEdit() : state(std::make_unique<State>()) {}
UI_TextEdit::~UI_TextEdit() = default;

qelcore::UTF8String UI_TextEdit::GetValueUTF8() const {
  AssertMainThread("UI_TextEdit::GetValueUTF8");
  return state->text;
}

void UI_TextEdit::Type(const qelcore::UTF8String& text) {
  AssertMainThread("UI_TextEdit::Type");
  if (!UI_IsEnabled()) return;
  state->text = text;
  UI_Invalidate();
  BroadcastChangedInteractively(UI_TextChangedMessage());
}

void UI_TextEdit::Commit() {
  AssertMainThread("UI_TextEdit::Commit");
  if (UI_IsEnabled()) BroadcastChanged(UI_TextChangedMessage());
}

UI_SearchBox::UI_SearchBox(bool hasClearButton, bool isKeepingHistory)
    : hasClearButton(hasClearButton), isKeepingHistory(isKeepingHistory) {}
UI_SearchBox::~UI_SearchBox() = default;

}  // namespace qelui::controls
