#pragma once

#include <cstdint>

#include "host/BE/Model.h"
#include "host/HostAPI.h"
#include "host/ZSL/Color.h"
#include "host/qelcore/Borrowed.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"

/// What the editing services know of clips. [any-thread]; an empty argument gives an empty or neutral
/// answer.
namespace MZ {

namespace FindClip {
/// The name under which a clip item is shown on the timeline; may hold line breaks.
HOST_API qelcore::UTF8String GetClipName(const qelcore::Ref<BE::ITrackItem>& trackItem);
/// Frame size and pixel aspect of a clip item's picture ("1920 x 1080 (1.0)"); empty when not known.
HOST_API qelcore::UTF8String GetVideoInfo(const qelcore::Ref<BE::ITrackItem>& trackItem);
}  // namespace FindClip

namespace ColorLabelUtils {
/// The colour under which a clip is shown, looked up in `project` (or in the clip's own when empty).
HOST_API ZSL::Color GetDisplayLabelColorForClip(qelcore::Borrowed<BE::IClip> clip,
                                                const qelcore::Ref<BE::IProject>& project);
}  // namespace ColorLabelUtils

namespace Graphics {
/// True for a clip item that draws text or shapes.
HOST_API bool IsGraphicsTrackItem(const qelcore::Ref<BE::ITrackItem>& trackItem);
}  // namespace Graphics

namespace Project {
/// How many clip items of `sequence` play media of the same address as `masterClip`, picture and sound
/// counted one each. A clip without an address counts alone.
HOST_API std::uint64_t GetMasterClipUsageCount(const qelcore::Ref<BE::IProject>& project,
                                               qelcore::Borrowed<BE::IMasterClip> masterClip,
                                               const qelcore::Ref<BE::ISequence>& sequence);
}  // namespace Project

namespace Utilities {
/// Why a media is offline, for people ("Media file not found").
HOST_API qelcore::UTF8String GetOfflineReasonDescription(qelcore::Borrowed<BE::IOfflineReason> reason);
}  // namespace Utilities

namespace SettingsDescriptions {
/// A picture rate as people write it: "25.00 fps", "23.976 fps", "29.97 fps". Empty for an unknown
/// rate. `style` 0 is that form, the only one.
HOST_API qelcore::UTF8String CreateVideoFrameRateString(qelmediatypes::TickTime frameDuration,
                                                        int style);
/// A sample rate as people write it: "48000 Hz". Empty for an unknown rate.
HOST_API qelcore::UTF8String CreateAudioSampleRateString(qelmediatypes::TickTime frameDuration);
}  // namespace SettingsDescriptions

}  // namespace MZ
