#include <QApplication>
#include <algorithm>
#include <thread>

#include "standalone/assembly/StandaloneHost.h"
#include "standalone/desktop/DesktopWindow.h"
#include "standalone/desktop/PlacesFile.h"
#include "standalone/desktop/contract/DesktopEntry.h"
#include "standalone/runtime/FeatureRegistry.h"
#include "standalone/window/MainQueueNotifier.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

constexpr const char* kIndexFeature = "SequenceIndex";
/// Names a file for PlacesFile; for tests that drive the program from outside.
constexpr const char* kPlacesVariable = "SEQUENCE_INDEX_PLACES";

Runtime::Setup MakeSetup() {
  Runtime::Setup setup;
  setup.poolThreads = std::max(2U, std::thread::hardware_concurrency());
  return setup;
}

/// The toolkit wants arguments that outlive it.
struct ProgramName {
  char name[15] = "sequence-index";
  char* arguments[2] = {name, nullptr};
  int count = 1;
};

}  // namespace

}  // namespace standalone

// In this order: the window goes before the panel's module, which goes before the host.
extern "C" STANDALONE_API int RunSequenceIndexDesktop(const standalone::DesktopArguments& arguments) {
  using namespace standalone;
  static ProgramName program;
  QApplication application(program.count, program.arguments);
  QApplication::setOrganizationName("sequence-index");
  QApplication::setApplicationName("sequence-index");
  QApplication::setApplicationDisplayName("Sequence Index");
  QApplication::setApplicationVersion(ToQString(arguments.version));

  StandaloneHost host(MakeSetup());
  const LoadedModule module(GetModuleLibraryPath());
  SwitchFeature(kIndexFeature, true);
  const MainQueueNotifier notifier(host.GetRuntime().GetMainQueue());
  DesktopWindow window(host, arguments.loading);
  const PlacesFile places(qEnvironmentVariable(kPlacesVariable));
  window.show();
  window.activateWindow();
  window.OpenFiles(arguments.files);
  return QApplication::exec();
}
