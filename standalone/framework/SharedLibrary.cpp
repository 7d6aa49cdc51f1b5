#include "standalone/framework/SharedLibrary.h"

#include <dlfcn.h>

#include <string>

#include "host/qelcore/Exceptions.h"

namespace standalone {

namespace {

/// Why the linker refused, without the path in front that the sentence names anyway.
std::string_view GetLinkerReason(const std::filesystem::path& path) {
  const char* const error = dlerror();
  std::string_view reason = error == nullptr ? "unknown reason" : error;
  const std::string prefix = path.native() + ": ";
  if (reason.starts_with(prefix)) reason.remove_prefix(prefix.size());
  return reason;
}

void* Open(const std::filesystem::path& path) {
  if (SharedLibrary::IsLoaded(path)) ThrowCannotBeLoaded(path, "it is loaded already");
  void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) ThrowCannotBeLoaded(path, GetLinkerReason(path));
  return handle;
}

}  // namespace

SharedLibrary::SharedLibrary(const std::filesystem::path& path) : handle(Open(path)) {}
SharedLibrary::~SharedLibrary() {
  dlclose(handle);
}

void* SharedLibrary::FindSymbol(const char* name) const noexcept {
  return dlsym(handle, name);
}

bool SharedLibrary::IsLoaded(const std::filesystem::path& path) noexcept {
  void* const present = dlopen(path.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (present == nullptr) return false;
  dlclose(present);
  return true;
}

void ThrowCannotBeLoaded(const std::filesystem::path& path, std::string_view reason) {
  throw qelcore::config::qel_exception(
      qelcore::config::ExceptionKind::kGeneric,
      path.native() + ": can't be loaded as a module: " + std::string(reason), path.native());
}

}  // namespace standalone
