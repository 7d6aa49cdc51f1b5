#pragma once

#include <vector>

#include "host/BE/Model.h"
#include "host/HostAPI.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"

/// Stations and messages of the editing services.
namespace MZ {

/// Sequences opened and closed.
extern HOST_API const qelcore::messaging::StationID kStation_Info;
/// The active sequence changed.
extern HOST_API const qelcore::messaging::StationID kStation_SequenceActivation;
/// Items are to be selected on the timeline.
extern HOST_API const qelcore::messaging::StationID kStation_TrackItemActivation;

struct HOST_API MessageNameForSequenceOpenedMessage {};
struct HOST_API MessageNameForSequenceActivatedMessage {};
struct HOST_API MessageNameForSequenceClosedMessage {};
struct HOST_API MessageNameForTrackItemActivationMessage {};

/// A sequence was opened in the user interface. Station: kStation_Info.
class HOST_API SequenceOpenedMessage final : public qelcore::messaging::Message {
 public:
  SequenceOpenedMessage(qelcore::Ref<BE::ISequence> sequence, bool isToBeShown);
  ~SequenceOpenedMessage() override;
  const qelcore::Ref<BE::ISequence>& GetSequence() const noexcept { return sequence; }
  /// Whether panels that show the active sequence should show this one.
  bool IsToBeShown() const noexcept { return isToBeShown; }

 private:
  qelcore::Ref<BE::ISequence> sequence;
  bool isToBeShown;
};

/// Another sequence is the active one. Station: kStation_SequenceActivation.
class HOST_API SequenceActivatedMessage final : public qelcore::messaging::Message {
 public:
  explicit SequenceActivatedMessage(qelcore::Ref<BE::ISequence> sequence);
  ~SequenceActivatedMessage() override;
  /// The active sequence, or empty when none is left.
  const qelcore::Ref<BE::ISequence>& GetSequence() const noexcept { return sequence; }

 private:
  qelcore::Ref<BE::ISequence> sequence;
};

/// A sequence was closed in the user interface. Station: kStation_Info.
class HOST_API SequenceClosedMessage final : public qelcore::messaging::Message {
 public:
  explicit SequenceClosedMessage(qelcore::Ref<BE::ISequence> sequence);
  ~SequenceClosedMessage() override;
  /// The sequence that was closed, or empty.
  const qelcore::Ref<BE::ISequence>& GetSequence() const noexcept { return sequence; }

 private:
  qelcore::Ref<BE::ISequence> sequence;
};

/// A track item in its sequence.
struct ActivatedTrackItem {
  qelcore::Ref<BE::ITrackItem> trackItem;
  qelcore::Ref<BE::ISequence> sequence;
};

/// These items, and no others, are to be selected on the timeline; none: nothing is. Station:
/// kStation_TrackItemActivation.
class HOST_API TrackItemActivationMessage final : public qelcore::messaging::Message {
 public:
  explicit TrackItemActivationMessage(std::vector<ActivatedTrackItem> items);
  ~TrackItemActivationMessage() override;
  const std::vector<ActivatedTrackItem>& GetItems() const noexcept { return items; }

 private:
  std::vector<ActivatedTrackItem> items;
};

}  // namespace MZ
