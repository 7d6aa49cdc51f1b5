#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "host/BE/Model.h"
#include "host/ML/Player.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/UIF/Commands.h"
#include "host/UIF/TabView.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Controls.h"
#include "host/qelui/Drawbot.h"
#include "host/qelui/Geometry.h"
#include "table/SelectionChangedMessage.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

class SequenceIndexHandler;

/// The panel's tab view: the toolbar and the table. It keeps the table on the active sequence, hands
/// it the filter options and the search text, and carries out the panel's commands.
///
/// Life: made with MakeShareable, SubscribeToStations, then Create, which builds the controls. Until
/// then every operation that needs a control does nothing. Subscriptions hold the view weakly.
/// [main-thread]
class SequenceIndexView final : public UIF::TabView, public qelcore::messaging::Listener {
 public:
  /// `handler` is the one that creates the view; held weakly, since the handler owns the view.
  explicit SequenceIndexView(const std::shared_ptr<SequenceIndexHandler>& handler);
  ~SequenceIndexView() override;

  /// Subscribes to the stations of sequences and of the active project. Throws: null_pointer_exception
  /// naming BE::INotification when there is no active project or it lacks that interface.
  void SubscribeToStations();

  bool FindCommandStatus(UIF::CommandID id, bool& isEnabled) override;
  bool ObeyCommand(const UIF::Command& command) override;
  void NowOnDuty() override;
  void NowOffDuty() override;

  void DrawBackground(qelui::Drawbot& drawbot) override;
  std::string_view GetWingMenuID() const override;

  /// Asks where to export the index to, and writes it. True when a file was written; false without a
  /// table or a sequence, or when the user cancelled. Throws: what the host's file layer throws.
  bool ExportSequenceIndex();

  void ReceiveMessage(const qelcore::messaging::Message& message) override;

  /// The controls; empty until the contents were created.
  const qelcore::Ref<qelui::controls::UI_SearchBox>& GetSearchField() const noexcept {
    return searchField;
  }
  const qelcore::Ref<qelui::controls::UI_PictureButton>& GetFilterButton() const noexcept {
    return filterButton;
  }
  const qelcore::Ref<qelui::controls::UI_StaticText>& GetStatusText() const noexcept {
    return statusText;
  }
  const qelcore::Ref<qelui::controls::UI_Slider>& GetRowScaleSlider() const noexcept {
    return rowScaleSlider;
  }
  const qelcore::Ref<qelui::controls::UI_Checkbox>& GetUpdateSelectionCheckbox() const noexcept {
    return updateSelectionCheckbox;
  }
  const qelcore::Ref<SequenceIndexTree>& GetTree() const noexcept { return tree; }
  const MZ::SequenceIndex::Options& GetOptions() const noexcept { return options; }
  /// The search text as last read, in lower case.
  const qelcore::UTF8String& GetSearchText() const noexcept { return searchText; }

 protected:
  /// Moves the table only: the toolbar's controls stay where they were created.
  void LayoutSelf(const qelui::Rect& view) override;
  void CreateContentsSelf() override;

 private:
  using Sequence = qelcore::Ref<BE::ISequence>;

  std::shared_ptr<SequenceIndexView> GetSelf();
  qelui::ui::SharedMessageFunction Bind(
      void (SequenceIndexView::*operation)(const qelui::ui::Message&));
  template <typename Control>
  void AddToToolbar(const qelcore::Ref<Control>& control, const qelui::Rect& place);

  void CreateSearchField();
  void CreateFilterButton();
  void CreateStatusText();
  void CreateRowScaleSlider();
  void CreateUpdateSelectionCheckbox();
  void CreateTree();
  void ApplyToolbarToTree();

  void SearchFieldChanged(const qelui::ui::Message& message);
  void FilterButtonChanged(const qelui::ui::Message& message);
  void UpdateFilterButton();
  void EditOptions();
  void RowScaleSliderChanged(const qelui::ui::Message& message);
  void UpdateRowHeight();
  void UpdateSelectionCheckboxChanged(const qelui::ui::Message& message);
  void UpdateTimelineSelectionFlag();

  void SequenceOpened(const Sequence& sequence, bool isToBeShown);
  void SequenceActivated(const Sequence& sequence);
  void SequenceClosed(const Sequence& sequence);
  void PlayerPositionChanged(const ML::PlayerPositionChangedMessage& message);
  void SelectionChanged(const TreeViewItemsSelectionChangedMessage& message);
  /// Each half is all or nothing: throws null_pointer_exception naming the interface that a sequence
  /// lacks before that sequence's stations are touched.
  void MoveSequenceSubscriptions(const Sequence& from, const Sequence& to);

  std::weak_ptr<SequenceIndexHandler> handler;
  qelcore::Ref<qelui::controls::UI_SearchBox> searchField;
  qelcore::Ref<qelui::controls::UI_PictureButton> filterButton;
  qelcore::Ref<qelui::controls::UI_StaticText> statusText;
  qelcore::Ref<qelui::controls::UI_Slider> rowScaleSlider;
  qelcore::Ref<qelui::controls::UI_Checkbox> updateSelectionCheckbox;
  qelcore::Ref<SequenceIndexTree> tree;
  /// What the slider said last: 0 for the lowest rows, 1 for the highest.
  double rowScale = 0;
  /// Pixels.
  std::int32_t minRowHeight = 25;
  std::int32_t maxRowHeight = 70;
  qelcore::UTF8String searchText;
  MZ::SequenceIndex::Options options;
};

}  // namespace Vantrel
