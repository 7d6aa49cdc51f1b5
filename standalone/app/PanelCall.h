#pragma once

#include <exception>
#include <stdexcept>

#include "host/qelcore/Exceptions.h"

namespace standalone {

/// Asks something of the panel. Failures of the host leave as they are; any other may be of a type
/// whose code goes with the module, so only its sentence leaves.
template <typename Function>
auto CallPanel(const Function& function) {
  try {
    return function();
  } catch (const qelcore::config::qel_exception&) {
    throw;
  } catch (const std::exception& failure) {
    throw std::runtime_error(failure.what());
  }
}

}  // namespace standalone
