#include "standalone/media/worker/Confinement.h"

#include <poll.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <fstream>
#include <thread>

#if defined(__SANITIZE_ADDRESS__)
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options() {
  return "hard_rss_limit_mb=2048:allocator_may_return_null=1";
}
#elif defined(__SANITIZE_THREAD__)
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_options() {
  return "memory_limit_mb=2048:hard_rss_limit_mb=2048:allocator_may_return_null=1";
}
#endif

namespace standalone {

namespace {

constexpr std::size_t kMemoryLimit = std::size_t{2} << 30;

void Limit(__rlimit_resource_t resource, rlim_t value) {
  const rlimit limit{value, value};
  setrlimit(resource, &limit);
}

void AwaitEndOfInput() {
  // Without events to wait for only the end is told.
  pollfd input{STDIN_FILENO, 0, 0};
  while (poll(&input, 1, -1) < 0 && errno == EINTR) continue;
  _exit(0);
}

}  // namespace

void ConfineProcess() {
  Limit(RLIMIT_CORE, 0);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  Limit(RLIMIT_AS, kMemoryLimit);
#endif
  std::ofstream("/proc/self/oom_score_adj") << 1000;
}

void EndWithHost() {
  std::thread(&AwaitEndOfInput).detach();
}

bool IsBloated() {
  std::size_t size = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) > kMemoryLimit / 8;
}

}  // namespace standalone
