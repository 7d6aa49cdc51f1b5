#include "data/TimeText.h"

#include "host/MZ/Sequences.h"
#include "host/ZSL/Timecode.h"

namespace Vantrel {
namespace {

/// The second argument of GetVideoTimeDisplayFormat: as the user sees times.
constexpr int kForDisplay = 1;

}  // namespace

TimeFormat GetTimeFormat(const qelcore::Ref<BE::ISequence>& sequence) {
  if (!sequence) return {};
  if (MZ::SequenceActions::GetFrameAlignment(sequence) != 0) {
    return {sequence->GetAudioFrameDuration(),
            MZ::SequencePlayback::GetAudioTimeDisplayFormat(sequence)};
  }
  return {sequence->GetVideoFrameDuration(),
          MZ::SequencePlayback::GetVideoTimeDisplayFormat(sequence, kForDisplay)};
}

qelcore::UTF8String FormatTime(const TimeFormat& format, qelmediatypes::TickTime time) {
  return ZSL::Timecode(time, format.frameDuration, format.display).GetStringUTF8();
}

qelcore::UTF8String TimeText(const qelcore::Ref<BE::ISequence>& sequence,
                             qelmediatypes::TickTime time) {
  return FormatTime(GetTimeFormat(sequence), time);
}

}  // namespace Vantrel
