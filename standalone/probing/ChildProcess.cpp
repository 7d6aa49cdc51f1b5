#include "standalone/probing/ChildProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <string>
#include <system_error>
#include <thread>

namespace standalone {

namespace {

void Require(int error) {
  if (error != 0) throw std::system_error(error, std::generic_category());
}

class Files {
 public:
  explicit Files(int inputAndOutput) {
    Require(posix_spawn_file_actions_init(&actions));
    int error = posix_spawn_file_actions_adddup2(&actions, inputAndOutput, STDIN_FILENO);
    if (error == 0) error = posix_spawn_file_actions_adddup2(&actions, inputAndOutput, STDOUT_FILENO);
    if (error == 0) {
      error = posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }
    if (error == 0) error = posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    if (error == 0) return;
    posix_spawn_file_actions_destroy(&actions);
    Require(error);
  }
  ~Files() { posix_spawn_file_actions_destroy(&actions); }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  const posix_spawn_file_actions_t* Get() const { return &actions; }

 private:
  posix_spawn_file_actions_t actions{};
};

class Attributes {
 public:
  Attributes() {
    Require(posix_spawnattr_init(&attributes));
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
  }
  ~Attributes() { posix_spawnattr_destroy(&attributes); }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;
  const posix_spawnattr_t* Get() const { return &attributes; }

 private:
  posix_spawnattr_t attributes{};
};

/// False: it is still there.
bool Reap(pid_t process, int options) noexcept {
  int status = 0;
  pid_t reaped = 0;
  do {
    reaped = waitpid(process, &status, options);
  } while (reaped < 0 && errno == EINTR);
  return reaped != 0;
}

}  // namespace

pid_t StartChild(const std::filesystem::path& program, const std::filesystem::path& argument,
                 int inputAndOutput) {
  std::string words[] = {program.native(), argument.native()};
  char* const arguments[] = {words[0].data(), words[1].data(), nullptr};
  const Files files(inputAndOutput);
  const Attributes attributes;
  pid_t process = 0;
  Require(posix_spawn(&process, program.c_str(), files.Get(), attributes.Get(), arguments, environ));
  return process;
}

void EndChild(pid_t process) noexcept {
  // To give back 2 GB takes some tenths of a second.
  constexpr int kMostPauses = 2000;
  constexpr std::chrono::milliseconds kPause{1};
  kill(process, SIGKILL);
  for (int i = 0; i < kMostPauses; ++i) {
    if (Reap(process, WNOHANG)) return;
    std::this_thread::sleep_for(kPause);
  }
  try {
    std::thread([process] { Reap(process, 0); }).detach();
  } catch (const std::system_error&) {
    // It stays in the platform's table until this program ends.
  }
}

}  // namespace standalone
