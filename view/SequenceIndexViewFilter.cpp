#include <cstddef>
#include <utility>

#include "host/DLG/SequenceIndexDialogs.h"
#include "host/qelui/Events.h"
#include "view/FilterToolTip.h"
#include "view/SequenceIndexView.h"
#include "view/ToolTipWidth.h"

namespace Vantrel {

namespace {

// The states of the filter button's image.
constexpr std::size_t kOffState = 0;
constexpr std::size_t kOnState = 1;

}  // namespace

void SequenceIndexView::FilterButtonChanged(const qelui::ui::Message& message) {
  if (!tree) return;
  const auto& click = static_cast<const qelui::controls::UI_ButtonChangedMessage&>(message);
  if ((click.GetModKeys() & qelui::ui::kModifierControl) != 0) {
    options = MZ::SequenceIndex::Options();
  } else {
    EditOptions();
  }
  // Also after a cancelled dialog: the click always leaves a table that shows the options.
  UpdateFilterButton();
  tree->SetOptions(options);
}

void SequenceIndexView::EditOptions() {
  if (auto edited = DLG::DoSequenceIndexOptionsDialog(options)) options = *std::move(edited);
}

void SequenceIndexView::UpdateFilterButton() {
  filterButton->GetImageHandler()->SetImageState(AreFiltersActive(options) ? kOnState : kOffState);
  filterButton->UI_Invalidate();
  filterButton->UI_SetToolTip(MakeFilterToolTip(options), GetToolTipWidth());
}

}  // namespace Vantrel
