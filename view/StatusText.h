#pragma once

#include <cstddef>

#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// The status line's text: how many rows there are, and how many of them are selected, if any are.
/// [main-thread]
qelcore::UTF8String MakeStatusText(std::size_t selectedCount, std::size_t rowCount);

}  // namespace Vantrel
