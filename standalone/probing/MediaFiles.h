#pragma once

#include <string>
#include <vector>

#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// Whether the media's file is worth reading: it is online, lies somewhere, and is no generated one.
bool HasReadableFile(const MediaDraft& media);

/// The files that the clips of a document play, each once, in the order of their first clips. Proxies
/// are left out: only where they lie is shown.
std::vector<std::string> GatherMediaFiles(const DocumentDraft& document);

}  // namespace standalone
