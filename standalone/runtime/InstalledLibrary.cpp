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
  std::error_code failure;
  return fs::absolute(library.dli_fname, failure).parent_path();
}

}  // namespace

fs::path FindInstalledLibrary(const char* fileName) {
  // Never in the current folder, where anybody may have put a library.
  const fs::path folder = GetFolderOfProgram();
  std::error_code ignored;
  if (!folder.empty() && fs::exists(folder / fileName, ignored)) return folder / fileName;
  return GetFolderOfHostLibrary() / fileName;
}

}  // namespace standalone
