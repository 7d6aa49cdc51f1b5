#include <dlfcn.h>

#include <system_error>

#include "standalone/assembly/StandaloneHost.h"

namespace standalone {

namespace {

namespace fs = std::filesystem;

constexpr const char* kLibraryName = "SequenceIndex.so";

fs::path GetFolderOfProgram() {
  std::error_code failure;
  return fs::read_symlink("/proc/self/exe", failure).parent_path();
}

fs::path GetFolderOfHostLibrary() {
  Dl_info library;
  if (dladdr(reinterpret_cast<const void*>(&GetModuleLibraryPath), &library) == 0) return {};
  return fs::absolute(library.dli_fname).parent_path();
}

}  // namespace

fs::path GetModuleLibraryPath() {
  const fs::path besideProgram = GetFolderOfProgram() / kLibraryName;
  std::error_code ignored;
  if (fs::exists(besideProgram, ignored)) return besideProgram;
  return GetFolderOfHostLibrary() / kLibraryName;
}

}  // namespace standalone
