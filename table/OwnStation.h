#pragma once

#include "host/qelcore/Messaging.h"

namespace Vantrel {

/// A station of the owner's own, open as long as this object lives.
class OwnStation {
 public:
  /// Throws: what registering throws; nothing is registered then.
  OwnStation() : id(qelcore::messaging::UniqueStationID()) { qelcore::messaging::RegisterStation(id); }
  ~OwnStation() { qelcore::messaging::DisposeStation(id); }
  OwnStation(const OwnStation&) = delete;
  OwnStation& operator=(const OwnStation&) = delete;

  const qelcore::messaging::StationID& GetID() const noexcept { return id; }

 private:
  qelcore::messaging::StationID id;
};

}  // namespace Vantrel
