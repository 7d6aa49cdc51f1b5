#include "standalone/runtime/StationRegistry.h"

#include <algorithm>
#include <string>
#include <utility>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/Log.h"

namespace standalone {

using qelcore::messaging::Listener;
using qelcore::messaging::Message;

namespace {

using WeakListener = StationRegistry::WeakListener;

/// Told apart by control block: an object may have several addresses, and a new object an old one's.
bool IsSame(const WeakListener& left, const WeakListener& right) {
  return !left.owner_before(right) && !right.owner_before(left);
}

auto FindSame(const std::vector<WeakListener>& listeners, const WeakListener& listener) {
  return std::find_if(listeners.begin(), listeners.end(),
                      [&](const WeakListener& other) { return IsSame(other, listener); });
}

bool IsExpired(const WeakListener& listener) {
  return listener.expired();
}

}  // namespace

StationRegistry::StationRegistry() = default;
StationRegistry::~StationRegistry() = default;

void StationRegistry::Register(const StationID& station) {
  const std::scoped_lock lock(mutex);
  if (stations.contains(station)) {
    throw qelcore::config::qel_exception(
        qelcore::config::ExceptionKind::kGeneric,
        std::string("The station \"").append(station.View()).append("\" is registered already"),
        std::string(station.View()));
  }
  stations.emplace(station, std::make_shared<Station>());
}

void StationRegistry::Dispose(const StationID& station) noexcept {
  std::vector<WeakListener> forgotten;
  const std::scoped_lock lock(mutex);
  const auto found = stations.find(station);
  if (found == stations.end()) return;
  forgotten.swap(found->second->listeners);
  stations.erase(found);
}

void StationRegistry::Add(const StationID& station, const WeakListener& listener) {
  const std::scoped_lock lock(mutex);
  const auto found = stations.find(station);
  if (found == stations.end() || listener.expired()) return;
  std::vector<WeakListener>& listeners = found->second->listeners;
  // A long-lived station sheds the listeners of closed panels here.
  std::erase_if(listeners, IsExpired);
  if (FindSame(listeners, listener) == listeners.end()) listeners.push_back(listener);
}

void StationRegistry::Remove(const StationID& station, const WeakListener& listener) {
  const std::scoped_lock lock(mutex);
  const auto found = stations.find(station);
  if (found == stations.end()) return;
  std::erase_if(found->second->listeners,
                [&](const WeakListener& other) { return IsSame(other, listener); });
}

void StationRegistry::Broadcast(const StationID& station, const Message& message, Log& log) {
  std::vector<WeakListener> snapshot;
  const std::shared_ptr<Station> receiver = Find(station);
  if (receiver == nullptr) return;
  {
    const std::scoped_lock lock(mutex);
    snapshot = receiver->listeners;
  }
  for (const WeakListener& listener : snapshot) {
    const std::shared_ptr<Listener> held = LockListener(*receiver, listener);
    if (held == nullptr) continue;
    try {
      held->ReceiveMessage(message);
    } catch (...) {
      log.ReportFailure("message listener", std::current_exception());
    }
  }
}

void StationRegistry::PurgeExpired() {
  const std::scoped_lock lock(mutex);
  for (auto& [name, station] : stations) std::erase_if(station->listeners, IsExpired);
}

bool StationRegistry::IsRegistered(const StationID& station) const {
  return Find(station) != nullptr;
}

std::size_t StationRegistry::CountListeners(const StationID& station) const {
  const std::scoped_lock lock(mutex);
  const auto found = stations.find(station);
  return found == stations.end() ? 0 : found->second->listeners.size();
}

std::shared_ptr<StationRegistry::Station> StationRegistry::Find(const StationID& station) const {
  const std::scoped_lock lock(mutex);
  const auto found = stations.find(station);
  return found == stations.end() ? nullptr : found->second;
}

std::shared_ptr<Listener> StationRegistry::LockListener(const Station& station,
                                                        const WeakListener& listener) const {
  const std::scoped_lock lock(mutex);
  const bool isStillThere = FindSame(station.listeners, listener) != station.listeners.end();
  return isStillThere ? listener.lock() : nullptr;
}

}  // namespace standalone
