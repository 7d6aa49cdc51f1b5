#include "program/ChildProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <stdexcept>

namespace benchmarks {

namespace {

/// Standard output that goes nowhere.
class Redirection {
 public:
  Redirection() {
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  }
  ~Redirection() { posix_spawn_file_actions_destroy(&actions); }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;
  const posix_spawn_file_actions_t* Get() const { return &actions; }

 private:
  posix_spawn_file_actions_t actions;
};

pid_t Start(const std::vector<std::string>& words) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  const Redirection redirection;
  pid_t process = 0;
  if (posix_spawn(&process, arguments[0], redirection.Get(), nullptr, arguments.data(), environ) != 0) {
    throw std::runtime_error(words[0] + " can't be started");
  }
  return process;
}

double ToSeconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double TakeMedian(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

ProcessCost RunProgram(const std::vector<std::string>& words) {
  const auto start = std::chrono::steady_clock::now();
  const pid_t process = Start(words);
  int status = 0;
  rusage usage{};
  while (wait4(process, &status, 0, &usage) < 0) {
  }
  const std::chrono::duration<double> clock = std::chrono::steady_clock::now() - start;
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) throw std::runtime_error(words[0] + " failed");
  return {ToSeconds(usage.ru_utime) + ToSeconds(usage.ru_stime), clock.count()};
}

ProcessCost MeasureProgram(const std::vector<std::string>& words, int runs) {
  std::vector<double> processor;
  std::vector<double> clock;
  for (int run = 0; run < runs; ++run) {
    const ProcessCost cost = RunProgram(words);
    processor.push_back(cost.processorSeconds);
    clock.push_back(cost.clockSeconds);
  }
  return {TakeMedian(processor), TakeMedian(clock)};
}

}  // namespace benchmarks
