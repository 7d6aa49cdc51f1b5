#pragma once

#include "host/BE/Model.h"
#include "host/HostAPI.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"

/// The messages of projects and sequences. Each has a name type, from which its id is hashed.
namespace BE {

struct HOST_API MessageNameForProjectClosedMessage {};
struct HOST_API MessageNameForSequenceChangedMessage {};
struct HOST_API MessageNameForTrackGroupChangedMessage {};

/// The project is about to go. Station: the project's.
class HOST_API ProjectClosedMessage final : public qelcore::messaging::Message {
 public:
  ProjectClosedMessage();
  ~ProjectClosedMessage() override;
};

/// A sequence changed: its name, start or format (station: the project's), or its content (station:
/// the sequence's content interface).
class HOST_API SequenceChangedMessage final : public qelcore::messaging::Message {
 public:
  explicit SequenceChangedMessage(qelcore::Ref<ISequence> sequence);
  ~SequenceChangedMessage() override;
  /// The sequence that changed, or empty.
  const qelcore::Ref<ISequence>& GetSequence() const noexcept { return sequence; }

 private:
  qelcore::Ref<ISequence> sequence;
};

/// Tracks were added, removed or moved. Station: the sequence's track-group interface.
class HOST_API TrackGroupChangedMessage final : public qelcore::messaging::Message {
 public:
  TrackGroupChangedMessage();
  ~TrackGroupChangedMessage() override;
};

}  // namespace BE
