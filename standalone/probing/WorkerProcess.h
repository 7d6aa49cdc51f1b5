#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A program that runs as our child and exchanges messages with us through its standard input and
/// output, one socket that keeps messages apart. It gets no other file of ours, says nothing on
/// standard error, and does not hear what a terminal signals. It ends with this object. One thread at a
/// time.
class STANDALONE_API WorkerProcess {
 public:
  enum class Arrival : std::uint8_t { kMessage, kEnded, kLate, kCancelled };
  using Time = std::chrono::steady_clock::time_point;

  /// Starts it. Throws: std::system_error.
  WorkerProcess(const std::filesystem::path& program, const std::filesystem::path& argument);
  /// Ends it at once, in the midst of whatever it does.
  ~WorkerProcess();
  WorkerProcess(const WorkerProcess&) = delete;
  WorkerProcess& operator=(const WorkerProcess&) = delete;

  /// False when it has ended.
  bool Send(const std::string& message);
  /// Waits for its next message, which replaces `message`. One that is too long for any
  /// (`kLongestMessage`) is empty. `isCancelled` is asked now and then, on this thread.
  Arrival Await(Time end, const std::function<bool()>& isCancelled, std::string& message);
  /// Neither has it ended nor has it said something that was not asked.
  bool IsIdle() const;

 private:
  bool HasArrivedWithin(std::chrono::milliseconds time) const;
  Arrival Receive(std::string& message);

  class Socket {
   public:
    explicit Socket(int value) : value(value) {}
    ~Socket();
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    const int value;
  };

  std::optional<Socket> socket;
  pid_t process = 0;
};

}  // namespace standalone
