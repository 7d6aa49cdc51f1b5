#include "standalone/probing/WorkerProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "standalone/media/protocol/MediaMessages.h"
#include "standalone/probing/ChildProcess.h"

namespace standalone {

namespace {

using namespace std::chrono;

/// How long a cancel may stay unnoticed.
constexpr milliseconds kPause{20};

}  // namespace

WorkerProcess::Socket::~Socket() {
  close(value);
}

WorkerProcess::WorkerProcess(const std::filesystem::path& program,
                             const std::filesystem::path& argument) {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) {
    throw std::system_error(errno, std::generic_category());
  }
  socket.emplace(ends[0]);
  const Socket theirs(ends[1]);
  process = StartChild(program, argument, theirs.value);
}

WorkerProcess::~WorkerProcess() {
  EndChild(process);
}

bool WorkerProcess::Send(const std::string& message) {
  // A worker that has ended must not signal that to the program (SIGPIPE), and one that does not listen
  // must not hold it up.
  constexpr int kFlags = MSG_NOSIGNAL | MSG_DONTWAIT;
  ssize_t sent = 0;
  do {
    sent = send(socket->value, message.data(), message.size(), kFlags);
  } while (sent < 0 && errno == EINTR);
  return sent >= 0;
}

WorkerProcess::Arrival WorkerProcess::Await(Time end, const std::function<bool()>& isCancelled,
                                            std::string& message) {
  for (;;) {
    if (isCancelled && isCancelled()) return Arrival::kCancelled;
    const auto left = ceil<milliseconds>(end - steady_clock::now());
    if (HasArrivedWithin(std::clamp(left, milliseconds(0), kPause))) return Receive(message);
    if (left <= milliseconds(0)) return Arrival::kLate;
  }
}

bool WorkerProcess::IsIdle() const {
  return !HasArrivedWithin(milliseconds(0));
}

bool WorkerProcess::HasArrivedWithin(milliseconds time) const {
  pollfd input{socket->value, POLLIN, 0};
  return poll(&input, 1, static_cast<int>(time.count())) > 0;
}

WorkerProcess::Arrival WorkerProcess::Receive(std::string& message) {
  message.resize(kLongestMessage);
  const ssize_t length = recv(socket->value, message.data(), message.size(), MSG_DONTWAIT | MSG_TRUNC);
  if (length <= 0) return Arrival::kEnded;
  const auto size = static_cast<std::size_t>(length);
  message.resize(size > kLongestMessage ? 0 : size);
  return Arrival::kMessage;
}

}  // namespace standalone
