#pragma once

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "host/qelmediatypes/TimeDisplay.h"

namespace ZSL {

/// A time as people write it, in one of the displays of TimeDisplay. The time is cut toward zero to
/// whole frames of the frame duration that is given (the sample duration for audio samples), or to
/// whole milliseconds. A negative time has one "-" before the digits, a time that is cut to zero none.
/// Hours go on beyond 24; every time of 64 bits can be written. [any-thread]
///
/// Timecode is a name for a frame number, counted at the nominal rate (30 for 29.97). Drop-frame
/// counting skips frame numbers at the rates it is defined for (29.97, 59.94, 119.88) and is ignored at
/// others. SMPTE ST 12-1 gives the counting.
///
/// The last field of timecode and of audio samples has as many digits as the highest number in a second
/// needs, two at least.
class HOST_API Timecode {
 public:
  /// An unknown frame duration counts every time as frame 0; milliseconds don't depend on it.
  Timecode(qelmediatypes::TickTime time, qelmediatypes::TickTime frameDuration,
           qelmediatypes::TimeDisplay display) noexcept;

  /// For example "01:00:00:00", "00:01:00;02", "-00:00:01:05"; in frames "-12", in feet and frames
  /// "12+05", in audio samples "00:00:01:24000", in milliseconds "00:00:01.500".
  qelcore::UTF8String GetStringUTF8() const;

 private:
  qelmediatypes::TickTime time;
  qelmediatypes::TickTime frameDuration;
  qelmediatypes::TimeDisplay display;
};

}  // namespace ZSL
