#pragma once

#include "host/qelui/Geometry.h"

/// Where the panel's parts stand in the view's rectangle. The toolbar's controls stand in one line and
/// are placed once; the table takes what is left below them.
namespace Vantrel::PanelPlaces {

qelui::Rect PlaceSearchField(const qelui::Rect& view) noexcept;
qelui::Rect PlaceFilterButton(const qelui::Rect& view) noexcept;
qelui::Rect PlaceStatusLine(const qelui::Rect& view) noexcept;
qelui::Rect PlaceRowScaleSlider(const qelui::Rect& view) noexcept;
qelui::Rect PlaceUpdateSelectionCheckbox(const qelui::Rect& view) noexcept;

/// `searchField`: where that control stands now.
qelui::Rect PlaceTree(const qelui::Rect& view, const qelui::Rect& searchField) noexcept;

}  // namespace Vantrel::PanelPlaces
