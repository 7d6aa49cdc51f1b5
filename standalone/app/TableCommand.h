#pragma once

#include "standalone/app/Arguments.h"

namespace standalone {

/// Prints the index of each timeline file as a table, several ones each under its file's name. A file
/// that can't be shown is one line on standard error. Returns whether all were shown. Throws:
/// CommandError when nothing can be shown at all, or no more can be written.
bool RunTable(const TableArguments& arguments);

}  // namespace standalone
