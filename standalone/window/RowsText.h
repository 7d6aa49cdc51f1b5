#pragma once

#include <QString>
#include <cstddef>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The most rows that are copied at a time: enough for a page of notes, and quick. Exporting takes all.
inline constexpr std::size_t kMostCopiedRows = 10000;

/// The selected rows of a table as text for other programs: a line with the names of the columns shown,
/// then a line for each row, cells separated by tabs. Empty when no row is selected; at most
/// kMostCopiedRows rows. [main-thread]
STANDALONE_API QString CopyRows(const qelui::controls::UI_MultiColumnTree& tree);

}  // namespace standalone
