#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "host/HSL/Handler.h"
#include "host/UIF/ShortcutManager.h"
#include "standalone/framework/Framework.h"
#include "standalone/framework/RegistrationScope.h"

namespace standalone {

/// What the framework knows: the registries behind `UIF` and `HSL`.
class Framework::State {
 public:
  State();

  // Handlers.
  void AddLiveHandler(const std::shared_ptr<HSL::Handler>& handler);
  /// The live handler registered last for an id, or empty.
  std::shared_ptr<HSL::Handler> FindLiveHandler(std::string_view handlerID) const;
  /// A new handler of that id, held until it is dropped; empty when there is none to be had.
  std::shared_ptr<HSL::Handler> CreateHandler(std::string_view handlerID);
  /// Lets go of the handlers created, newest first.
  void DropHandlers() noexcept;
  /// The same for the handlers that a library's factories made.
  void DropHandlersOf(LibraryID library) noexcept;

  // Command contexts.
  std::shared_ptr<UIF::CommandContext> FindContext(std::string_view id) const;
  std::shared_ptr<UIF::CommandContext> AddContext(std::string_view id,
                                                  const qelcore::UTF8String& title);

  // Windows.
  void AddWindowClass(WindowClass windowClass);
  void RemoveWindowClass(std::string_view windowTypeID) noexcept;
  /// Adds a panel's menu, which goes with the window class declared last: a handler declares its class
  /// first and then brings what belongs to it.
  void AddWindowMenu(WindowMenu menu);

  /// Forgets what a library registered and did not withdraw itself, and the handlers that are gone.
  void Withdraw(LibraryID library) noexcept;

  std::vector<WindowClass> windowClasses;
  std::vector<WindowEntry> windowEntries;
  std::vector<WindowMenu> windowMenus;
  bool isWorkspaceBeingLoaded = false;

 private:
  struct CreatedHandler {
    std::shared_ptr<HSL::Handler> handler;
    LibraryID library;
  };
  struct Context {
    std::shared_ptr<UIF::CommandContext> context;
    LibraryID library;
  };

  void PurgeLiveHandlers() noexcept;

  std::vector<std::weak_ptr<HSL::Handler>> liveHandlers;
  std::vector<CreatedHandler> createdHandlers;
  std::vector<Context> contexts;
};

}  // namespace standalone
