#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace UIF {

/// A group of commands whose shortcuts apply together.
class CommandContext {
 public:
  CommandContext(std::string_view id, qelcore::UTF8String title) : id(id), title(std::move(title)) {}
  const std::string& GetID() const noexcept { return id; }
  const qelcore::UTF8String& GetTitle() const noexcept { return title; }

 private:
  std::string id;
  qelcore::UTF8String title;
};

/// The registry of command contexts and of menus that panels bring. All operations are [main-thread].
class HOST_API ShortcutManager {
 public:
  ShortcutManager(const ShortcutManager&) = delete;
  ShortcutManager& operator=(const ShortcutManager&) = delete;

  static ShortcutManager& Instance();

  /// Lists a panel's entry in the Window menu, and names its wing (flyout) menu. Adding an identifier
  /// again replaces its title and wing menu.
  void AddWindowMenuID(std::string_view id, const qelcore::UTF8String& title,
                       std::string_view wingMenuID);

  using RegisterFunction = void (*)(ShortcutManager& manager);
  /// Calls `function` with this manager, now; the function adds its contexts.
  void RegisterCommandContext(RegisterFunction function);

  /// The context of that identifier, or null. "global" always exists.
  std::shared_ptr<CommandContext> GetContext(std::string_view id) const;
  /// Adds a context and returns it; for a known identifier returns the one that exists.
  std::shared_ptr<CommandContext> AddContext(std::string_view id, const qelcore::UTF8String& title);

 protected:
  ShortcutManager();
  ~ShortcutManager();
};

}  // namespace UIF
