#include "data/CellTextSource.h"

#include <cstdint>
#include <string>

#include "data/FrameRateText.h"
#include "data/MediaFileTexts.h"
#include "data/MediaTypes.h"
#include "data/MulticamCamera.h"
#include "data/OfflineStatus.h"
#include "data/ParentProject.h"
#include "data/ProjectItemTexts.h"
#include "host/MZ/Clips.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {
namespace {

using qelcore::UTF8String;
using qelmediatypes::TickTime;

UTF8String Decimal(std::uint64_t value) {
  char buffer[qelcore::string::kUInt64BufferSize];
  return UTF8String(qelcore::string::ConvertUInt64ToBufferT(value, buffer));
}

UTF8String TrackText(const TrackItemRowData& row) {
  char buffer[qelcore::string::kUInt64BufferSize];
  std::string text(IsVideoRow(row) ? "V" : "A");
  text.append(qelcore::string::ConvertUInt64ToBufferT(row.trackIndex + 1, buffer));
  return UTF8String(text);
}

}  // namespace

void CellTextSource::SetRow(const TrackItemRowData& newRow, const RowClip& newClip) {
  if (row != nullptr && row->sequence != newRow.sequence) {
    timeFormat.reset();
    project.reset();
  }
  row = &newRow;
  clip = newClip;
}

CellTextSource::Maker CellTextSource::GetMaker(ColumnID column) noexcept {
  using Self = CellTextSource&;
  switch (column) {
    case kColumnIndex:
      return [](Self self) { return Decimal(self.row->index + 1); };
    case kColumnDuration:
      return [](Self self) { return self.MakeTime(self.row->end - self.row->start); };
    case kColumnStartTime:
      return [](Self self) { return self.MakeTime(self.zeroPoint + self.row->start); };
    case kColumnEndTime:
      return [](Self self) { return self.MakeTime(self.zeroPoint + self.row->end); };
    case kColumnFrameRate:
      return [](Self self) { return FrameRateText(*self.row); };
    case kColumnTrack:
      return [](Self self) { return TrackText(*self.row); };
    default:
      return GetClipMaker(column);
  }
}

/// The columns that ask a clip; gaps have nothing to say there.
CellTextSource::Maker CellTextSource::GetClipMaker(ColumnID column) noexcept {
  switch (column) {
    case kColumnComment:
      return &MakeOfProjectItem<CommentText>;
    case kColumnDescription:
      return &MakeOfProjectItem<DescriptionText>;
    case kColumnTapeName:
      return &MakeOfProjectItem<TapeNameText>;
    case kColumnFileName:
      return &MakeOfMedia<FileNameText>;
    case kColumnFilePath:
      return &MakeOfMedia<FilePathText>;
    case kColumnOfflineStatus:
      return &MakeOfMedia<OfflineStatusText>;
    case kColumnMulticamCamera:
      return &MakeOfTrackItem<MulticamCameraText>;
    case kColumnVideoInfo:
      return &MakeOfTrackItem<MZ::FindClip::GetVideoInfo>;
    case kColumnUsageCountInSequence:
      return
          [](CellTextSource& self) { return self.clip.IsGap() ? UTF8String() : self.MakeUsageCount(); };
    default:
      return [](CellTextSource&) { return UTF8String(); };
  }
}

template <auto kMake>
UTF8String CellTextSource::MakeOfProjectItem(CellTextSource& self) {
  return self.clip.IsGap() ? UTF8String() : kMake(self.clip.GetProjectItem());
}

template <auto kMake>
UTF8String CellTextSource::MakeOfMedia(CellTextSource& self) {
  return self.clip.IsGap() ? UTF8String() : kMake(self.clip.GetMedia());
}

template <auto kMake>
UTF8String CellTextSource::MakeOfTrackItem(CellTextSource& self) {
  return self.clip.IsGap() ? UTF8String() : kMake(self.row->trackItem);
}

UTF8String CellTextSource::MakeTime(TickTime time) {
  if (!timeFormat) timeFormat = GetTimeFormat(row->sequence);
  return FormatTime(*timeFormat, time);
}

UTF8String CellTextSource::MakeUsageCount() {
  const auto masterClip = clip.GetMasterClip();
  if (!project) project = FindParentProject(row->sequence);
  if (!masterClip || !*project) return {};
  return Decimal(MZ::Project::GetMasterClipUsageCount(*project, masterClip, row->sequence));
}

}  // namespace Vantrel
