#include <typeinfo>
#include <utility>
#include <vector>

#include "host/BE/Messages.h"
#include "host/ML/Player.h"
#include "host/MZ/Messages.h"

namespace {

template <typename Name>
qelcore::messaging::MessageID IDOf() noexcept {
  return qelcore::messaging::HashMessageTypeNameToMessageID(typeid(Name).name());
}

}  // namespace

namespace BE {

ProjectClosedMessage::ProjectClosedMessage() : Message(IDOf<MessageNameForProjectClosedMessage>()) {}
ProjectClosedMessage::~ProjectClosedMessage() = default;

SequenceChangedMessage::SequenceChangedMessage(qelcore::Ref<ISequence> sequence)
    : Message(IDOf<MessageNameForSequenceChangedMessage>()), sequence(std::move(sequence)) {}
SequenceChangedMessage::~SequenceChangedMessage() = default;

TrackGroupChangedMessage::TrackGroupChangedMessage()
    : Message(IDOf<MessageNameForTrackGroupChangedMessage>()) {}
TrackGroupChangedMessage::~TrackGroupChangedMessage() = default;

}  // namespace BE

namespace ML {

PlayerPositionChangedMessage::PlayerPositionChangedMessage(PlayerMessageKind kind,
                                                           qelmediatypes::TickTime position)
    : Message(IDOf<MessageNameForPlayerPositionChangedMessage>()), kind(kind), position(position) {}
PlayerPositionChangedMessage::~PlayerPositionChangedMessage() = default;

}  // namespace ML

namespace MZ {

const qelcore::messaging::StationID kStation_Info("MZ::kStation_Info");
const qelcore::messaging::StationID kStation_SequenceActivation("MZ::kStation_SequenceActivation");
const qelcore::messaging::StationID kStation_TrackItemActivation("MZ::kStation_TrackItemActivation");

SequenceOpenedMessage::SequenceOpenedMessage(qelcore::Ref<BE::ISequence> sequence, bool isToBeShown)
    : Message(IDOf<MessageNameForSequenceOpenedMessage>()),
      sequence(std::move(sequence)),
      isToBeShown(isToBeShown) {}
SequenceOpenedMessage::~SequenceOpenedMessage() = default;

SequenceActivatedMessage::SequenceActivatedMessage(qelcore::Ref<BE::ISequence> sequence)
    : Message(IDOf<MessageNameForSequenceActivatedMessage>()), sequence(std::move(sequence)) {}
SequenceActivatedMessage::~SequenceActivatedMessage() = default;

SequenceClosedMessage::SequenceClosedMessage(qelcore::Ref<BE::ISequence> sequence)
    : Message(IDOf<MessageNameForSequenceClosedMessage>()), sequence(std::move(sequence)) {}
SequenceClosedMessage::~SequenceClosedMessage() = default;

TrackItemActivationMessage::TrackItemActivationMessage(std::vector<ActivatedTrackItem> items)
    : Message(IDOf<MessageNameForTrackItemActivationMessage>()), items(std::move(items)) {}
TrackItemActivationMessage::~TrackItemActivationMessage() = default;

}  // namespace MZ
