#include "host/UIF/Application.h"

#include "standalone/framework/FrameworkState.h"
#include "standalone/runtime/Runtime.h"

namespace UIF {

namespace {
class StandaloneApplication final : public Application {};
class StandaloneWorkspace final : public Workspace {};
}  // namespace

Application::Application() = default;
Application::~Application() = default;

Application& Application::Instance() {
  static StandaloneApplication instance;
  return instance;
}

Workspace::Workspace() = default;
Workspace::~Workspace() = default;

Workspace& Workspace::Instance() {
  static StandaloneWorkspace instance;
  return instance;
}

bool Workspace::IsBeingLoaded() const {
  standalone::AssertMainThread("Workspace::IsBeingLoaded");
  return standalone::Framework::Current().GetState().isWorkspaceBeingLoaded;
}

}  // namespace UIF
