#pragma once

#include <memory>

#include "host/qelcore/Messaging.h"

namespace Vantrel {

/// Broadcasts a message: on the main thread at once, elsewhere through the main thread's queue.
/// [any-thread]
void Broadcast(const qelcore::messaging::StationID& station,
               std::shared_ptr<const qelcore::messaging::Message> message);

}  // namespace Vantrel
