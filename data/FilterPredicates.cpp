#include "data/FilterPredicates.h"

#include <cstddef>

#include "data/ClipRow.h"
#include "data/MediaTypes.h"
#include "host/BE/Utilities.h"
#include "host/MZ/Clips.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {
namespace {

using BE::TrackItemUtils::GetChildClip;
using BE::TrackItemUtils::GetClip;
using qelcore::Required;

/// Whether a test holds for one of the effects that somebody added to the row's clip.
template <typename Test>
bool HasEffect(const TrackItemRowData& row, Test test) {
  if (!IsClipRow(row)) return false;
  const auto clip = GetClip(row.trackItem);
  Required(clip);
  const auto components = qelcore::RequireInterface<BE::IComponentOwner>(clip);
  const std::size_t count = components->GetComponentCount();
  for (std::size_t i = 0; i < count; ++i) {
    const auto component = components->GetComponent(i);
    if (!Required(component).IsIntrinsic() && test(*component)) return true;
  }
  return false;
}

bool HasAnyEffect(const TrackItemRowData& row) {
  return HasEffect(row, [](const BE::IComponent&) { return true; });
}

bool HasMissingEffect(const TrackItemRowData& row) {
  return HasEffect(row, [](const BE::IComponent& effect) { return effect.IsMissing(); });
}

bool IsGraphicsClip(const TrackItemRowData& row) {
  return IsVideoRow(row) && IsClipRow(row) && MZ::Graphics::IsGraphicsTrackItem(row.trackItem);
}

bool IsMediaOffline(const TrackItemRowData& row) {
  if (!IsClipRow(row)) return false;
  const auto media = Required(GetClip(row.trackItem)).GetMedia();
  return Required(media).IsOffline();
}

bool HasMissingFonts(const TrackItemRowData& row) {
  return !row.fontsMissing.Empty();
}

bool HasTransitions(const TrackItemRowData& row) {
  return !row.transitions.Empty();
}

bool IsSpeedChanged(const TrackItemRowData& row) {
  return IsClipRow(row) && Required(GetChildClip(row.trackItem)).IsSpeedChanged();
}

bool IsNestedSequence(const TrackItemRowData& row) {
  return IsClipRow(row) && Required(GetChildClip(row.trackItem)).IsSequence();
}

bool IsOnDisabledOrMutedTrack(const TrackItemRowData& row) {
  return IsClipRow(row) &&
         qelcore::RequireInterface<BE::ITrack>(row.trackItem->GetTrack())->IsDisabledOrMuted();
}

bool IsDisabledClip(const TrackItemRowData& row) {
  return IsClipRow(row) && Required(GetClip(row.trackItem)).IsDisabled();
}

bool IsMulticamClip(const TrackItemRowData& row) {
  return IsClipRow(row) && Required(GetClip(row.trackItem)).IsMulticam();
}

bool IsStillImage(const TrackItemRowData& row) {
  if (!IsVideoRow(row) || !IsClipRow(row)) return false;
  const auto masterClip = Required(GetChildClip(row.trackItem)).GetMasterClip();
  Required(masterClip);
  return BE::MasterClipUtils::IsStill(masterClip);
}

}  // namespace

const std::unordered_map<std::uint32_t, FilterPredicate>& GetFilterPredicates() {
  static const std::unordered_map<std::uint32_t, FilterPredicate> predicates{
      {0, IsVideoRow},
      {1, IsAudioRow},
      {2, IsGraphicsClip},
      {3, IsMediaOffline},
      {4, HasAnyEffect},
      {5, HasMissingEffect},
      {6, HasMissingFonts},
      {7, HasTransitions},
      {8, IsSpeedChanged},
      {9, IsNestedSequence},
      {10, IsOnDisabledOrMutedTrack},
      {11, IsDisabledClip},
      {12, IsMulticamClip},
      {14, IsStillImage},
  };
  return predicates;
}

}  // namespace Vantrel
