#include "data/ProjectItemTexts.h"

#include "host/BE/Utilities.h"

namespace Vantrel {

qelcore::Borrowed<BE::IProjectItem> FindProjectItem(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  return BE::MasterClipUtils::GetProjectItem(BE::TrackItemUtils::GetMasterClip(trackItem));
}

qelcore::UTF8String CommentText(qelcore::Borrowed<BE::IProjectItem> item) {
  return item ? item->GetColumnProperty("Column.PropertyText.Comment") : qelcore::UTF8String();
}

qelcore::UTF8String DescriptionText(qelcore::Borrowed<BE::IProjectItem> item) {
  return item ? item->GetDescription() : qelcore::UTF8String();
}

qelcore::UTF8String TapeNameText(qelcore::Borrowed<BE::IProjectItem> item) {
  return item ? item->GetTapeName() : qelcore::UTF8String();
}

}  // namespace Vantrel
