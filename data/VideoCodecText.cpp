#include "data/VideoCodecText.h"

#include "host/BE/Utilities.h"
#include "host/qelcore/FourCC.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {

qelcore::UTF8String VideoCodecText(const BE::MediaType& mediaType,
                                   qelcore::Borrowed<BE::IMedia> media) {
  if (mediaType != BE::kMediaType_Video) return {};
  if (BE::MediaUtils::IsSynthetic(media) || media->IsOffline()) return {};
  const auto source = media->GetVideoSource();
  if (!source) return {};
  auto name = source->GetCodecName();
  if (!name.Empty()) return name;
  return qelcore::string::UTF16to8(qelcore::utility::FourCCToString(source->GetFourCC()));
}

}  // namespace Vantrel
