#include "host/MZ/Sequences.h"
#include "host/UIF/Application.h"
#include "host/UIF/Decals.h"
#include "view/BindMessageFunction.h"
#include "view/SequenceIndexView.h"

namespace Vantrel {

namespace {

using qelui::Rect;

// Pixels. The toolbar's controls stand in one line, each with its place for good.
constexpr float kMargin = 12;
constexpr float kToolbarHeight = 24;
constexpr float kToolbarGap = 6;
constexpr float kSearchFieldWidth = 240;
constexpr float kFilterButtonLeft = 260;
constexpr float kFilterButtonWidth = 24;

// What the table control's constructor is given: no style bits, and the height of a row in pixels.
constexpr unsigned kTreeStyle = 0;
constexpr float kTreeRowHeight = 18.0F;

constexpr bool kHasChildViews = true;
constexpr bool kIsDoubleBuffered = true;
constexpr bool kIsEnabled = true;
constexpr bool kHasClearButton = true;
constexpr bool kIsKeepingHistory = false;

Rect PlaceSearchField(const Rect& view) {
  return {view.left + kMargin, view.top + kMargin, kSearchFieldWidth, kToolbarHeight};
}

Rect PlaceFilterButton(const Rect& view) {
  return {view.left + kFilterButtonLeft, view.top + kMargin, kFilterButtonWidth, kToolbarHeight};
}

Rect PlaceTree(const Rect& view) {
  constexpr float kTop = kMargin + kToolbarHeight + kToolbarGap;
  return {view.left + kMargin, view.top + kTop, view.width - 2 * kMargin, view.height - kTop - kMargin};
}

}  // namespace

void SequenceIndexView::CreateContentsSelf() {
  SetHasQELChildViews(kHasChildViews);
  EnableDoubleBuffering(kIsDoubleBuffered);
  CreateSearchField();
  CreateFilterButton();
  CreateTree();
  if (!UIF::Workspace::Instance().IsBeingLoaded()) {
    if (const auto sequence = MZ::GetActiveSequence()) SequenceActivated(sequence);
  }
  UpdateFilterButton();
  tree->SetOptions(options);
}

void SequenceIndexView::CreateSearchField() {
  searchField = qelcore::Ref(new qelui::controls::UI_SearchBox(kHasClearButton, kIsKeepingHistory));
  const std::weak_ptr<SequenceIndexView> self = GetSelf();
  const auto changed = BindMessageFunction(&SequenceIndexView::SearchFieldChanged, self);
  searchField->NotifyWhenChangedInteractively(changed);
  searchField->NotifyWhenChanged(changed);
  searchField->UI_SetBounds(PlaceSearchField(GetBounds()));
  AddChildView(searchField);
}

void SequenceIndexView::CreateFilterButton() {
  filterButton = qelcore::Ref(new qelui::controls::UI_PictureButton());
  filterButton->SetImageHandler(qelui::controls::ImageHandler::Create(
      {UIF::kUIFFilterNotificationOffDecal, UIF::kUIFFilterNotificationOnDecal}));
  const std::weak_ptr<SequenceIndexView> self = GetSelf();
  filterButton->NotifyWhenChanged(BindMessageFunction(&SequenceIndexView::FilterButtonChanged, self));
  filterButton->UI_SetEnabled(kIsEnabled);
  filterButton->UI_SetBounds(PlaceFilterButton(GetBounds()));
  AddChildView(filterButton);
}

void SequenceIndexView::CreateTree() {
  tree = qelcore::Ref(new SequenceIndexTree(GetSelf(), kTreeStyle, kTreeRowHeight));
  tree->UI_SetBounds(PlaceTree(GetBounds()));
  AddChildView(tree);
}

}  // namespace Vantrel
