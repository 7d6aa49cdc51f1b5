#include "table/SelectionChangedMessage.h"

#include <gtest/gtest.h>

#include "host/MZ/Messages.h"
#include "table/MessageIDs.h"

namespace Vantrel {
namespace {

TEST(SelectionChangedMessage, TellsHowManyRowsOfHowManyAreSelected) {
  const TreeViewItemsSelectionChangedMessage message(3, 12);
  EXPECT_EQ(message.GetSelectedCount(), 3U);
  EXPECT_EQ(message.GetRowCount(), 12U);
}

TEST(SelectionChangedMessage, IsKnownByItsName) {
  const TreeViewItemsSelectionChangedMessage message(0, 0);
  EXPECT_EQ(message.GetID(), MessageIDOf<MessageNameForTreeViewItemsSelectionChangedMessage>());
  EXPECT_EQ(message.GetID(), qelcore::messaging::HashMessageTypeNameToMessageID(
                                 typeid(MessageNameForTreeViewItemsSelectionChangedMessage).name()));
  EXPECT_NE(message.GetID(), MessageIDOf<MZ::MessageNameForTrackItemActivationMessage>());
}

}  // namespace
}  // namespace Vantrel
