#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "standalone/documents/DocumentLoading.h"

namespace standalone {

/// What the desktop program is started with.
struct DesktopArguments {
  /// Files to open.
  std::vector<std::filesystem::path> files;
  LoadingOptions loading;
  /// Of the program, for people.
  std::string version;
};

/// Runs the desktop program until its window is closed; the exit code. Called once in a process, on its
/// main thread, with nothing of the host there yet. Throws: qel_exception when the module can't be
/// loaded.
using RunDesktopFunction = int (*)(const DesktopArguments& arguments);

/// How the program finds it in the window library, which it loads when a window is wanted.
inline constexpr const char* kRunDesktopSymbol = "RunSequenceIndexDesktop";

}  // namespace standalone
