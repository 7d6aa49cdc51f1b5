#pragma once

#include <string>
#include <typeinfo>

#include "host/HostAPI.h"

namespace qelcore::debug {

/// The plain qualified name of a type ("BE::INotification"), the same with every compiler.
/// [any-thread]
HOST_API std::string GetTypeName(const std::type_info& type);

}  // namespace qelcore::debug
