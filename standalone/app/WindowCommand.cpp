#include "standalone/app/WindowCommand.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <string>

#include "standalone/app/CommandError.h"
#include "standalone/app/DocumentReading.h"
#include "standalone/desktop/contract/DesktopEntry.h"
#include "standalone/runtime/InstalledLibrary.h"

namespace standalone {

namespace {

constexpr const char* kLibrary = "libsequence_index_window.so";

/// Each of these says where windows are shown.
constexpr std::array kDisplayVariables = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};

RunDesktopFunction LoadWindowLibrary() {
  try {
    return reinterpret_cast<RunDesktopFunction>(LoadInstalledEntry(kLibrary, kRunDesktopSymbol));
  } catch (const std::exception& failure) {
    throw CommandError("The window can't be opened: " + std::string(failure.what()) +
                       "; the command \"table\" works without one.");
  }
}

}  // namespace

bool HasDisplay() {
  return std::ranges::any_of(kDisplayVariables, [](const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
  });
}

int RunWindow(const WindowArguments& arguments) {
  if (!HasDisplay()) {
    throw CommandError("There is no display to open a window on; the command \"table\" works without.");
  }
  DesktopArguments desktop;
  desktop.files.assign(arguments.files.begin(), arguments.files.end());
  desktop.loading.import.mediaRoots = arguments.reading.mediaRoots;
  desktop.loading.isProbing = arguments.reading.isProbing;
  desktop.loading.effects = ReadWantedEffects(arguments.reading);
  desktop.loading.timeFormat = arguments.timeFormat;
  desktop.version = SEQUENCE_INDEX_VERSION;
  return LoadWindowLibrary()(desktop);
}

}  // namespace standalone
