#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/HSL/Handler.h"
#include "host/UIF/ShortcutManager.h"
#include "host/UIF/TabView.h"
#include "host/UIF/Windows.h"
#include "host/qelcore/UTF8String.h"
#include "standalone/runtime/FeatureRegistry.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A panel class that a handler declared.
struct WindowClass {
  std::string windowTypeID;
  std::string handlerID;
  UIF::WindowClassType type{};
  /// The library whose code declared it; 0: linked into the program. So in the two below.
  std::uint64_t library = 0;
};

/// An entry of the Window menu.
struct WindowEntry {
  std::string windowTypeID;
  std::uint32_t windowID = 0;
  qelcore::UTF8String title;
  std::uint32_t windowContextID = 0;
  std::uint64_t library = 0;
};

/// A panel's entry in the Window menu, with the menu it brings along.
struct WindowMenu {
  std::string id;
  qelcore::UTF8String title;
  std::string wingMenuID;
  /// The window class it goes with: the one that was declared last before it; may be empty.
  std::string windowTypeID;
  std::uint64_t library = 0;
};

/// The application framework's registries: window classes and entries, command contexts, live handlers,
/// whether a workspace is being loaded. One exists at a time, after the Runtime. [main-thread]
class STANDALONE_API Framework {
 public:
  Framework();
  ~Framework();
  Framework(const Framework&) = delete;
  Framework& operator=(const Framework&) = delete;

  /// The framework that exists. Aborts with a sentence when there is none.
  static Framework& Current();
  static bool Exists() noexcept;

  const std::vector<WindowClass>& GetWindowClasses() const;
  const std::vector<WindowEntry>& GetWindowEntries() const;
  const std::vector<WindowMenu>& GetWindowMenus() const;

  /// Creates the handler of `handlerID` through its registered factory, or returns the live one. Empty
  /// when there is no factory, or the factory yields none.
  std::shared_ptr<HSL::Handler> ProvideHandler(std::string_view handlerID);
  /// Provides the handlers of all registered factories, so that each declares its panel and its entry
  /// in the Window menu.
  void ProvideHandlers();
  /// Lets go of the live handlers, newest first.
  void DropHandlers();

  void SetWorkspaceIsBeingLoaded(bool isBeingLoaded);

  class State;
  State& GetState() noexcept { return *state; }

 private:
  std::unique_ptr<State> state;
};

/// The ids for which a factory is registered, in the order registered.
STANDALONE_API std::vector<std::string> GetRegisteredHandlerFactories();
STANDALONE_API std::vector<std::string> GetRegisteredModuleFactories();

}  // namespace standalone
