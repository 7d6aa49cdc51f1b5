#include "host/UIF/ShortcutManager.h"

#include "standalone/framework/FrameworkState.h"
#include "standalone/runtime/Runtime.h"

namespace UIF {

using standalone::AssertMainThread;
using standalone::Framework;

namespace {

/// The registry lies in the framework that exists; this is only the name by which it is reached.
class FrameworkShortcutManager final : public ShortcutManager {};

}  // namespace

ShortcutManager::ShortcutManager() = default;
ShortcutManager::~ShortcutManager() = default;

ShortcutManager& ShortcutManager::Instance() {
  static FrameworkShortcutManager instance;
  return instance;
}

void ShortcutManager::AddWindowMenuID(std::string_view id, const qelcore::UTF8String& title,
                                      std::string_view wingMenuID) {
  AssertMainThread("ShortcutManager::AddWindowMenuID");
  Framework::Current().GetState().AddWindowMenu(
      {std::string(id), title, std::string(wingMenuID), {}, standalone::RegistrationScope::Current()});
}

void ShortcutManager::RegisterCommandContext(RegisterFunction function) {
  AssertMainThread("ShortcutManager::RegisterCommandContext");
  function(*this);
}

std::shared_ptr<CommandContext> ShortcutManager::GetContext(std::string_view id) const {
  AssertMainThread("ShortcutManager::GetContext");
  return Framework::Current().GetState().FindContext(id);
}

std::shared_ptr<CommandContext> ShortcutManager::AddContext(std::string_view id,
                                                            const qelcore::UTF8String& title) {
  AssertMainThread("ShortcutManager::AddContext");
  return Framework::Current().GetState().AddContext(id, title);
}

}  // namespace UIF
