#pragma once

#include <chrono>

#include "standalone/media/contract/MediaReading.h"

namespace standalone {

/// Ends a read that takes too long or that nobody wants any more. One thread.
class ReadLimit {
 public:
  explicit ReadLimit(const MediaReadRequest& request)
      : request(request), end(std::chrono::steady_clock::now() + request.timeLimit) {}
  ReadLimit(const ReadLimit&) = delete;
  ReadLimit& operator=(const ReadLimit&) = delete;

  /// Whether the read has to end; once it has, that stays so.
  bool IsReached() {
    if (!isReached) Check();
    return isReached;
  }
  bool IsCancelled() const noexcept { return isCancelled; }
  std::chrono::milliseconds GetTimeLimit() const noexcept { return request.timeLimit; }

 private:
  void Check() {
    isCancelled = request.isCancelled != nullptr && request.isCancelled(request.context);
    isReached = isCancelled || std::chrono::steady_clock::now() >= end;
  }

  const MediaReadRequest& request;
  const std::chrono::steady_clock::time_point end;
  bool isReached = false;
  bool isCancelled = false;
};

}  // namespace standalone
