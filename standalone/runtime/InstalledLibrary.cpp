#include "standalone/runtime/InstalledLibrary.h"

#include <dlfcn.h>

#include <stdexcept>
#include <string>
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

void* LoadInstalledEntry(const char* fileName, const char* entryName) {
  const std::string path = FindInstalledLibrary(fileName).native();
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  void* const entry = library == nullptr ? nullptr : dlsym(library, entryName);
  if (entry != nullptr) return entry;
  const char* const reason = dlerror();
  throw std::runtime_error(reason == nullptr ? path + ": unknown reason" : reason);
}

}  // namespace standalone
