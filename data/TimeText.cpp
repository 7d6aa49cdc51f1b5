#include "data/TimeText.h"

#include "host/MZ/Sequences.h"
#include "host/ZSL/Timecode.h"
#include "host/qelmediatypes/TimeDisplay.h"

namespace Vantrel {
namespace {

/// The second argument of GetVideoTimeDisplayFormat: as the user sees times.
constexpr int kForDisplay = 1;

}  // namespace

qelcore::UTF8String TimeText(const qelcore::Ref<BE::ISequence>& sequence,
                             qelmediatypes::TickTime time) {
  qelmediatypes::TimeDisplay display;
  qelmediatypes::TickTime frameDuration = qelmediatypes::kUnknownFrameDuration;
  if (sequence) {
    if (MZ::SequenceActions::GetFrameAlignment(sequence) != 0) {
      frameDuration = sequence->GetAudioFrameDuration();
      display = MZ::SequencePlayback::GetAudioTimeDisplayFormat(sequence);
    } else {
      frameDuration = sequence->GetVideoFrameDuration();
      display = MZ::SequencePlayback::GetVideoTimeDisplayFormat(sequence, kForDisplay);
    }
  }
  return ZSL::Timecode(time, frameDuration, display).GetStringUTF8();
}

}  // namespace Vantrel
