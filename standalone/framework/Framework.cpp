#include "standalone/framework/Framework.h"

#include <cstdio>
#include <cstdlib>

#include "standalone/framework/FactoryRegistry.h"
#include "standalone/framework/FrameworkState.h"
#include "standalone/runtime/Runtime.h"

namespace standalone {

namespace {

Framework* currentFramework = nullptr;

[[noreturn]] void Stop(const char* sentence) {
  std::fputs(sentence, stderr);
  std::fputc('\n', stderr);
  std::abort();
}

}  // namespace

Framework::Framework() : state(std::make_unique<State>()) {
  AssertMainThread("Framework::Framework");
  if (currentFramework != nullptr) Stop("a second framework was built");
  currentFramework = this;
}

Framework::~Framework() {
  DropHandlers();
  currentFramework = nullptr;
}

Framework& Framework::Current() {
  if (currentFramework == nullptr) Stop("there is no framework");
  return *currentFramework;
}

bool Framework::Exists() noexcept {
  return currentFramework != nullptr;
}

const std::vector<WindowClass>& Framework::GetWindowClasses() const {
  return state->windowClasses;
}
const std::vector<WindowEntry>& Framework::GetWindowEntries() const {
  return state->windowEntries;
}
const std::vector<WindowMenu>& Framework::GetWindowMenus() const {
  return state->windowMenus;
}

std::shared_ptr<HSL::Handler> Framework::ProvideHandler(std::string_view handlerID) {
  AssertMainThread("Framework::ProvideHandler");
  if (auto live = state->FindLiveHandler(handlerID)) return live;
  return state->CreateHandler(handlerID);
}

void Framework::ProvideHandlers() {
  for (const std::string& id : GetRegisteredHandlerFactories()) ProvideHandler(id);
}

void Framework::DropHandlers() {
  AssertMainThread("Framework::DropHandlers");
  state->DropHandlers();
}

void Framework::SetWorkspaceIsBeingLoaded(bool isBeingLoaded) {
  AssertMainThread("Framework::SetWorkspaceIsBeingLoaded");
  state->isWorkspaceBeingLoaded = isBeingLoaded;
}

}  // namespace standalone
