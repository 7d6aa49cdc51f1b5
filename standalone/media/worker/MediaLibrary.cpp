#include "standalone/media/worker/MediaLibrary.h"

#include <dlfcn.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

namespace standalone {

namespace {

std::string TakeLinkerReason() {
  const char* const error = dlerror();
  return error == nullptr ? "unknown reason" : error;
}

}  // namespace

ReadMediaEntry LoadMediaLibrary(const char* path) {
  const std::string name = path;
  if (access(path, F_OK) != 0) {
    throw std::runtime_error(name + " is missing; install Sequence Index again.");
  }
  void* const handle = dlopen(path, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  if (handle == nullptr) {
    throw std::runtime_error(TakeLinkerReason() +
                             "; install the libraries of FFmpeg (on Debian the package ffmpeg).");
  }
  void* const entry = dlsym(handle, kReadMediaEntryName);
  if (entry == nullptr) {
    throw std::runtime_error(name + " is of another version; install Sequence Index again.");
  }
  return reinterpret_cast<ReadMediaEntry>(entry);
}

}  // namespace standalone
