#pragma once

#include <filesystem>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Where a library of this program, or a further program, lies: beside the program, or beside the
/// host's library, where the build put it. It need not exist. [any-thread]
STANDALONE_API std::filesystem::path FindInstalledLibrary(const char* fileName);

/// The entry of such a library, which is loaded when it is first needed and then stays in the process:
/// what these libraries load themselves does not like to leave. Throws std::runtime_error with the
/// linker's reason. [any-thread]
STANDALONE_API void* LoadInstalledEntry(const char* fileName, const char* entryName);

}  // namespace standalone
