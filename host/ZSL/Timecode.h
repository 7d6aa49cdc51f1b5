#pragma once

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "host/qelmediatypes/TimeDisplay.h"

namespace ZSL {

/// A time as people write it. Timecode is a name for a frame number: the time is cut toward zero to
/// whole frames and counted at the nominal rate (30 for 29.97). Drop-frame counting skips frame
/// numbers at the rates it is defined for (29.97, 59.94, 119.88) and is ignored at others. A negative
/// time has one "-" before the digits; hours go on beyond 24. SMPTE ST 12-1 gives the counting.
/// [any-thread]
class HOST_API Timecode {
 public:
  /// An unknown frame duration counts every time as frame 0.
  Timecode(qelmediatypes::TickTime time, qelmediatypes::TickTime frameDuration,
           qelmediatypes::TimeDisplay display) noexcept;

  /// For example "01:00:00:00", "00:01:00;02", "-00:00:01:05".
  qelcore::UTF8String GetStringUTF8() const;

 private:
  qelmediatypes::TickTime time;
  qelmediatypes::TickTime frameDuration;
  qelmediatypes::TimeDisplay display;
};

}  // namespace ZSL
