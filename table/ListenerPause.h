#pragma once

#include <memory>

#include "host/qelcore/Messaging.h"

namespace Vantrel {

/// Keeps a listener from hearing a station for its lifetime: removes it, and adds it again at the end,
/// held weakly, whatever happens in between. Nothing is removed or added for an expired listener.
/// [main-thread]
class ListenerPause {
 public:
  /// Throws: what removing throws; the listener is then still there.
  ListenerPause(qelcore::messaging::StationID station,
                std::weak_ptr<qelcore::messaging::Listener> listener);
  ~ListenerPause();
  ListenerPause(const ListenerPause&) = delete;
  ListenerPause& operator=(const ListenerPause&) = delete;

 private:
  qelcore::messaging::StationID station;
  std::weak_ptr<qelcore::messaging::Listener> listener;
};

}  // namespace Vantrel
