#include "host/UIF/TabView.h"
#include "standalone/runtime/Runtime.h"

namespace UIF {

WorkspaceFrame::WorkspaceFrame(const qelui::Rect& bounds) : bounds(bounds) {}
WorkspaceFrame::~WorkspaceFrame() = default;

TabViewCreator::TabViewCreator() = default;
TabViewCreator::~TabViewCreator() = default;

std::shared_ptr<TabView> TabViewCreator::CreateTabViewSelf(
    const std::shared_ptr<WorkspaceFrame>& frame) {
  standalone::AssertMainThread("TabViewCreator::CreateTabViewSelf");
  return CreateTabView(frame);
}

bool TabViewCreator::ShouldHideWhenClosed() const {
  return false;
}
bool TabViewCreator::ShouldRestoreWithWorkspace() const {
  return false;
}
bool TabViewCreator::ShouldSaveStateWhenDestroyed() const {
  return true;
}

}  // namespace UIF
