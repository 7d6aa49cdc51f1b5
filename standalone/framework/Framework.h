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
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A panel class that a handler declared.
struct WindowClass {
  std::string windowTypeID;
  std::string handlerID;
  UIF::WindowClassType type{};
};

/// An entry of the Window menu.
struct WindowEntry {
  std::string windowTypeID;
  std::uint32_t windowID = 0;
  qelcore::UTF8String title;
  std::uint32_t windowContextID = 0;
};

/// A panel's entry in the Window menu, with the menu it brings along.
struct WindowMenu {
  std::string id;
  qelcore::UTF8String title;
  std::string wingMenuID;
};

/// The application framework's registries: window classes and entries, command contexts, live handlers,
/// whether a workspace is being loaded. One exists at a time, after the Runtime. [main-thread]
class STANDALONE_API Framework {
 public:
  Framework();
  ~Framework();
  Framework(const Framework&) = delete;
  Framework& operator=(const Framework&) = delete;

  static Framework& Current();

  const std::vector<WindowClass>& GetWindowClasses() const;
  const std::vector<WindowEntry>& GetWindowEntries() const;
  const std::vector<WindowMenu>& GetWindowMenus() const;

  /// Creates the handler of `handlerID` through its registered factory, or returns the live one. Empty
  /// when there is no factory, or the factory yields none.
  std::shared_ptr<HSL::Handler> ProvideHandler(std::string_view handlerID);
  /// Lets go of the live handlers, newest first.
  void DropHandlers();

  void SetWorkspaceIsBeingLoaded(bool isBeingLoaded);

  class State;
  State& GetState() noexcept { return *state; }

 private:
  std::unique_ptr<State> state;
};

/// Switches a beta feature on or off, registered yet or not. [any-thread]
STANDALONE_API void SwitchFeature(std::string_view name, bool isOn);

/// A registered beta feature, for the menu that switches it.
struct FeatureEntry {
  std::string name;
  std::uint32_t stage = 0;
  std::string titleKey;
  std::string descriptionKey;
  std::string trackingKey;
  std::uint32_t visibility = 0;
  std::uint32_t changes = 0;
  std::uint32_t defaultEnablement = 0;
};
STANDALONE_API std::vector<FeatureEntry> GetRegisteredFeatures();

/// The ids for which a factory is registered, in the order registered.
STANDALONE_API std::vector<std::string> GetRegisteredHandlerFactories();
STANDALONE_API std::vector<std::string> GetRegisteredModuleFactories();

}  // namespace standalone
