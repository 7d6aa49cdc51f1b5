#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "host/HostAPI.h"
#include "host/ZSL/Color.h"

/// The filter options of the Sequence Index, as the host's options dialog edits them.
namespace MZ::SequenceIndex {

/// One filter that can be switched on.
struct FilterEntry {
  std::uint32_t id;
  /// The localisation key of its label.
  const char* labelKey;
};

/// The filters, in the order in which they are listed. Identifiers are not in numeric order, and there
/// is no 13.
inline constexpr std::array<FilterEntry, 14> kFilterEntries{{
    {0, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/VideoOnly=Video"},
    {1, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/AudioOnly=Audio"},
    {2, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/GraphicsOnly=Graphics"},
    {6, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/MissingFontsOnly=Fonts Missing"},
    {14, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/StillImage=Still Image"},
    {4, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/NonIntrinsicEffectsOnly=Effects"},
    {5, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/MissingEffectsOnly=Effects Missing"},
    {7, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/TransitionsOnly=Transitions"},
    {3, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/OfflineMediaOnly=Offline Media"},
    {8, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/SpeedChangeOnly=Speed Change"},
    {10, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/DisabledOrMutedTracks=Disabled or Muted Tracks"},
    {11, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/DisabledClips=Disabled Clips"},
    {9, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/NestedSequence=Nested Sequence Clips"},
    {12, "$$$/Corvel/DLG/kSequenceIndexOptionsDialog/MulticamClipsOnly=Multicam Clips"},
}};

/// The toggles of a fresh panel: every entry, none selected. [any-thread]
HOST_API std::unordered_map<std::uint32_t, bool> MakeDefaultFilterToggles();

/// Which rows the Sequence Index shows. A plain value.
struct Options {
  /// 0: a row must satisfy every selected filter; 1: at least one. Any other value counts as 0.
  std::uint32_t matchMode = 0;
  /// Filter identifier to selected or not.
  std::unordered_map<std::uint32_t, bool> filterToggles = MakeDefaultFilterToggles();
  /// Whether gap rows are shown, whatever the filters say.
  bool isKeepingGaps = false;
  /// The longest gap, in frames, whose neighbours' times are marked; negative marks nothing.
  std::int32_t shortGapThreshold = 5;
  /// When not empty, only rows of one of these label colours are shown.
  std::vector<ZSL::Color> labelColors;

  friend bool operator==(const Options&, const Options&) = default;
};

}  // namespace MZ::SequenceIndex
