#pragma once

#include <memory>

#include "standalone/app/Arguments.h"
#include "standalone/app/IndexSession.h"

namespace standalone {

struct PrintedTables {
  bool areAllShown = true;
  /// That of the last file, for whoever need not take it apart.
  std::unique_ptr<IndexSession> session;
};

/// Prints the index of each timeline file as a table, several ones each under its file's name. A file
/// that can't be shown is one line on standard error. Throws: CommandError when nothing can be shown at
/// all, or no more can be written.
PrintedTables RunTable(const TableArguments& arguments);

}  // namespace standalone
