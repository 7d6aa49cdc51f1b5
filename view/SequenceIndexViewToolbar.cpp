#include "data/LocalizedText.h"
#include "host/UIF/Decals.h"
#include "view/BindMessageFunction.h"
#include "view/PanelPlaces.h"
#include "view/SequenceIndexView.h"
#include "view/ToolTipWidth.h"

namespace Vantrel {

namespace {

using qelui::controls::CheckboxValue;
using qelui::controls::ImageHandler;
using qelui::controls::SliderDirection;
using qelui::controls::UI_Checkbox;
using qelui::controls::UI_PictureButton;
using qelui::controls::UI_SearchBox;
using qelui::controls::UI_Slider;
using qelui::controls::UI_StaticText;

constexpr bool kIsEnabled = true;
constexpr bool kHasClearButton = true;
constexpr bool kIsKeepingHistory = false;
constexpr bool kIsJumpingToPointer = true;
constexpr double kLowestScale = 0;
constexpr double kHighestScale = 1;

const qelcore::UTF8String& GetRowScaleToolTip() {
  static const auto text = Localize(
      "$$$/Tessalo/Handlers/SequenceIndex/RowDisplaySlider=Scale displayed "
      "rows#{comment}QELMX-4248997");
  return text;
}

const qelcore::UTF8String& GetUpdateSelectionToolTip() {
  static const auto text = Localize(
      "$$$/Tessalo/Handlers/SequenceIndex/TimelineSelectionFollowsSelection="
      "Timeline Selection Follows Selection#{comment}QELMX-4248997");
  return text;
}

const qelcore::UTF8String& GetUpdateSelectionLabel() {
  static const auto text = Localize(
      "$$$/Tessalo/Handlers/SequenceIndex/UpdatesTimelineSelection=Update Timeline Selection"
      "#{comment}QELMX-4248997");
  return text;
}

}  // namespace

template <typename Control>
void SequenceIndexView::AddToToolbar(const qelcore::Ref<Control>& control, const qelui::Rect& place) {
  control->UI_SetBounds(place);
  AddChildView(control);
}

qelui::ui::SharedMessageFunction SequenceIndexView::Bind(
    void (SequenceIndexView::*operation)(const qelui::ui::Message&)) {
  return BindMessageFunction(operation, std::weak_ptr<SequenceIndexView>(GetSelf()));
}

void SequenceIndexView::CreateSearchField() {
  searchField = qelcore::Ref(new UI_SearchBox(kHasClearButton, kIsKeepingHistory));
  const auto changed = Bind(&SequenceIndexView::SearchFieldChanged);
  searchField->NotifyWhenChangedInteractively(changed);
  searchField->NotifyWhenChanged(changed);
  AddToToolbar(searchField, PanelPlaces::PlaceSearchField(GetBounds()));
}

void SequenceIndexView::CreateFilterButton() {
  filterButton = qelcore::Ref(new UI_PictureButton());
  filterButton->SetImageHandler(
      ImageHandler::Create({UIF::kUIFFilterNotificationOffDecal, UIF::kUIFFilterNotificationOnDecal}));
  filterButton->NotifyWhenChanged(Bind(&SequenceIndexView::FilterButtonChanged));
  filterButton->UI_SetEnabled(kIsEnabled);
  AddToToolbar(filterButton, PanelPlaces::PlaceFilterButton(GetBounds()));
}

void SequenceIndexView::CreateStatusText() {
  statusText = qelcore::Ref(new UI_StaticText());
  AddToToolbar(statusText, PanelPlaces::PlaceStatusLine(GetBounds()));
}

void SequenceIndexView::CreateRowScaleSlider() {
  rowScaleSlider = qelcore::Ref(new UI_Slider(SliderDirection::kHorizontal, kIsJumpingToPointer));
  rowScaleSlider->SetRange(kLowestScale, kHighestScale);
  rowScaleSlider->SetValue(rowScale);
  rowScaleSlider->UI_SetToolTip(GetRowScaleToolTip(), GetToolTipWidth());
  rowScaleSlider->NotifyWhenChangedInteractively(Bind(&SequenceIndexView::RowScaleSliderChanged));
  AddToToolbar(rowScaleSlider, PanelPlaces::PlaceRowScaleSlider(GetBounds()));
}

void SequenceIndexView::CreateUpdateSelectionCheckbox() {
  updateSelectionCheckbox = qelcore::Ref(new UI_Checkbox());
  updateSelectionCheckbox->UI_SetToolTip(GetUpdateSelectionToolTip(), GetToolTipWidth());
  updateSelectionCheckbox->SetLabel(GetUpdateSelectionLabel());
  updateSelectionCheckbox->SetValue(CheckboxValue::kUnchecked);
  updateSelectionCheckbox->NotifyWhenChanged(Bind(&SequenceIndexView::UpdateSelectionCheckboxChanged));
  AddToToolbar(updateSelectionCheckbox, PanelPlaces::PlaceUpdateSelectionCheckbox(GetBounds()));
}

void SequenceIndexView::RowScaleSliderChanged(const qelui::ui::Message& /*message*/) {
  if (tree) UpdateRowHeight();
}

void SequenceIndexView::UpdateRowHeight() {
  rowScale = rowScaleSlider->GetValue();
  const auto lowest = static_cast<float>(minRowHeight);
  const auto highest = static_cast<float>(maxRowHeight);
  tree->SetRowHeight(lowest + (highest - lowest) * static_cast<float>(rowScale));
}

void SequenceIndexView::UpdateSelectionCheckboxChanged(const qelui::ui::Message& /*message*/) {
  if (tree) UpdateTimelineSelectionFlag();
}

void SequenceIndexView::UpdateTimelineSelectionFlag() {
  tree->SetUpdateTimelineSelection(updateSelectionCheckbox->GetValue() == CheckboxValue::kChecked);
}

}  // namespace Vantrel
