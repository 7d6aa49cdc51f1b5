#pragma once

namespace hostcalls {

/// While true, every header row says that it has no column at all. The host's own always has one.
inline bool headerRowsHaveNoColumns = false;

}  // namespace hostcalls
