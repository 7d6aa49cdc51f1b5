#pragma once

#include "standalone/app/Arguments.h"

namespace standalone {

/// Whether a window can be opened, as far as the environment tells.
bool HasDisplay();

/// Opens the window and returns its exit code when it is closed. Throws: CommandError when there is no
/// display, or the libraries that windows need can't be loaded.
int RunWindow(const WindowArguments& arguments);

}  // namespace standalone
