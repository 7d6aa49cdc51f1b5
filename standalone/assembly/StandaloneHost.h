#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "host/UIF/TabView.h"
#include "host/qelui/Geometry.h"
#include "standalone/framework/Framework.h"
#include "standalone/framework/ModuleLoader.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The whole host in one object: runtime, framework, project. The program builds one, and so does each
/// test; members die in reverse order. [main-thread]
class STANDALONE_API StandaloneHost {
 public:
  explicit StandaloneHost(Runtime::Setup setup = Runtime::Setup());
  /// Stops playback, closes the panel, drops handlers, and drains.
  ~StandaloneHost();
  StandaloneHost(const StandaloneHost&) = delete;
  StandaloneHost& operator=(const StandaloneHost&) = delete;

  Runtime& GetRuntime() noexcept { return runtime; }
  Framework& GetFramework() noexcept { return framework; }
  ProjectModel& GetProject() noexcept { return project; }

  /// Opens the panel of a window type in a frame of that room, or returns the open one; empty when no
  /// window class is declared for the type. The workspace holds the panel until ClosePanel.
  std::shared_ptr<UIF::TabView> OpenPanel(
      std::string_view windowTypeID = UIF::kSequenceIndexWindowTypeID,
      const qelui::Rect& room = qelui::Rect{0, 0, 1584, 910});
  std::shared_ptr<UIF::TabView> GetPanel() const noexcept { return panel; }
  /// Lets go of the panel. Its handler keeps it until it makes another one or is dropped.
  void ClosePanel();

 private:
  Runtime runtime;
  Framework framework;
  ProjectModel project;
  std::shared_ptr<UIF::TabView> panel;
};

/// Where the module's library lies: beside the program, or where the build put it.
STANDALONE_API std::filesystem::path GetModuleLibraryPath();

}  // namespace standalone
