#include "data/ProjectItemTexts.h"

#include "host/BE/Utilities.h"

namespace Vantrel {
namespace {

qelcore::Ref<BE::IProjectItem> FindProjectItem(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  return BE::MasterClipUtils::GetProjectItem(BE::TrackItemUtils::GetMasterClip(trackItem));
}

}  // namespace

qelcore::UTF8String CommentText(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  const auto item = FindProjectItem(trackItem);
  return item ? item->GetColumnProperty("Column.PropertyText.Comment") : qelcore::UTF8String();
}

qelcore::UTF8String DescriptionText(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  const auto item = FindProjectItem(trackItem);
  return item ? item->GetDescription() : qelcore::UTF8String();
}

qelcore::UTF8String TapeNameText(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  const auto item = FindProjectItem(trackItem);
  return item ? item->GetTapeName() : qelcore::UTF8String();
}

}  // namespace Vantrel
