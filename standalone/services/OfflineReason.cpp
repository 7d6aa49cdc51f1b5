#include "host/MZ/Clips.h"
#include "host/qelcore/Localizer.h"

namespace MZ::Utilities {
namespace {

constexpr const char* kFileNotFoundKey = "$$$/Standalone/Media/FileNotFound=Media file not found";

}  // namespace

qelcore::UTF8String GetOfflineReasonDescription(qelcore::Borrowed<BE::IOfflineReason> reason) {
  if (!reason) return {};
  const qelcore::UTF8String description = reason->GetDescription();
  return description.Empty() ? qelcore::config::Localizer::Get().Localize(kFileNotFoundKey)
                             : description;
}

}  // namespace MZ::Utilities
