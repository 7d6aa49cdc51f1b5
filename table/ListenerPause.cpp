#include "table/ListenerPause.h"

#include <exception>
#include <utility>

namespace Vantrel {

ListenerPause::ListenerPause(qelcore::messaging::StationID station,
                             std::weak_ptr<qelcore::messaging::Listener> listener)
    : station(std::move(station)), listener(std::move(listener)) {
  if (!this->listener.expired()) qelcore::messaging::RemoveListener(this->station, this->listener);
}

ListenerPause::~ListenerPause() {
  if (listener.expired()) return;
  try {
    qelcore::messaging::AddWeakPtrListener(station, listener);
  } catch (const std::exception&) {
    // Without memory for it, the listener hears this station again when it next subscribes.
  }
}

}  // namespace Vantrel
