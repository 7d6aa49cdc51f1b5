#pragma once

#include <QTreeWidget>
#include <filesystem>
#include <functional>
#include <vector>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/documents/DocumentSession.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Lists the open files with their sequences, the active one marked. A double click or Enter activates
/// a sequence, Delete closes it. [main-thread]
class STANDALONE_API SequenceList final : public QTreeWidget {
 public:
  using Sequence = qelcore::Ref<BE::ISequence>;
  struct Actions {
    std::function<void(const Sequence&)> activate;
    std::function<void(const Sequence&)> closeSequence;
    std::function<void(const std::filesystem::path&)> closeFile;
  };

  explicit SequenceList(Actions actions, QWidget* parent = nullptr);

  void Show(const std::vector<OpenDocument>& documents, const Sequence& active);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Activate(const QTreeWidgetItem* item);
  /// What an item stands for: a sequence, or else a file.
  struct Entry {
    Sequence sequence;
    std::filesystem::path file;
  };
  Entry FindEntry(const QTreeWidgetItem* item) const;
  void Close(const Entry& entry);
  /// The sequence of an item; empty for a file's.
  Sequence FindSequence(const QTreeWidgetItem* item) const;

  const Actions actions;
  std::vector<Sequence> sequences;
};

}  // namespace standalone
