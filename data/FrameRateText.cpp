#include "data/FrameRateText.h"

#include "data/MediaTypes.h"
#include "host/MZ/Clips.h"

namespace Vantrel {
namespace {

/// The last argument of CreateVideoFrameRateString: "25.00 fps".
constexpr int kFramesPerSecond = 0;

}  // namespace

qelcore::UTF8String FrameRateText(const TrackItemRowData& row) {
  return IsVideoRow(row)
             ? MZ::SettingsDescriptions::CreateVideoFrameRateString(row.frameRate, kFramesPerSecond)
             : MZ::SettingsDescriptions::CreateAudioSampleRateString(row.frameRate);
}

}  // namespace Vantrel
