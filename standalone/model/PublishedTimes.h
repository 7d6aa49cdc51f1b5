#pragma once

#include <atomic>

#include "host/qelmediatypes/TickTime.h"
#include "standalone/model/SequenceContent.h"
#include "standalone/model/TimeFormat.h"

namespace standalone {

/// How the times of what a sequence publishes are counted, told without a lock: tables ask for it with
/// each cell that they draw. Each answer is that of one publication, two answers may be of two.
/// [any-thread]
class PublishedTimes {
 public:
  /// How times are to be written; told in one answer, as one decides about the other.
  struct Counting {
    TimeFormat format = TimeFormat::kTimecode;
    bool isDropFrame = false;
  };

  explicit PublishedTimes(const SequenceContent& content) noexcept { Set(content); }

  void Set(const SequenceContent& content) noexcept {
    zeroPoint = content.zeroPoint;
    videoFrameDuration = content.videoFrameDuration;
    audioFrameDuration = content.audioFrameDuration;
    counting = Counting{content.timeFormat, content.isDropFrame};
  }

  qelmediatypes::TickTime GetZeroPoint() const noexcept { return zeroPoint; }
  qelmediatypes::TickTime GetVideoFrameDuration() const noexcept { return videoFrameDuration; }
  qelmediatypes::TickTime GetAudioFrameDuration() const noexcept { return audioFrameDuration; }
  Counting GetCounting() const noexcept { return counting; }

 private:
  std::atomic<qelmediatypes::TickTime> zeroPoint;
  std::atomic<qelmediatypes::TickTime> videoFrameDuration;
  std::atomic<qelmediatypes::TickTime> audioFrameDuration;
  std::atomic<Counting> counting;
  static_assert(std::atomic<Counting>::is_always_lock_free);
};

}  // namespace standalone
