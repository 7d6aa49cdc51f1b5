#include "host/UIF/TabView.h"

#include <algorithm>
#include <utility>

#include "standalone/runtime/Runtime.h"

namespace UIF {

using standalone::AssertMainThread;

ViewBase::ViewBase() = default;
ViewBase::~ViewBase() = default;

void ViewBase::SetBounds(const qelui::Rect& newBounds) {
  AssertMainThread("ViewBase::SetBounds");
  bounds = newBounds;
  bounds.width = std::max(newBounds.width, 0.0F);
  bounds.height = std::max(newBounds.height, 0.0F);
}

class TabView::State {
 public:
  qelcore::UTF8String name;
  std::function<void()> nameWatcher;
  std::vector<qelcore::Ref<qelui::ui::UI_SubView>> children;
  std::shared_ptr<WorkspaceFrame> frame;
  bool hasChildViews = false;
  bool isDoubleBuffered = false;
};

TabView::TabView(Application&) : state(std::make_unique<State>()) {}
TabView::~TabView() = default;

void TabView::Create(std::string_view, const qelcore::UTF8String& title,
                     const std::shared_ptr<WorkspaceFrame>& frame, bool) {
  AssertMainThread("TabView::Create");
  state->frame = frame;
  SetBounds(frame->GetBounds());
  SetName(title);
  CreateContentsSelf();
}

void TabView::Resize(const qelui::Rect& newBounds) {
  AssertMainThread("TabView::Resize");
  SetBounds(newBounds);
  LayoutSelf(GetBounds());
}

void TabView::SetName(const qelcore::UTF8String& title) {
  AssertMainThread("TabView::SetName");
  state->name = title;
  // A copy: it may be replaced while it is called.
  if (const auto watcher = state->nameWatcher) watcher();
}

void TabView::SetNameWatcher(std::function<void()> watcher) {
  AssertMainThread("TabView::SetNameWatcher");
  state->nameWatcher = std::move(watcher);
}

const qelcore::UTF8String& TabView::GetName() const noexcept {
  return state->name;
}

void TabView::AddChildView(const qelcore::Ref<qelui::ui::UI_SubView>& control) {
  AssertMainThread("TabView::AddChildView");
  state->children.push_back(control);
}

const std::vector<qelcore::Ref<qelui::ui::UI_SubView>>& TabView::GetChildViews() const noexcept {
  return state->children;
}

void TabView::SetHasQELChildViews(bool hasChildViews) {
  AssertMainThread("TabView::SetHasQELChildViews");
  state->hasChildViews = hasChildViews;
}

void TabView::EnableDoubleBuffering(bool isEnabled) {
  AssertMainThread("TabView::EnableDoubleBuffering");
  state->isDoubleBuffered = isEnabled;
}

void TabView::DrawBackground(qelui::Drawbot&) {}

std::string_view TabView::GetWingMenuID() const {
  return {};
}

void TabView::LayoutSelf(const qelui::Rect&) {}
void TabView::CreateContentsSelf() {}

}  // namespace UIF
