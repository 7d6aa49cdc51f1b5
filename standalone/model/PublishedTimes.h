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
  explicit PublishedTimes(const SequenceContent& content) noexcept { Set(content); }

  void Set(const SequenceContent& content) noexcept {
    zeroPoint = content.zeroPoint;
    videoFrameDuration = content.videoFrameDuration;
    audioFrameDuration = content.audioFrameDuration;
    format = content.timeFormat;
    isDropFrame = content.isDropFrame;
  }

  qelmediatypes::TickTime GetZeroPoint() const noexcept { return zeroPoint; }
  qelmediatypes::TickTime GetVideoFrameDuration() const noexcept { return videoFrameDuration; }
  qelmediatypes::TickTime GetAudioFrameDuration() const noexcept { return audioFrameDuration; }
  TimeFormat GetFormat() const noexcept { return format; }
  bool IsDropFrame() const noexcept { return isDropFrame; }

 private:
  std::atomic<qelmediatypes::TickTime> zeroPoint;
  std::atomic<qelmediatypes::TickTime> videoFrameDuration;
  std::atomic<qelmediatypes::TickTime> audioFrameDuration;
  std::atomic<TimeFormat> format;
  std::atomic<bool> isDropFrame;
};

}  // namespace standalone
