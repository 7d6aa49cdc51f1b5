#include "standalone/probing/FileLook.h"

#include <sys/stat.h>

#include <cerrno>

namespace standalone {

std::optional<FileLook> LookAtFile(const std::string& path) {
  struct stat status {};
  if (path.find('\0') != std::string::npos) return std::nullopt;
  if (stat(path.c_str(), &status) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
    // Something is there that can't be looked at; reading it will tell why.
    return FileLook{};
  }
  constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
  return FileLook{status.st_size,
                  status.st_mtim.tv_sec * kNanosecondsPerSecond + status.st_mtim.tv_nsec};
}

}  // namespace standalone
