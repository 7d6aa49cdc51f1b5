#pragma once

#include <optional>

#include "host/HostAPI.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelcore/UTF8String.h"

/// The dialogs of the Sequence Index. Each runs a nested event loop: functions queued to the main
/// thread run meanwhile, so callers hold what they still need. [main-thread]
namespace DLG {

/// Lets the user edit the filter options. Empty when the user cancelled.
HOST_API std::optional<MZ::SequenceIndex::Options> DoSequenceIndexOptionsDialog(
    const MZ::SequenceIndex::Options& current);

/// Asks where to export the index to. All four are in and out.
/// @param folder the folder's path; the host's paths use "\"
/// @param fileName the name without extension
/// @param extension the extension with its dot
/// @param isOpenedAfterwards whether the file is to be opened when it was written
/// @return true when the user confirmed; otherwise the values are to be ignored
HOST_API bool DoExportSequenceIndexDialog(qelcore::UTF8String& folder, qelcore::UTF8String& fileName,
                                          qelcore::UTF8String& extension, bool& isOpenedAfterwards);

}  // namespace DLG
