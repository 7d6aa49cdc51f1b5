#include "standalone/assembly/StandaloneHost.h"
#include "standalone/runtime/InstalledLibrary.h"

namespace standalone {

std::filesystem::path GetModuleLibraryPath() {
  return FindInstalledLibrary("SequenceIndex.so");
}

}  // namespace standalone
