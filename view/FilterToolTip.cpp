#include "view/FilterToolTip.h"

#include <array>
#include <cstddef>
#include <string>

#include "data/LocalizedText.h"
#include "data/RequiredEntry.h"

namespace Vantrel {

namespace {

using MZ::SequenceIndex::kFilterEntries;
using MZ::SequenceIndex::Options;

const qelcore::UTF8String& GetClearText() {
  static const qelcore::UTF8String text = Localize(
      "$$$/Tessalo/Handlers/SequenceIndex/FilterButtonWin=Control + Click to clear all filters"
      "#{comment}QELMX-4248997");
  return text;
}

const qelcore::UTF8String& GetActiveFiltersText() {
  static const qelcore::UTF8String text = Localize(
      "$$$/Tessalo/Handlers/SequenceIndex/ActiveFilters=Active Filters: \n#{comment}QELMX-4248997");
  return text;
}

using Labels = std::array<qelcore::UTF8String, kFilterEntries.size()>;

/// The labels of the filters, in list order.
const Labels& GetLabels() {
  static const Labels labels = [] {
    Labels localised;
    for (std::size_t i = 0; i < localised.size(); ++i) {
      localised[i] = Localize(kFilterEntries[i].labelKey);
    }
    return localised;
  }();
  return labels;
}

}  // namespace

bool AreFiltersActive(const Options& options) {
  return options != Options();
}

qelcore::UTF8String MakeFilterToolTip(const Options& options) {
  if (!AreFiltersActive(options)) return GetClearText();
  std::string text(GetClearText().View());
  text.append("\n").append(GetActiveFiltersText().View());
  for (std::size_t i = 0; i < kFilterEntries.size(); ++i) {
    if (!RequireEntry(options.filterToggles, kFilterEntries[i].id)) continue;
    text.append(GetLabels()[i].View()).append("\n");
  }
  return qelcore::UTF8String(text);
}

}  // namespace Vantrel
