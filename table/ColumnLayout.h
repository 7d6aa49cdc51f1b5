#pragma once

#include "host/qelcore/Reference.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "table/ColumnCatalogue.h"

namespace Vantrel {

/// The layout that was applied last, shared by all tables of the process: empty until a first table
/// fills it from the catalogue, kept until the module is unloaded, never stored. Another table takes a
/// change over at its own next ApplyColumnLayout. [main-thread]
ColumnLayoutList& GetColumnLayoutStore();

/// Lays out the columns of a header row from the store, or from the catalogue while the store is
/// empty, and leaves in the store what it applied, in display order. Widths and places that the user
/// gave the columns by dragging are lost; they live in the header row only. [main-thread]
/// Throws: null_pointer_exception for an empty reference.
void ApplyColumnLayout(qelcore::Ref<qelui::controls::UI_MultiColumnTreeHeaderRow> headerRow);

}  // namespace Vantrel
