#include "table/SelectionChangedMessage.h"

#include "table/MessageIDs.h"

namespace Vantrel {

TreeViewItemsSelectionChangedMessage::TreeViewItemsSelectionChangedMessage(std::size_t selectedCount,
                                                                           std::size_t rowCount)
    : Message(MessageIDOf<MessageNameForTreeViewItemsSelectionChangedMessage>()),
      selectedCount(selectedCount),
      rowCount(rowCount) {}

TreeViewItemsSelectionChangedMessage::~TreeViewItemsSelectionChangedMessage() = default;

}  // namespace Vantrel
