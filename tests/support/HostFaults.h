#pragma once

#include <optional>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"

namespace hostcalls {

/// While true, every header row says that it has no column at all. The host's own always has one.
inline bool headerRowsHaveNoColumns = false;

/// While true, a menu toggles the check mark of the item that is chosen, which the host's own never do.
inline bool menusToggleTheChosenItem = false;

/// While true, the base of all views says of every mouse event that it handled it; the host's own
/// handles none.
inline bool viewsHandleEveryMouseEvent = false;
/// While true, the toolkit draws its controls in the look before the seventh; the host's own never
/// does.
inline bool isRunningAnOldSkin = false;

/// While set, this is the active project, or none; the host's own has every interface and is always
/// there.
inline std::optional<qelcore::Ref<BE::IProject>> activeProjectInstead;

}  // namespace hostcalls
