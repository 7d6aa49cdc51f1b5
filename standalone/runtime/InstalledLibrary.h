#pragma once

#include <filesystem>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Where a library of this program, or a further program, lies: beside the program, or beside the
/// host's library, where the build put it. It need not exist. [any-thread]
STANDALONE_API std::filesystem::path FindInstalledLibrary(const char* fileName);

}  // namespace standalone
