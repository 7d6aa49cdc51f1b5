#pragma once

#include <cstddef>

#include "host/qelcore/Messaging.h"

namespace Vantrel {

struct MessageNameForTreeViewItemsSelectionChangedMessage {};

/// Other rows of a table are selected, or it has other rows. Station: the tree's own.
class TreeViewItemsSelectionChangedMessage final : public qelcore::messaging::Message {
 public:
  TreeViewItemsSelectionChangedMessage(std::size_t selectedCount, std::size_t rowCount);
  ~TreeViewItemsSelectionChangedMessage() override;

  std::size_t GetSelectedCount() const noexcept { return selectedCount; }
  /// All rows of the table.
  std::size_t GetRowCount() const noexcept { return rowCount; }

 private:
  std::size_t selectedCount;
  std::size_t rowCount;
};

}  // namespace Vantrel
