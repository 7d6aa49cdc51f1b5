#pragma once

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "host/qelmediatypes/TimeDisplay.h"

namespace Vantrel {

/// How a sequence writes times.
struct TimeFormat {
  qelmediatypes::TickTime frameDuration = qelmediatypes::kUnknownFrameDuration;
  qelmediatypes::TimeDisplay display;
};

/// In audio samples where the sequence's edits snap to those, otherwise in picture frames. Without a
/// sequence every time counts as frame 0. [any-thread]
TimeFormat GetTimeFormat(const qelcore::Ref<BE::ISequence>& sequence);

/// A time in that format: the same for picture and sound, clips and gaps, positions and durations.
/// [any-thread]
qelcore::UTF8String FormatTime(const TimeFormat& format, qelmediatypes::TickTime time);

/// A time as the sequence writes it. [any-thread]
qelcore::UTF8String TimeText(const qelcore::Ref<BE::ISequence>& sequence, qelmediatypes::TickTime time);

}  // namespace Vantrel
