#pragma once

#include <cstdint>

#include "host/BE/Model.h"
#include "host/HostAPI.h"
#include "host/ML/Player.h"
#include "host/qelcore/Reference.h"
#include "host/qelmediatypes/TimeDisplay.h"

namespace MZ {

/// The project and the sequence that the user works in, or empty. [main-thread]
HOST_API qelcore::Ref<BE::IProject> GetActiveProject();
HOST_API qelcore::Ref<BE::ISequence> GetActiveSequence();

/// The player of a sequence, or empty: one that was never opened has none. [main-thread]
/// `playbackPreference` 0: the player that the user sees, which is the only kind there is.
HOST_API qelcore::Ref<ML::IPlayer> GetSequencePlayer(const qelcore::Ref<BE::ISequence>& sequence,
                                                     int playbackPreference);

namespace SequenceUtils {
/// The project that a sequence belongs to, or empty. `isSearchingParents` true: the parent of the
/// sequence itself; false: only a project that is open in the user interface. [any-thread]
HOST_API qelcore::Ref<BE::IProject> GetSequenceParentProject(
    const qelcore::Ref<BE::ISequence>& sequence, bool isSearchingParents);
}  // namespace SequenceUtils

namespace SequenceActions {
/// What edits snap to: 0 picture frames, otherwise audio samples. [any-thread]
HOST_API std::uint32_t GetFrameAlignment(const qelcore::Ref<BE::ISequence>& sequence);
}  // namespace SequenceActions

namespace SequencePlayback {
/// How the sequence writes times counted in picture frames. `isForDisplay` 1: as the user sees them.
/// [any-thread]
HOST_API qelmediatypes::TimeDisplay GetVideoTimeDisplayFormat(
    const qelcore::Ref<BE::ISequence>& sequence, int isForDisplay);
/// How the sequence writes times counted in audio samples. [any-thread]
HOST_API qelmediatypes::TimeDisplay GetAudioTimeDisplayFormat(
    const qelcore::Ref<BE::ISequence>& sequence);
}  // namespace SequencePlayback

}  // namespace MZ
