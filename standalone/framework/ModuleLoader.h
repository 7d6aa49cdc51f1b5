#pragma once

#include <filesystem>
#include <memory>

#include "host/HSL/Module.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A module's library, loaded: its static registrations have arrived, its entry was called.
/// [main-thread]
class STANDALONE_API LoadedModule {
 public:
  /// Opens the library, records what its static objects register, and calls its exported entry.
  /// Throws: qel_exception with one sentence when the library can't be opened, lacks the entry, or
  /// yields no module; nothing of it is left then.
  explicit LoadedModule(const std::filesystem::path& library);

  /// Unload, if it was not done: drains, but reports no failure.
  ~LoadedModule();
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;

  HSL::Module& GetModule() const noexcept;

  /// Takes the library out of the process: drops the live handlers that its factories made and the
  /// module, drains pool and main queue until both are empty, purges expired listeners, withdraws the
  /// recorded registrations, and releases the library. The caller has closed its panels and stopped
  /// playback before, and has left nothing in a stand-in executor or in the wait for the end of a
  /// nested loop.
  /// Throws: qel_exception when the library is still mapped afterwards.
  void Unload();

 private:
  class State;
  std::unique_ptr<State> state;
};

}  // namespace standalone
