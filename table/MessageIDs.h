#pragma once

#include <typeinfo>

#include "host/qelcore/Messaging.h"

namespace Vantrel {

/// The id of the message that is named by the type `Name` ("…MessageNameFor…"), computed once.
/// [any-thread]
template <typename Name>
qelcore::messaging::MessageID MessageIDOf() {
  static const qelcore::messaging::MessageID id =
      qelcore::messaging::HashMessageTypeNameToMessageID(typeid(Name).name());
  return id;
}

}  // namespace Vantrel
