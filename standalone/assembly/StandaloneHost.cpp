#include "standalone/assembly/StandaloneHost.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace standalone {

StandaloneHost::StandaloneHost(Runtime::Setup setup) : runtime(std::move(setup)) {}

StandaloneHost::~StandaloneHost() {
  project.StopPlayback();
  ClosePanel();
  framework.DropHandlers();
  runtime.Drain();
}

std::shared_ptr<UIF::TabView> StandaloneHost::OpenPanel(std::string_view windowTypeID,
                                                        const qelui::Rect& room) {
  AssertMainThread("StandaloneHost::OpenPanel");
  if (panel != nullptr) return panel;
  framework.ProvideHandlers();
  const auto& classes = framework.GetWindowClasses();
  const auto found = std::ranges::find(classes, windowTypeID, &WindowClass::windowTypeID);
  if (found == classes.end()) return nullptr;
  const std::string handlerID = found->handlerID;
  const auto handler = framework.ProvideHandler(handlerID);
  if (handler == nullptr) return nullptr;
  panel = handler->CreateTabViewSelf(std::make_shared<UIF::WorkspaceFrame>(room));
  return panel;
}

void StandaloneHost::ClosePanel() {
  AssertMainThread("StandaloneHost::ClosePanel");
  panel.reset();
}

}  // namespace standalone
