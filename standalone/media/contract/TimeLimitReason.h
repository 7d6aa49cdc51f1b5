#pragma once

#include <chrono>
#include <string>

namespace standalone {

/// The reason of `MediaOutcome::kTimeLimit`, whoever noticed it: "it took longer than 10 s".
inline std::string GetTimeLimitReason(std::chrono::milliseconds limit) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(limit);
  const bool isWhole = seconds == limit && seconds.count() > 0;
  return "it took longer than " +
         (isWhole ? std::to_string(seconds.count()) + " s" : std::to_string(limit.count()) + " ms");
}

}  // namespace standalone
