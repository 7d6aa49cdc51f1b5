#include "data/OfflineStatus.h"

#include "data/LocalizedText.h"
#include "host/MZ/Clips.h"

namespace Vantrel {
namespace {

const qelcore::UTF8String& PendingConnectionText() {
  static const auto text = Localize(
      "$$$/Handlers/SequenceIndex/MediaOffline/PendingConnection=Pending "
      "Connection#{comment}QELMX-4248997");
  return text;
}

const qelcore::UTF8String& MediaGrowingText() {
  static const auto text = Localize(
      "$$$/Handlers/SequenceIndex/MediaOffline/MediaGrowing=Media Growing#{comment}QELMX-4248997");
  return text;
}

const qelcore::UTF8String& PendingRelinkText() {
  static const auto text = Localize(
      "$$$/Handlers/SequenceIndex/MediaOffline/PendingRelink=Pending Relink#{comment}QELMX-4248997");
  return text;
}

}  // namespace

qelcore::UTF8String OfflineStatusText(qelcore::Borrowed<BE::IMedia> media) {
  if (!media) return {};
  if (media->IsOffline()) {
    return MZ::Utilities::GetOfflineReasonDescription(media->GetOfflineReason());
  }
  if (media->IsPendingConnection()) return PendingConnectionText();
  if (media->IsGrowing()) return MediaGrowingText();
  if (media->IsPendingRelink()) return PendingRelinkText();
  return {};
}

}  // namespace Vantrel
