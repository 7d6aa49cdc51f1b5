#include "host/MZ/Sequences.h"
#include "host/UIF/Application.h"
#include "host/UIF/DC.h"
#include "host/qelui/Theme.h"
#include "view/PanelPlaces.h"
#include "view/SequenceIndexView.h"

namespace Vantrel {

namespace {

// What the table control's constructor is given: no style bits, and the height of a row in pixels.
constexpr unsigned kTreeStyle = 0;
constexpr float kTreeRowHeight = 18.0F;

constexpr bool kHasChildViews = true;
constexpr bool kIsDoubleBuffered = true;

}  // namespace

void SequenceIndexView::CreateContentsSelf() {
  SetHasQELChildViews(kHasChildViews);
  EnableDoubleBuffering(kIsDoubleBuffered);
  CreateSearchField();
  CreateFilterButton();
  CreateStatusText();
  CreateRowScaleSlider();
  CreateUpdateSelectionCheckbox();
  CreateTree();
  if (!UIF::Workspace::Instance().IsBeingLoaded()) {
    if (const auto sequence = MZ::GetActiveSequence()) SequenceActivated(sequence);
  }
  ApplyToolbarToTree();
}

void SequenceIndexView::CreateTree() {
  tree = qelcore::Ref(new SequenceIndexTree(GetSelf(), kTreeStyle, kTreeRowHeight));
  qelcore::messaging::AddWeakPtrListener(tree->GetStationID(), GetSelf());
  tree->UI_SetBounds(PanelPlaces::PlaceTree(GetBounds(), searchField->UI_GetBounds()));
  AddChildView(tree);
}

void SequenceIndexView::ApplyToolbarToTree() {
  UpdateTimelineSelectionFlag();
  UpdateRowHeight();
  UpdateFilterButton();
  tree->SetOptions(options);
}

void SequenceIndexView::LayoutSelf(const qelui::Rect& view) {
  if (tree) tree->UI_SetBounds(PanelPlaces::PlaceTree(view, searchField->UI_GetBounds()));
}

void SequenceIndexView::DrawBackground(qelui::Drawbot& drawbot) {
  const auto theme = qelui::ui::GetDefaultThemeProvider();
  UIF::DC::FillRect(drawbot, GetBounds(), qelui::skins::utilities::GetTabBackgroundColor(*theme));
}

}  // namespace Vantrel
