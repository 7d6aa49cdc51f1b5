#include "standalone/framework/ModuleLoader.h"

#include <exception>

#include "host/HSL/Module.h"
#include "host/qelcore/Exceptions.h"
#include "host/qelcore/UTF8String.h"
#include "standalone/framework/FactoryRegistry.h"
#include "standalone/framework/FrameworkState.h"
#include "standalone/framework/RegistrationScope.h"
#include "standalone/framework/SharedLibrary.h"
#include "standalone/runtime/Guard.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/StationRegistry.h"

namespace standalone {

namespace {

using Path = std::filesystem::path;

/// Vantrel::CreateModule(const qelcore::UTF8String&).
constexpr const char* kEntrySymbol = "_ZN7Vantrel12CreateModuleERKN7qelcore10UTF8StringE";
using Entry = HSL::Module* (*)(const qelcore::UTF8String& moduleID);

Entry FindEntry(const SharedLibrary& library, const Path& path) {
  void* const symbol = library.FindSymbol(kEntrySymbol);
  if (symbol == nullptr) ThrowCannotBeLoaded(path, "it does not export Vantrel::CreateModule");
  return reinterpret_cast<Entry>(symbol);
}

/// The module's exceptions may be of its own types, so none of them leaves while it is being loaded.
std::unique_ptr<HSL::Module> CreateModule(const SharedLibrary& library, const Path& path) {
  const Entry entry = FindEntry(library, path);
  std::unique_ptr<HSL::Module> module;
  try {
    module.reset(entry(qelcore::UTF8String(HSL::kSequenceIndexModuleID)));
  } catch (const std::exception& failure) {
    ThrowCannotBeLoaded(path, failure.what());
  } catch (...) {
    ThrowCannotBeLoaded(path, "its entry failed");
  }
  if (module == nullptr) ThrowCannotBeLoaded(path, "its entry made no module");
  return module;
}

/// What the host holds on behalf of a library: queued work, expired subscriptions, registrations.
/// Destroyed before the library is given back, it lets go of all that.
class HostHoldings {
 public:
  explicit HostHoldings(LibraryID library) noexcept : library(library) {}
  HostHoldings(const HostHoldings&) = delete;
  HostHoldings& operator=(const HostHoldings&) = delete;

  ~HostHoldings() {
    Runtime& runtime = Runtime::Current();
    CallGuarded("unloading a module", [&] { runtime.Drain(); });
    runtime.GetStations().PurgeExpired();
    GetHandlerFactories().Withdraw(library);
    GetModuleFactories().Withdraw(library);
    Framework::Current().GetState().Withdraw(library);
  }

  LibraryID GetLibrary() const noexcept { return library; }

 private:
  LibraryID library;
};

}  // namespace

class LoadedModule::State {
 public:
  State(const Path& path, LibraryID id)
      : path(path), library(path), holdings(id), module(CreateModule(library, path)) {}
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  // The members then go from the last to the first: module, the host's holdings, library.
  ~State() { Framework::Current().GetState().DropHandlersOf(holdings.GetLibrary()); }

  const Path& GetPath() const noexcept { return path; }
  HSL::Module& GetModule() const noexcept { return *module; }

 private:
  Path path;
  SharedLibrary library;
  HostHoldings holdings;
  std::unique_ptr<HSL::Module> module;
};

LoadedModule::LoadedModule(const Path& library) {
  AssertMainThread("LoadedModule::LoadedModule");
  const LibraryID id = MakeLibraryID();
  const RegistrationScope scope(id);
  state = std::make_unique<State>(std::filesystem::absolute(library), id);
}

LoadedModule::~LoadedModule() = default;

HSL::Module& LoadedModule::GetModule() const noexcept {
  return state->GetModule();
}

void LoadedModule::Unload() {
  AssertMainThread("LoadedModule::Unload");
  if (state == nullptr) return;
  const Path path = state->GetPath();
  state.reset();
  if (SharedLibrary::IsLoaded(path)) {
    throw qelcore::config::qel_exception(
        qelcore::config::ExceptionKind::kGeneric,
        path.native() + ": is still in the process after its unloading", path.native());
  }
}

}  // namespace standalone
