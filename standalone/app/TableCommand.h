#pragma once

#include <memory>

#include "standalone/app/Arguments.h"
#include "standalone/app/IndexSession.h"

namespace standalone {

/// Prints the index of each timeline file as a table, several ones each under its file's name. A file
/// that can't be shown is one line on standard error. Returns whether all were shown. The session of
/// the last file is left in `session`, for whoever need not take it apart. Throws: CommandError when
/// nothing can be shown at all, or no more can be written.
bool RunTable(const TableArguments& arguments, std::unique_ptr<IndexSession>& session);

}  // namespace standalone
