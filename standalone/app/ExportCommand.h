#pragma once

#include "standalone/app/Arguments.h"

namespace standalone {

/// Writes the index of a timeline file as comma-separated values, through the panel's own export
/// command. Lines about single items go to standard error. Throws: CommandError; the output is then as
/// it was.
void RunExport(const ExportArguments& arguments);

}  // namespace standalone
