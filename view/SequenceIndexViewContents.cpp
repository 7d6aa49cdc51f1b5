#include <utility>

#include "host/DLG/SequenceIndexDialogs.h"
#include "host/MZ/Sequences.h"
#include "host/UIF/Application.h"
#include "host/qelui/Events.h"
#include "view/BindMessageFunction.h"
#include "view/SequenceIndexView.h"

namespace Vantrel {

namespace {

using qelui::Rect;

// Pixels. The toolbar's controls stand in one line, each with its place for good.
constexpr float kMargin = 12;
constexpr float kToolbarHeight = 24;
constexpr float kToolbarGap = 6;
constexpr float kFilterButtonLeft = 260;
constexpr float kFilterButtonWidth = 24;

// What the table control's constructor is given: no style bits, and the height of a row in pixels.
constexpr unsigned kTreeStyle = 0;
constexpr float kTreeRowHeight = 18.0F;

constexpr bool kHasChildViews = true;
constexpr bool kIsDoubleBuffered = true;
constexpr bool kIsEnabled = true;

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
  CreateFilterButton();
  CreateTree();
  if (!UIF::Workspace::Instance().IsBeingLoaded()) {
    if (const auto sequence = MZ::GetActiveSequence()) SequenceActivated(sequence);
  }
  tree->SetOptions(options);
}

void SequenceIndexView::CreateFilterButton() {
  filterButton = qelcore::Ref(new qelui::controls::UI_PictureButton());
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

void SequenceIndexView::FilterButtonChanged(const qelui::ui::Message& message) {
  if (!tree) return;
  const auto& click = static_cast<const qelui::controls::UI_ButtonChangedMessage&>(message);
  if ((click.GetModKeys() & qelui::ui::kModifierControl) != 0) {
    options = MZ::SequenceIndex::Options();
  } else {
    EditOptions();
  }
  // Also after a cancelled dialog: the click always leaves a table that shows the options.
  tree->SetOptions(options);
}

void SequenceIndexView::EditOptions() {
  if (auto edited = DLG::DoSequenceIndexOptionsDialog(options)) options = *std::move(edited);
}

}  // namespace Vantrel
