#pragma once

#include <QMouseEvent>
#include <cstdint>
#include <optional>

#include "host/qelui/Events.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/toolkit/RowGestures.h"

namespace standalone {

/// The toolkit's mask of the modifier keys held.
STANDALONE_API std::uint32_t ToModifiers(Qt::KeyboardModifiers modifiers);

/// A press, release or move in the toolkit's words; the second press of a double click counts 2.
STANDALONE_API qelui::ui::MouseEvent ToMouseEvent(const QMouseEvent& event);

/// Where a key takes the current row, or none.
STANDALONE_API std::optional<RowMove> FindRowMove(int key);

/// Whether a key press asks for a context menu.
STANDALONE_API bool AsksForContextMenu(const QKeyEvent& event);

}  // namespace standalone
