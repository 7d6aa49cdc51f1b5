#pragma once

#include <memory>

#include "host/BE/Model.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/UIF/Commands.h"
#include "host/UIF/TabView.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Controls.h"
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

  /// Asks where to export the index to, and writes it. True when a file was written; false without a
  /// table or a sequence, or when the user cancelled. Throws: what the host's file layer throws.
  bool ExportSequenceIndex();

  void ReceiveMessage(const qelcore::messaging::Message& message) override;

  /// The controls; empty until the contents were created.
  const qelcore::Ref<qelui::controls::UI_SearchBox>& GetSearchField() const noexcept {
    return searchField;
  }
  const qelcore::Ref<SequenceIndexTree>& GetTree() const noexcept { return tree; }
  const qelcore::Ref<qelui::controls::UI_PictureButton>& GetFilterButton() const noexcept {
    return filterButton;
  }
  const MZ::SequenceIndex::Options& GetOptions() const noexcept { return options; }
  /// The search text as last read, in lower case.
  const qelcore::UTF8String& GetSearchText() const noexcept { return searchText; }

 protected:
  void CreateContentsSelf() override;

 private:
  using Sequence = qelcore::Ref<BE::ISequence>;

  std::shared_ptr<SequenceIndexView> GetSelf();
  void CreateSearchField();
  void CreateFilterButton();
  void CreateTree();
  void SearchFieldChanged(const qelui::ui::Message& message);
  void FilterButtonChanged(const qelui::ui::Message& message);
  void UpdateFilterButton();
  void EditOptions();

  void SequenceOpened(const Sequence& sequence, bool isToBeShown);
  void SequenceActivated(const Sequence& sequence);
  void SequenceClosed(const Sequence& sequence);
  /// Each half is all or nothing: throws null_pointer_exception naming the interface that a sequence
  /// lacks before that sequence's stations are touched.
  void MoveSequenceSubscriptions(const Sequence& from, const Sequence& to);

  std::weak_ptr<SequenceIndexHandler> handler;
  qelcore::Ref<qelui::controls::UI_SearchBox> searchField;
  qelcore::Ref<qelui::controls::UI_PictureButton> filterButton;
  qelcore::Ref<SequenceIndexTree> tree;
  qelcore::UTF8String searchText;
  MZ::SequenceIndex::Options options;
};

}  // namespace Vantrel
