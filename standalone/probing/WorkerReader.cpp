#include "standalone/probing/WorkerReader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <functional>
#include <new>
#include <optional>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "standalone/media/contract/TimeLimitReason.h"
#include "standalone/media/protocol/MediaMessages.h"

namespace standalone {

namespace {

using Arrival = WorkerProcess::Arrival;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// Thrown when a read ends without an answer.
struct Unanswered {
  MediaReading reading;
};

MediaReading Fail(MediaOutcome outcome, std::string reason) {
  MediaReading reading;
  reading.outcome = outcome;
  reading.reason = std::move(reason);
  return reading;
}

MediaReading Cancel() {
  return Fail(MediaOutcome::kCancelled, "reading was cancelled");
}

std::function<bool()> AskRequest(const MediaReadRequest& request) {
  return [&request] { return request.isCancelled != nullptr && request.isCancelled(request.context); };
}

/// Saturates, so that no limit is too long to be counted.
WorkerProcess::Time GetEnd(milliseconds limit, milliseconds grace) {
  constexpr milliseconds kLongest = std::chrono::hours(24 * 365);
  return steady_clock::now() + std::min(limit, kLongest) + grace;
}

/// None when the worker is of no further use.
std::optional<MediaReading> Ask(WorkerProcess& worker, const MediaReadRequest& request,
                                WorkerProcess::Time end) {
  if (!worker.Send(EncodeRequest(request))) return std::nullopt;
  std::string answer;
  switch (worker.Await(end, AskRequest(request), answer)) {
    case Arrival::kCancelled:
      throw Unanswered{Cancel()};
    case Arrival::kLate:
      throw Unanswered{Fail(MediaOutcome::kTimeLimit, GetTimeLimitReason(request.timeLimit))};
    case Arrival::kEnded:
      return std::nullopt;
    case Arrival::kMessage:
      break;
  }
  return DecodeReading(answer);
}

void RequireReady(const std::string& message, const std::filesystem::path& program) {
  const auto greeting = DecodeGreeting(message);
  if (!greeting) {
    throw std::runtime_error(program.native() +
                             " is of another version; install Sequence Index again.");
  }
  if (!greeting->failure.empty()) throw std::runtime_error(greeting->failure);
}

std::unique_ptr<WorkerProcess> StartProcess(const WorkerReader::Setup& setup) {
  try {
    return std::make_unique<WorkerProcess>(setup.program, setup.library);
  } catch (const std::system_error& failure) {
    const std::string name = setup.program.native();
    if (failure.code() == std::errc::no_such_file_or_directory) {
      throw std::runtime_error(name + " is missing; install Sequence Index again.");
    }
    throw std::runtime_error(name + " can't be started: " + std::strerror(failure.code().value()) +
                             ".");
  }
}

}  // namespace

struct WorkerReader::Loan {
  std::unique_ptr<WorkerProcess> worker;
  bool isNew = false;
};

WorkerReader::WorkerReader(Setup given) : setup(std::move(given)) {
  try {
    TakeBack(Start(MediaReadRequest()));
  } catch (const std::runtime_error& failure) {
    throw std::runtime_error(std::string("Media files are not read: ") + failure.what());
  }
}

MediaReading WorkerReader::Read(const MediaReadRequest& request) {
  try {
    return ReadOrThrow(request);
  } catch (Unanswered& unanswered) {
    return std::move(unanswered.reading);
  } catch (const std::bad_alloc&) {
    return Fail(MediaOutcome::kInaccessible, "there is not enough memory");
  } catch (const std::exception&) {
    return Fail(MediaOutcome::kInaccessible, "the program that reads media files does not start");
  }
}

MediaReading WorkerReader::ReadOrThrow(const MediaReadRequest& request) {
  if (request.path.size() > kLongestPath) {
    return Fail(MediaOutcome::kInaccessible, std::strerror(ENAMETOOLONG));
  }
  // One for both reads, if there are two.
  const auto end = GetEnd(request.timeLimit, setup.grace);
  for (;;) {
    Loan loan = Lend(request);
    if (auto reading = Ask(*loan.worker, request, end)) {
      TakeBack(std::move(loan.worker));
      return std::move(*reading);
    }
    if (loan.isNew) return Fail(MediaOutcome::kInaccessible, "reading it ended unexpectedly");
  }
}

WorkerReader::Loan WorkerReader::Lend(const MediaReadRequest& request) {
  while (auto worker = TakeIdle()) {
    if (worker->IsIdle()) return {std::move(worker), false};
  }
  return {Start(request), true};
}

std::unique_ptr<WorkerProcess> WorkerReader::TakeIdle() {
  const std::scoped_lock lock(mutex);
  if (idle.empty()) return nullptr;
  auto worker = std::move(idle.back());
  idle.pop_back();
  return worker;
}

std::unique_ptr<WorkerProcess> WorkerReader::Start(const MediaReadRequest& request) const {
  auto worker = StartProcess(setup);
  std::string message;
  switch (worker->Await(GetEnd(setup.startLimit, milliseconds(0)), AskRequest(request), message)) {
    case Arrival::kCancelled:
      throw Unanswered{Cancel()};
    case Arrival::kLate:
    case Arrival::kEnded:
      throw std::runtime_error(setup.program.native() +
                               " does not answer; install Sequence Index again.");
    case Arrival::kMessage:
      break;
  }
  RequireReady(message, setup.program);
  return worker;
}

void WorkerReader::TakeBack(std::unique_ptr<WorkerProcess> worker) {
  const std::scoped_lock lock(mutex);
  idle.push_back(std::move(worker));
}

MediaReader StartMediaReader(WorkerReader::Setup setup) {
  return [reader = std::make_shared<WorkerReader>(std::move(setup))](const MediaReadRequest& request) {
    return reader->Read(request);
  };
}

}  // namespace standalone
