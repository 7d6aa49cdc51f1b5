#include "data/CellText.h"

#include <cstdint>
#include <string>

#include "data/FrameRateText.h"
#include "data/GapRow.h"
#include "data/MediaFileTexts.h"
#include "data/MediaTypes.h"
#include "data/MulticamCamera.h"
#include "data/OfflineStatus.h"
#include "data/ParentProject.h"
#include "data/ProjectItemTexts.h"
#include "data/TimeText.h"
#include "host/BE/Utilities.h"
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

UTF8String UsageCountText(const TrackItemRowData& row) {
  const auto masterClip = BE::TrackItemUtils::GetMasterClip(row.trackItem);
  const auto project = FindParentProject(row.sequence);
  if (!masterClip || !project) return {};
  return Decimal(MZ::Project::GetMasterClipUsageCount(project, masterClip, row.sequence));
}

qelcore::Ref<BE::IMedia> FindMedia(const TrackItemRowData& row) {
  const auto masterClip = BE::TrackItemUtils::GetMasterClip(row.trackItem);
  return masterClip ? masterClip->GetMedia() : qelcore::Ref<BE::IMedia>();
}

/// The columns that ask a clip; gaps have nothing to say there.
UTF8String ClipText(const TrackItemRowData& row, ColumnID column) {
  qelcore::Required(row.trackItem);
  if (IsGapRow(row)) return {};
  switch (column) {
    case kColumnComment:
      return CommentText(FindProjectItem(row.trackItem));
    case kColumnDescription:
      return DescriptionText(FindProjectItem(row.trackItem));
    case kColumnFileName:
      return FileNameText(FindMedia(row));
    case kColumnFilePath:
      return FilePathText(FindMedia(row));
    case kColumnOfflineStatus:
      return OfflineStatusText(FindMedia(row));
    case kColumnMulticamCamera:
      return MulticamCameraText(row.trackItem);
    case kColumnTapeName:
      return TapeNameText(FindProjectItem(row.trackItem));
    case kColumnUsageCountInSequence:
      return UsageCountText(row);
    case kColumnVideoInfo:
      return MZ::FindClip::GetVideoInfo(row.trackItem);
    default:
      return {};
  }
}

/// The text that a column has in the row itself, or null.
const UTF8String* FindStoredText(const TrackItemRowData& row, ColumnID column) {
  switch (column) {
    case kColumnCodec:
      return &row.codec;
    case kColumnFontsUsed:
      return &row.fontsUsed;
    case kColumnFontsMissing:
      return &row.fontsMissing;
    case kColumnEffectsMissing:
      return &row.effectsMissing;
    case kColumnClipName:
      return &row.name;
    case kColumnEffects:
      return &row.effects;
    case kColumnTransitions:
      return &row.transitions;
    case kColumnProxyMediaPath:
      return &row.proxyPath;
    case kColumnProxyStatus:
      return &row.proxyStatus;
    case kColumnSourceClipName:
      return &row.sourceClipName;
    default:
      return nullptr;
  }
}

}  // namespace

UTF8String CellText(const TrackItemRowData& row, ColumnID column) {
  const bool isPosition = column == kColumnStartTime || column == kColumnEndTime;
  return CellText(row, column, isPosition ? BE::SequenceUtils::GetZeroPoint(row.sequence) : TickTime());
}

UTF8String CellText(const TrackItemRowData& row, ColumnID column, TickTime zeroPoint) {
  if (column < kFirstColumn || column > kLastColumn || column == kColumnLabelColor) return {};
  if (const UTF8String* const text = FindStoredText(row, column)) return *text;
  switch (column) {
    case kColumnIndex:
      return Decimal(row.index + 1);
    case kColumnDuration:
      return TimeText(row.sequence, row.end - row.start);
    case kColumnStartTime:
      return TimeText(row.sequence, zeroPoint + row.start);
    case kColumnEndTime:
      return TimeText(row.sequence, zeroPoint + row.end);
    case kColumnFrameRate:
      return FrameRateText(row);
    case kColumnTrack:
      return TrackText(row);
    default:
      return ClipText(row, column);
  }
}

}  // namespace Vantrel
