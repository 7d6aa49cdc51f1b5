#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "model/ProjectModelFixture.h"

namespace projectmodel {
namespace {

class ProjectMessages : public ProjectModelTest {};

TEST_F(ProjectMessages, TheMessagesHaveDifferentIDs) {
  const Ref<BE::ISequence> none;
  const std::vector ids{BE::ProjectClosedMessage().GetID(),
                        BE::SequenceChangedMessage(none).GetID(),
                        BE::TrackGroupChangedMessage().GetID(),
                        MZ::SequenceOpenedMessage(none, true).GetID(),
                        MZ::SequenceActivatedMessage(none).GetID(),
                        MZ::SequenceClosedMessage(none).GetID(),
                        MZ::TrackItemActivationMessage({}).GetID(),
                        ML::PlayerPositionChangedMessage(ML::PlayerMessageKind::kStarted, {}).GetID()};
  EXPECT_EQ(std::set(ids.begin(), ids.end()).size(), ids.size());
}

template <typename Name>
qelcore::messaging::MessageID IDOf() {
  return qelcore::messaging::HashMessageTypeNameToMessageID(typeid(Name).name());
}

TEST_F(ProjectMessages, AMessageIsKnownByTheTypeThatNamesIt) {
  const Ref<BE::ISequence> none;
  EXPECT_EQ(BE::ProjectClosedMessage().GetID(), IDOf<BE::MessageNameForProjectClosedMessage>());
  EXPECT_EQ(BE::SequenceChangedMessage(none).GetID(), IDOf<BE::MessageNameForSequenceChangedMessage>());
  EXPECT_EQ(BE::TrackGroupChangedMessage().GetID(), IDOf<BE::MessageNameForTrackGroupChangedMessage>());
  EXPECT_EQ(MZ::SequenceOpenedMessage(none, true).GetID(),
            IDOf<MZ::MessageNameForSequenceOpenedMessage>());
  EXPECT_EQ(MZ::SequenceActivatedMessage(none).GetID(),
            IDOf<MZ::MessageNameForSequenceActivatedMessage>());
  EXPECT_EQ(MZ::SequenceClosedMessage(none).GetID(), IDOf<MZ::MessageNameForSequenceClosedMessage>());
  EXPECT_EQ(MZ::TrackItemActivationMessage({}).GetID(),
            IDOf<MZ::MessageNameForTrackItemActivationMessage>());
  EXPECT_EQ(ML::PlayerPositionChangedMessage(ML::PlayerMessageKind::kStarted, {}).GetID(),
            IDOf<ML::MessageNameForPlayerPositionChangedMessage>());
}

TEST_F(ProjectMessages, APlayerMessageCarriesKindAndPosition) {
  const ML::PlayerPositionChangedMessage message(ML::PlayerMessageKind::kPositionPlayed,
                                                 drafts::Frame(-3));
  EXPECT_EQ(message.GetKind(), ML::PlayerMessageKind::kPositionPlayed);
  EXPECT_EQ(static_cast<std::uint32_t>(message.GetKind()), 5U);
  EXPECT_EQ(static_cast<std::uint32_t>(ML::PlayerMessageKind::kPositionSet), 3U);
  EXPECT_EQ(message.GetPosition(), drafts::Frame(-3));
}

TEST_F(ProjectMessages, AnActivationOfTrackItemsCarriesEachWithItsSequence) {
  const auto sequence = AddOpened("A");
  const auto items = CollectItems(sequence);
  ASSERT_FALSE(items.empty());
  const MZ::TrackItemActivationMessage message({{items[0], sequence}, {}});
  ASSERT_EQ(message.GetItems().size(), 2U);
  EXPECT_EQ(message.GetItems()[0].trackItem, items[0]);
  EXPECT_EQ(message.GetItems()[0].sequence, sequence);
  EXPECT_FALSE(message.GetItems()[1].trackItem);
}

}  // namespace
}  // namespace projectmodel
