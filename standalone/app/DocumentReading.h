#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "standalone/app/ReadingOptions.h"
#include "standalone/import/EffectsList.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/probing/MediaProber.h"

namespace standalone {

/// Where the timeline that a command line names is read from; "-" is standard input.
std::filesystem::path GetInputPath(const std::string& file);

/// The effects that are there, if a list of them is to be read. Throws: CommandError.
std::optional<EffectsList> ReadWantedEffects(const ReadingOptions& options);

/// Reads the timeline files of a command, with what else they need. What is noticed goes to standard
/// error, a line each, and the progress of what takes long to a terminal there.
class DocumentReader {
 public:
  /// Reads the list of effects, if there is to be one. Throws: CommandError.
  explicit DocumentReader(const ReadingOptions& options);
  DocumentReader(const DocumentReader&) = delete;
  DocumentReader& operator=(const DocumentReader&) = delete;

  /// The document of a timeline file, filled in from its media files and judged by the list of effects,
  /// as wanted. Throws: CommandError.
  DocumentDraft Read(const std::string& file);

 private:
  DocumentDraft Import(const std::string& file) const;
  void Probe(const std::string& file, DocumentDraft& document);

  ImportOptions importOptions;
  const bool isProbing;
  const bool isReporting;
  std::optional<EffectsList> effects;
  /// Remembers the media that several timelines use.
  MediaProber prober;
};

}  // namespace standalone
