#include "data/RowClip.h"

#include "data/GapRow.h"
#include "host/BE/Utilities.h"

namespace Vantrel {

bool RowClip::AskIsGap() {
  qelcore::Required(row->trackItem);
  isGap = IsGapRow(*row);
  return *isGap;
}

qelcore::Borrowed<BE::IMasterClip> RowClip::GetMasterClip() {
  if (!masterClip) masterClip = BE::TrackItemUtils::GetMasterClip(row->trackItem);
  return *masterClip;
}

qelcore::Borrowed<BE::IProjectItem> RowClip::GetProjectItem() {
  if (!projectItem) projectItem = BE::MasterClipUtils::GetProjectItem(GetMasterClip());
  return *projectItem;
}

qelcore::Borrowed<BE::IMedia> RowClip::GetMedia() {
  if (!media) media = GetMasterClip() ? GetMasterClip()->GetMedia() : qelcore::Borrowed<BE::IMedia>();
  return *media;
}

}  // namespace Vantrel
