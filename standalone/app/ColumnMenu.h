#pragma once

#include "standalone/app/ColumnList.h"
#include "standalone/app/IndexSession.h"

namespace standalone {

/// Shows the wanted columns in the wanted order as a user would: from the header's context menu, then
/// by dragging. Throws: as FindColumns, before anything is changed. [main-thread]
void ShowColumns(IndexSession& session, const ColumnChoice& choice);

}  // namespace standalone
