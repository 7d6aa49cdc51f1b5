#pragma once

#include <cstdint>
#include <memory>

#include "host/HostAPI.h"
#include "host/qelcore/ImmutableString.h"

/// Messages travel through stations. A station is a *set* of listeners, each held weakly and told
/// apart by its control block: adding one twice is adding it once, removing an absent one is no
/// error. A message is delivered to the listeners the station had when the broadcast began; one that
/// was removed meanwhile, or is gone, is skipped, and each is held strongly while it is called.
/// Listeners may change any station while they are called. Broadcasting to a station that nobody
/// registered, or that was disposed of, does nothing.
///
/// A listener that throws does not keep the message from the others: the host logs the failure.
namespace qelcore::messaging {

using MessageID = std::uint32_t;
using StationID = utility::ImmutableString;

/// The id of a message type, from the name that `typeid(MessageNameFor…).name()` gives. Never 0. Ids
/// are for comparing within one run; do not store them. [any-thread]
HOST_API MessageID HashMessageTypeNameToMessageID(const char* typeName) noexcept;

/// Base of every message. The class of a message follows from its id. Immutable.
class HOST_API Message {
 public:
  Message(const Message&) = delete;
  Message& operator=(const Message&) = delete;
  virtual ~Message();
  MessageID GetID() const noexcept { return id; }

 protected:
  explicit Message(MessageID id) noexcept : id(id) {}

 private:
  MessageID id;
};

/// Receives what is broadcast on the stations it was added to.
class HOST_API Listener {
 public:
  virtual ~Listener();
  /// [main-thread]. `message` is borrowed for the call.
  virtual void ReceiveMessage(const Message& message) = 0;

 protected:
  Listener();
};

/// A station name that no other station of this run has or will have. [any-thread]
HOST_API StationID UniqueStationID();

/// Opens a station under `station`. Throws: qel_exception when that name is registered already.
/// [any-thread]
HOST_API void RegisterStation(const StationID& station);

/// Closes the station and forgets its listeners; an unknown name is no error. Throws: nothing.
/// [any-thread]
HOST_API void DisposeStation(const StationID& station) noexcept;

/// Adds a listener, held weakly; to an unknown station, or with an expired listener, nothing happens.
/// [any-thread]
HOST_API void AddWeakPtrListener(const StationID& station, const std::weak_ptr<Listener>& listener);

/// Removes a listener; it may have expired. [any-thread]
HOST_API void RemoveListener(const StationID& station, const std::weak_ptr<Listener>& listener);

/// Delivers `message` before it returns. [main-thread]
HOST_API void BroadcastMessageOnMainThread(const StationID& station, const Message& message);

/// Queues the delivery of `message` (not null) to the main thread; shares ownership until then.
/// [any-thread]
HOST_API void AsyncBroadcastMessagePtr(const StationID& station,
                                       std::shared_ptr<const Message> message);

}  // namespace qelcore::messaging
