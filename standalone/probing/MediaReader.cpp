#include "standalone/probing/MediaReader.h"

#include <dlfcn.h>

#include <stdexcept>
#include <string>
#include <system_error>

#include "standalone/runtime/InstalledLibrary.h"

namespace standalone {

namespace {

[[noreturn]] void ThrowUnavailable(const std::string& reason) {
  throw std::runtime_error("Media files are not read: " + reason);
}

std::string TakeLinkerReason() {
  const char* const error = dlerror();
  return error == nullptr ? "unknown reason" : error;
}

}  // namespace

MediaReader LoadMediaReader(const std::filesystem::path& library) {
  std::error_code ignored;
  if (!std::filesystem::exists(library, ignored)) {
    ThrowUnavailable(library.native() + " is missing; install Sequence Index again.");
  }
  // Never given back: libav's own threads and tables may outlive any moment to do so.
  void* const handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (handle == nullptr) {
    ThrowUnavailable(TakeLinkerReason() +
                     "; install the libraries of FFmpeg (on Debian the package ffmpeg).");
  }
  void* const entry = dlsym(handle, kReadMediaEntryName);
  if (entry == nullptr) {
    ThrowUnavailable(library.native() + " is of another version; install Sequence Index again.");
  }
  return [read = reinterpret_cast<ReadMediaEntry>(entry)](const MediaReadRequest& request) {
    MediaReading reading;
    read(request, reading);
    return reading;
  };
}

std::filesystem::path GetMediaLibraryPath() {
  return FindInstalledLibrary(kMediaLibraryName);
}

}  // namespace standalone
