#include "data/RowBuilder.h"

#include <cstddef>
#include <string>
#include <utility>

#include "data/EffectScan.h"
#include "data/FontScan.h"
#include "data/ListText.h"
#include "data/LocalizedText.h"
#include "data/MediaTypes.h"
#include "data/ParentProject.h"
#include "data/TransitionScan.h"
#include "data/VideoCodecText.h"
#include "host/BE/Utilities.h"
#include "host/MZ/Clips.h"
#include "host/UIF/QELConversionUtilities.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {
namespace {

/// The longest name shown, in characters.
constexpr std::size_t kNameLimit = 2048;

const qelcore::UTF8String& GapName() {
  static const auto text = Localize("$$$/Vantrel/TrackItemRowData/EmptyItem=Gap");
  return text;
}

const qelcore::UTF8String& ProxyStatusText(bool isOffline) {
  static const auto offline = Localize("$$$/Corvel/MZ/ProxyOffline=Offline#{comment}QELMX-4248997");
  static const auto online = Localize("$$$/Corvel/MZ/ProxyOnline=Online#{comment}QELMX-4248997");
  return isOffline ? offline : online;
}

qelui::ColorRGBA LabelColorOf(qelcore::Borrowed<BE::IClip> clip) {
  const auto project = BE::GetContainingProxyProject(clip);
  return UIF::QELConversionUtilities::ZSLColorToQELColorRGBA(
      MZ::ColorLabelUtils::GetDisplayLabelColorForClip(clip, project));
}

void FillSource(TrackItemRowData& row) {
  const auto masterClip = BE::TrackItemUtils::GetMasterClip(row.trackItem);
  if (!masterClip) return;
  row.sourceClipName = masterClip->GetName();
  const auto proxy = BE::MasterClipUtils::GetProxyMedia(masterClip);
  if (!proxy) return;
  row.proxyPath = proxy->GetAddress();
  row.proxyStatus = ProxyStatusText(proxy->IsOffline());
}

/// A row at the end of a list, which is filled where it stands, as moving it there would cost as much
/// again. It is taken back unless it is kept.
class NewRow {
 public:
  explicit NewRow(TrackItemDataList& rows) : rows(rows), row(rows.emplace_back()) {}
  ~NewRow() {
    if (!isKept) rows.pop_back();
  }
  NewRow(const NewRow&) = delete;
  NewRow& operator=(const NewRow&) = delete;

  TrackItemRowData& Get() noexcept { return row; }
  void Keep() noexcept { isKept = true; }

 private:
  TrackItemDataList& rows;
  TrackItemRowData& row;
  bool isKept = false;
};

qelcore::UTF8String ClipName(const TrackItemRowData& row, const BE::IClip& clip, bool hasProject) {
  if (!hasProject) return clip.GetName();
  return qelcore::string::ToSingleLine(MZ::FindClip::GetClipName(row.trackItem), kNameLimit);
}

}  // namespace

RowBuilder::RowBuilder(const qelcore::Ref<BE::ISequence>& sequence, TrackItemDataList& rows)
    : sequence(sequence),
      parentProject(FindParentProject(sequence)),
      videoFrameDuration(qelcore::Required(sequence).GetVideoFrameDuration()),
      audioFrameDuration(sequence->GetAudioFrameDuration()),
      rows(rows) {}

void RowBuilder::AppendRow(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  switch (trackItem->GetType()) {
    case BE::kTrackItemType_Empty:
      AppendGapRow(trackItem);
      break;
    case BE::kTrackItemType_Clip:
      AppendClipRow(trackItem);
      break;
    default:
      break;
  }
}

void RowBuilder::AppendGapRow(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  // Only the open filler ends exactly there; a gap beyond is a gap.
  if (trackItem->GetEnd() == qelmediatypes::kOneHundredHours) return;
  NewRow newRow(rows);
  TrackItemRowData& row = newRow.Get();
  FillPlace(row, trackItem);
  row.name = GapName();
  row.frameRate = GetFrameDuration(row.mediaType);
  newRow.Keep();
}

void RowBuilder::AppendClipRow(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  const auto clip = trackItem->GetClip();
  const auto media = qelcore::Required(clip).GetMedia();
  qelcore::Required(media);
  const auto components = qelcore::RequireInterface<BE::IComponentOwner>(clip);

  NewRow newRow(rows);
  TrackItemRowData& row = newRow.Get();
  FillPlace(row, trackItem);
  row.codec = VideoCodecText(row.mediaType, media);
  row.labelColor = LabelColorOf(clip);
  FillSource(row);
  row.name = ClipName(row, *clip, static_cast<bool>(parentProject));
  row.frameRate = clip->GetFrameDuration();
  FillEffects(row, *components);
  FillTransitions(row);
  FillFonts(row, *components);
  newRow.Keep();
}

void RowBuilder::FillEffects(TrackItemRowData& row, const BE::IComponentOwner& components) {
  lists.Clear();
  ScanEffects(components, texts, lists);
  row.effects = texts.Share(lists.present);
}

// After the effects, whose missing ones the missing transitions follow.
void RowBuilder::FillTransitions(TrackItemRowData& row) {
  lists.present.clear();
  ScanTransitions(row.trackItem, texts, lists);
  row.transitions = texts.Share(lists.present);
  row.effectsMissing = texts.Share(lists.missing);
}

void RowBuilder::FillFonts(TrackItemRowData& row, const BE::IComponentOwner& components) {
  if (!IsVideoRow(row) || !MZ::Graphics::IsGraphicsTrackItem(row.trackItem)) return;
  const FontLists fonts = ScanFonts(components);
  row.fontsUsed = texts.Share(MakeListText(fonts.used));
  row.fontsMissing = texts.Share(MakeListText(fonts.missing));
}

void RowBuilder::FillPlace(TrackItemRowData& row, const qelcore::Ref<BE::ITrackItem>& trackItem) const {
  row.trackItem = trackItem;
  row.sequence = sequence;
  row.trackIndex = trackItem->GetTrackIndex();
  row.start = trackItem->GetStart();
  row.end = trackItem->GetEnd();
  row.mediaType = trackItem->GetMediaType();
}

qelmediatypes::TickTime RowBuilder::GetFrameDuration(const BE::MediaType& mediaType) const {
  if (mediaType == BE::kMediaType_Video) return videoFrameDuration;
  if (mediaType == BE::kMediaType_Audio) return audioFrameDuration;
  return qelmediatypes::kUnknownFrameDuration;
}

}  // namespace Vantrel
