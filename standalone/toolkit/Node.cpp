#include "host/qelui/Node.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::ui {

namespace {
constexpr unsigned kNoDelay = 0;
constexpr bool kAlsoInNestedLoops = true;
}  // namespace

UI_Node::UI_Node() = default;
UI_Node::~UI_Node() = default;

void UI_Node::UI_SetEnabled(bool enabled) {
  standalone::AssertMainThread("UI_Node::UI_SetEnabled");
  if (enabled == isEnabled) return;
  isEnabled = enabled;
  UI_Invalidate();
}

bool UI_Node::UI_IsEnabled() const {
  standalone::AssertMainThread("UI_Node::UI_IsEnabled");
  return isEnabled;
}

void UI_Node::UI_SetBounds(const Rect& newBounds) {
  standalone::AssertMainThread("UI_Node::UI_SetBounds");
  const Rect before = bounds;
  bounds = newBounds;
  bounds.width = std::max(newBounds.width, 0.0F);
  bounds.height = std::max(newBounds.height, 0.0F);
  if (bounds != before) UI_Invalidate();
}

Rect UI_Node::UI_GetBounds() const {
  standalone::AssertMainThread("UI_Node::UI_GetBounds");
  return bounds;
}

void UI_Node::UI_SetToolTip(const qelcore::UTF8String& text, std::uint32_t maximumWidth) {
  standalone::AssertMainThread("UI_Node::UI_SetToolTip");
  if (text == toolTip && maximumWidth == toolTipWidth) return;
  toolTip = text;
  toolTipWidth = maximumWidth;
  UI_Invalidate();
}

const qelcore::UTF8String& UI_Node::UI_GetToolTip() const {
  standalone::AssertMainThread("UI_Node::UI_GetToolTip");
  return toolTip;
}

std::uint32_t UI_Node::UI_GetToolTipWidth() const {
  standalone::AssertMainThread("UI_Node::UI_GetToolTipWidth");
  return toolTipWidth;
}

void UI_Node::UI_Invalidate() {
  standalone::AssertMainThread("UI_Node::UI_Invalidate");
  // Held, since the watcher may set another one, or let go of the control.
  const std::function<void()> held = watcher;
  if (held) held();
}

void UI_Node::UI_SetWatcher(std::function<void()> newWatcher) {
  standalone::AssertMainThread("UI_Node::UI_SetWatcher");
  watcher = std::move(newWatcher);
}

void UI_Node::DeleteSelf() noexcept {
  if (!standalone::Runtime::Exists() || qelcore::threads::CurrentThreadIsMainThread()) {
    CountedObject::DeleteSelf();
    return;
  }
  // The queued function owns the control, so that it goes even if the queue is dropped without running.
  // It is the only owner: the main thread may be done with it before this call returns.
  std::shared_ptr<UI_Node> last(this, [](UI_Node* node) { node->CountedObject::DeleteSelf(); });
  qelcore::threads::CallFromMainThread([last = std::move(last)] {}, kNoDelay, kAlsoInNestedLoops);
}

UI_SubView::UI_SubView() = default;
UI_SubView::~UI_SubView() = default;

void UI_SubView::UI_Draw(Drawbot&) {
  standalone::AssertMainThread("UI_SubView::UI_Draw");
}

bool UI_SubView::UI_DoMouseEvent(const MouseEvent&) {
  standalone::AssertMainThread("UI_SubView::UI_DoMouseEvent");
  return false;
}

}  // namespace qelui::ui
