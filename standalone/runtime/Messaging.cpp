#include "host/qelcore/Messaging.h"

#include <atomic>
#include <string>
#include <string_view>
#include <utility>

#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/StationRegistry.h"

namespace qelcore::messaging {

using standalone::Runtime;

Message::~Message() = default;
Listener::Listener() = default;
Listener::~Listener() = default;

MessageID HashMessageTypeNameToMessageID(const char* typeName) noexcept {
  // 32-bit FNV-1a; 0 is kept free for "no message".
  MessageID hash = 2166136261U;
  for (const char byte : std::string_view(typeName)) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619U;
  }
  return hash == 0 ? 1 : hash;
}

StationID UniqueStationID() {
  static std::atomic<std::uint64_t> count = 0;
  return StationID("unique station " + std::to_string(++count));
}

void RegisterStation(const StationID& station) {
  Runtime::Current().GetStations().Register(station);
}

void DisposeStation(const StationID& station) noexcept {
  // Objects that own a station may be destroyed after the runtime, which has closed all stations.
  if (Runtime::Exists()) Runtime::Current().GetStations().Dispose(station);
}

void AddWeakPtrListener(const StationID& station, const std::weak_ptr<Listener>& listener) {
  Runtime::Current().GetStations().Add(station, listener);
}

void RemoveListener(const StationID& station, const std::weak_ptr<Listener>& listener) {
  if (Runtime::Exists()) Runtime::Current().GetStations().Remove(station, listener);
}

void BroadcastMessageOnMainThread(const StationID& station, const Message& message) {
  standalone::AssertMainThread("BroadcastMessageOnMainThread");
  Runtime& runtime = Runtime::Current();
  runtime.GetStations().Broadcast(station, message, runtime.GetLog());
}

void AsyncBroadcastMessagePtr(const StationID& station, std::shared_ptr<const Message> message) {
  threads::CallFromMainThread(
      [station, message = std::move(message)] { BroadcastMessageOnMainThread(station, *message); }, 0,
      true);
}

}  // namespace qelcore::messaging
