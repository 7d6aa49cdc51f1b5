#include "table/Broadcast.h"

#include <utility>

#include "host/qelcore/Threads.h"

namespace Vantrel {

void Broadcast(const qelcore::messaging::StationID& station,
               std::shared_ptr<const qelcore::messaging::Message> message) {
  if (qelcore::threads::CurrentThreadIsMainThread()) {
    qelcore::messaging::BroadcastMessageOnMainThread(station, *message);
  } else {
    qelcore::messaging::AsyncBroadcastMessagePtr(station, std::move(message));
  }
}

}  // namespace Vantrel
