#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "host/qelcore/Messaging.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class Log;

/// The stations of a runtime, behind `qelcore::messaging`. All operations are [any-thread] except
/// Broadcast; the lock is never held while a listener runs or an owner is let go.
class STANDALONE_API StationRegistry {
 public:
  using StationID = qelcore::messaging::StationID;
  using WeakListener = std::weak_ptr<qelcore::messaging::Listener>;

  StationRegistry();
  ~StationRegistry();
  StationRegistry(const StationRegistry&) = delete;
  StationRegistry& operator=(const StationRegistry&) = delete;

  /// Throws: qel_exception when that name is registered already.
  void Register(const StationID& station);
  void Dispose(const StationID& station) noexcept;
  void Add(const StationID& station, const WeakListener& listener);
  void Remove(const StationID& station, const WeakListener& listener);

  /// Delivers to the listeners of this moment; their failures go to `log`. [main-thread]
  void Broadcast(const StationID& station, const qelcore::messaging::Message& message, Log& log);

  /// Lets go of the listeners that are gone, at every station: what the weak pointers still hold may
  /// belong to a library that is about to be released.
  void PurgeExpired();

  bool IsRegistered(const StationID& station) const;
  /// The listeners that a station holds, those that are gone included; 0 for an unknown one.
  std::size_t CountListeners(const StationID& station) const;

 private:
  /// Listeners in the order added, each once. Empty for good once the station was disposed of.
  struct Station {
    std::vector<WeakListener> listeners;
  };

  std::shared_ptr<Station> Find(const StationID& station) const;
  /// The listener, owned, if the station still has it and it still lives.
  std::shared_ptr<qelcore::messaging::Listener> LockListener(const Station& station,
                                                             const WeakListener& listener) const;

  mutable std::mutex mutex;
  std::unordered_map<StationID, std::shared_ptr<Station>> stations;
};

}  // namespace standalone
