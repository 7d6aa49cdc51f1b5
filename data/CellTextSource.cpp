#include "data/CellTextSource.h"

#include <cstdint>
#include <string>
#include <utility>

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

std::size_t KindOf(const TrackItemRowData& row) noexcept {
  return IsVideoRow(row) ? 0 : 1;
}

/// Room for the times of many tracks side by side: a clip mostly starts where one before it ended.
constexpr unsigned kTimeBits = 10;
constexpr unsigned kNumberBits = 6;

RecentTexts MakeMemory(CellTextSource::Memory memory, unsigned bits) {
  return memory == CellTextSource::Memory::kOfManyRows ? RecentTexts(bits) : RecentTexts();
}

}  // namespace

CellTextSource::CellTextSource(TickTime zeroPoint, Memory memory)
    : zeroPoint(zeroPoint),
      memory(memory),
      times(MakeMemory(memory, kTimeBits)),
      frameRates{MakeMemory(memory, kNumberBits), MakeMemory(memory, kNumberBits)},
      tracks{MakeMemory(memory, kNumberBits), MakeMemory(memory, kNumberBits)},
      usageCounts(MakeMemory(memory, kNumberBits)) {}

void CellTextSource::SetRow(const TrackItemRowData& newRow) {
  if (row != nullptr && row->sequence != newRow.sequence) {
    timeFormat.reset();
    project.reset();
    times.Forget();
  }
  row = &newRow;
  clip.SetRow(newRow);
  mediaTexts = nullptr;
}

std::string_view CellTextSource::GetOfRow(ColumnID column) {
  switch (column) {
    case kColumnLabelColor:
      return {};
    case kColumnIndex:
      return qelcore::string::ConvertUInt64ToBufferT(row->index + 1, lastDigits.data());
    case kColumnDuration:
      return GetTime(row->end - row->start);
    case kColumnStartTime:
      return GetTime(zeroPoint + row->start);
    case kColumnEndTime:
      return GetTime(zeroPoint + row->end);
    case kColumnFrameRate:
      return GetFrameRate();
    case kColumnTrack:
      return GetTrack();
    default:
      return clip.IsGap() ? std::string_view() : GetOfClip(column);
  }
}

/// The columns that ask a clip; gaps have nothing to say there.
std::string_view CellTextSource::GetOfClip(ColumnID column) {
  switch (column) {
    case kColumnComment:
      return Keep(CommentText(clip.GetProjectItem()));
    case kColumnDescription:
      return Keep(DescriptionText(clip.GetProjectItem()));
    case kColumnFileName:
      return GetOfMedia(&MediaTexts::fileName, FileNameText);
    case kColumnFilePath:
      return GetOfMedia(&MediaTexts::filePath, FilePathText);
    case kColumnOfflineStatus:
      return GetOfMedia(&MediaTexts::offlineStatus, OfflineStatusText);
    case kColumnMulticamCamera:
      return Keep(MulticamCameraText(row->trackItem));
    case kColumnTapeName:
      return Keep(TapeNameText(clip.GetProjectItem()));
    case kColumnUsageCountInSequence:
      return GetUsageCount();
    case kColumnVideoInfo:
      return Keep(MZ::FindClip::GetVideoInfo(row->trackItem));
    default:
      return {};
  }
}

std::string_view CellTextSource::GetTime(TickTime time) {
  return times.Get(static_cast<std::uint64_t>(time.GetTicks()), [&] {
    if (!timeFormat) timeFormat = GetTimeFormat(row->sequence);
    return FormatTime(*timeFormat, time);
  });
}

std::string_view CellTextSource::GetFrameRate() {
  return frameRates[KindOf(*row)].Get(static_cast<std::uint64_t>(row->frameRate.GetTicks()),
                                      [this] { return FrameRateText(*row); });
}

std::string_view CellTextSource::GetTrack() {
  return tracks[KindOf(*row)].Get(row->trackIndex, [this] { return TrackText(*row); });
}

std::string_view CellTextSource::GetUsageCount() {
  const auto masterClip = clip.GetMasterClip();
  if (!project) project = FindParentProject(row->sequence);
  if (!masterClip || !*project) return {};
  const std::uint64_t count = MZ::Project::GetMasterClipUsageCount(*project, masterClip, row->sequence);
  return usageCounts.Get(count, [count] { return Decimal(count); });
}

template <typename Make>
std::string_view CellTextSource::GetOfMedia(MediaText text, const Make& make) {
  std::optional<UTF8String>& found = GetMediaTexts().*text;
  if (!found) found = make(clip.GetMedia());
  return *found;
}

CellTextSource::MediaTexts& CellTextSource::GetMediaTexts() {
  if (mediaTexts == nullptr) mediaTexts = &FindMediaTexts();
  return *mediaTexts;
}

CellTextSource::MediaTexts& CellTextSource::FindMediaTexts() {
  if (memory == Memory::kOfOneRow) return textsOfOneMedia = MediaTexts();
  return textsOfMedia[clip.GetMedia().Get()];
}

std::string_view CellTextSource::Keep(UTF8String&& text) noexcept {
  lastText = std::move(text);
  return lastText;
}

}  // namespace Vantrel
