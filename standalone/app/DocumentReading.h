#pragma once

#include <filesystem>
#include <string>

#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// Where the timeline that a command line names is read from; "-" is standard input.
std::filesystem::path GetInputPath(const std::string& file);

/// The document of a timeline file. What its reader noticed goes to standard error, a line each, and so
/// does, with `isReporting`, what the index can't show of it. Throws: CommandError.
DocumentDraft ReadDocument(const std::string& file, bool isReporting);

}  // namespace standalone
