#include "data/GenerateFilters.h"

#include <algorithm>
#include <utility>

#include "data/FilterPredicates.h"
#include "data/RequiredEntry.h"
#include "host/UIF/QELConversionUtilities.h"
#include "host/ZSL/Color.h"
#include "host/qelui/Geometry.h"

namespace Vantrel {
namespace {

/// The match mode in which one filter is enough; in every other one a row must satisfy them all.
constexpr std::uint32_t kMatchMode_Any = 1;

FilterGroup MakeColorGroup(const std::vector<ZSL::Color>& labelColors) {
  std::vector<qelui::ColorRGBA> colors;
  colors.reserve(labelColors.size());
  for (const ZSL::Color& color : labelColors) {
    colors.push_back(UIF::QELConversionUtilities::ZSLColorToQELColorRGBA(color));
  }
  FilterGroup group;
  group.kind = kFilterGroupKind_Any;
  group.predicates.emplace_back([colors = std::move(colors)](const TrackItemRowData& row) {
    return std::ranges::find(colors, row.labelColor) != colors.end();
  });
  return group;
}

FilterGroup MakeToggleGroup(const MZ::SequenceIndex::Options& options) {
  FilterGroup group;
  group.kind = options.matchMode == kMatchMode_Any ? kFilterGroupKind_Any : kFilterGroupKind_All;
  for (const auto& [id, isSelected] : options.filterToggles) {
    if (isSelected) group.predicates.push_back(RequireEntry(GetFilterPredicates(), id));
  }
  return group;
}

}  // namespace

std::vector<FilterGroup> GenerateFiltersFromOptions(const MZ::SequenceIndex::Options& options) {
  std::vector<FilterGroup> groups;
  if (!options.labelColors.empty()) groups.push_back(MakeColorGroup(options.labelColors));
  FilterGroup toggles = MakeToggleGroup(options);
  if (!toggles.predicates.empty()) groups.push_back(std::move(toggles));
  return groups;
}

}  // namespace Vantrel
