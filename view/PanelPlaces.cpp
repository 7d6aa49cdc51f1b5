#include "view/PanelPlaces.h"

namespace Vantrel::PanelPlaces {

namespace {

using qelui::Rect;

// Pixels.
constexpr float kMargin = 12;
constexpr float kToolbarHeight = 24;
constexpr float kGapBetweenControls = 8;
constexpr float kGapBelowToolbar = 6;

constexpr float kSearchFieldWidth = 240;
constexpr float kFilterButtonWidth = 24;
constexpr float kStatusLineWidth = 240;
constexpr float kRowScaleSliderWidth = 80;
constexpr float kUpdateSelectionCheckboxWidth = 240;

constexpr float kSearchFieldLeft = kMargin;
constexpr float kFilterButtonLeft = kSearchFieldLeft + kSearchFieldWidth + kGapBetweenControls;
constexpr float kStatusLineLeft = kFilterButtonLeft + kFilterButtonWidth + kGapBetweenControls;
constexpr float kRowScaleSliderLeft = kStatusLineLeft + kStatusLineWidth + kGapBetweenControls;
constexpr float kUpdateSelectionCheckboxLeft =
    kRowScaleSliderLeft + kRowScaleSliderWidth + kGapBetweenControls;

Rect PlaceInToolbar(const Rect& view, float left, float width) noexcept {
  return {view.left + left, view.top + kMargin, width, kToolbarHeight};
}

}  // namespace

Rect PlaceSearchField(const Rect& view) noexcept {
  return PlaceInToolbar(view, kSearchFieldLeft, kSearchFieldWidth);
}

Rect PlaceFilterButton(const Rect& view) noexcept {
  return PlaceInToolbar(view, kFilterButtonLeft, kFilterButtonWidth);
}

Rect PlaceStatusLine(const Rect& view) noexcept {
  return PlaceInToolbar(view, kStatusLineLeft, kStatusLineWidth);
}

Rect PlaceRowScaleSlider(const Rect& view) noexcept {
  return PlaceInToolbar(view, kRowScaleSliderLeft, kRowScaleSliderWidth);
}

Rect PlaceUpdateSelectionCheckbox(const Rect& view) noexcept {
  return PlaceInToolbar(view, kUpdateSelectionCheckboxLeft, kUpdateSelectionCheckboxWidth);
}

Rect PlaceTree(const Rect& view, const Rect& searchField) noexcept {
  const float top = searchField.top + searchField.height + kGapBelowToolbar;
  const float bottom = view.top + view.height - kMargin;
  return {view.left + kMargin, top, view.width - 2 * kMargin, bottom - top};
}

}  // namespace Vantrel::PanelPlaces
