#pragma once

#include <QString>
#include <cstddef>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// What a cell shows, in words: its text, or its colour as "colour #3F7FBF". Empty for an empty cell,
/// for one that can't be drawn, and beyond the last row. [main-thread]
STANDALONE_API QString DescribeCell(const qelui::controls::UI_MultiColumnTree& tree,
                                    std::size_t position, std::size_t displayIndex);

}  // namespace standalone
