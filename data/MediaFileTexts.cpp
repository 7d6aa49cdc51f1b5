#include "data/MediaFileTexts.h"

#include "host/ZSL/PathUtils.h"
#include "host/qelcore/Files.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {

qelcore::UTF8String FileNameText(qelcore::Borrowed<BE::IMedia> media) {
  if (!media) return {};
  using namespace qelcore::filesupport;
  return File(media->GetAddress(), StorageType::kMediaAddress).GetNameUTF8();
}

qelcore::UTF8String FilePathText(qelcore::Borrowed<BE::IMedia> media) {
  if (!media) return {};
  return qelcore::string::UTF16to8(ZSL::PathUtils::GetDisplayStringFromPath(media->GetAddress()));
}

}  // namespace Vantrel
