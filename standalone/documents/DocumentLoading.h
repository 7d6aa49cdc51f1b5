#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "standalone/import/EffectsList.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/PreparedDocument.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/model/TimeFormat.h"
#include "standalone/probing/MediaProber.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// How timeline files and what belongs to them are read.
struct LoadingOptions {
  ImportOptions import;
  /// Whether media files are read for what the timeline does not tell.
  bool isProbing = true;
  /// The effects that are there; none: only the timeline calls effects missing.
  std::optional<EffectsList> effects;
  /// None: as each sequence says.
  std::optional<TimeFormat> timeFormat;
};

/// A timeline file as read.
struct LoadedDocument {
  PreparedDocument prepared;
  /// Set while media files are still to be read for it.
  std::optional<DocumentDraft> draft;
  std::vector<ImportNote> notes;
  std::vector<ImportNote> report;
};

/// Reads a timeline file and builds what is shown of it, without its media files. [any-thread] Throws:
/// ImportError, also when it was cancelled.
STANDALONE_API LoadedDocument LoadDocument(const std::filesystem::path& file,
                                           const LoadingOptions& options,
                                           const ImportProgress& progress);

/// Reads the media files of a document and builds it anew with what they tell; none when it was
/// cancelled, or none of them is there. `note` is set when media files can't be read at all here.
/// [any-thread], one at a time for one prober.
STANDALONE_API std::optional<PreparedDocument> LoadMediaFacts(DocumentDraft draft,
                                                              const LoadingOptions& options,
                                                              MediaProber& prober,
                                                              const ProbeProgress& progress,
                                                              std::string& note);

}  // namespace standalone
