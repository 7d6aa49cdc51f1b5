#include "standalone/runtime/InstalledLibrary.h"

#include <dlfcn.h>

#include <system_error>

namespace standalone {

namespace {

namespace fs = std::filesystem;

fs::path GetFolderOfProgram() {
  std::error_code failure;
  return fs::read_symlink("/proc/self/exe", failure).parent_path();
}

fs::path GetFolderOfHostLibrary() {
  Dl_info library;
  if (dladdr(reinterpret_cast<const void*>(&FindInstalledLibrary), &library) == 0) return {};
  return fs::absolute(library.dli_fname).parent_path();
}

}  // namespace

fs::path FindInstalledLibrary(const char* fileName) {
  fs::path besideProgram = GetFolderOfProgram() / fileName;
  std::error_code ignored;
  if (fs::exists(besideProgram, ignored)) return besideProgram;
  return GetFolderOfHostLibrary() / fileName;
}

}  // namespace standalone
