#pragma once

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// A time as the sequence writes it: in audio samples where its edits snap to those, otherwise in
/// picture frames. The same for picture and sound, clips and gaps, positions and durations. Without a
/// sequence the time counts as frame 0. [any-thread]
qelcore::UTF8String TimeText(const qelcore::Ref<BE::ISequence>& sequence, qelmediatypes::TickTime time);

}  // namespace Vantrel
