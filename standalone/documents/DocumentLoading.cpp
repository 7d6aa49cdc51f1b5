#include "standalone/documents/DocumentLoading.h"

#include <optional>
#include <string>
#include <utility>

namespace standalone {

namespace {

void ApplyOptions(DocumentDraft& draft, const LoadingOptions& options) {
  if (options.effects) MarkMissingEffects(draft, *options.effects);
  if (!options.timeFormat) return;
  for (SequenceDraft& sequence : draft.sequences) sequence.timeFormat = *options.timeFormat;
}

}  // namespace

LoadedDocument LoadDocument(const std::filesystem::path& file, const LoadingOptions& options,
                            const ImportProgress& progress) {
  ImportResult result = ReadTimelineFile(file, options.import, progress);
  ApplyOptions(result.document, options);
  if (!options.isProbing) {
    return {PreparedDocument(std::move(result.document)), std::nullopt, std::move(result.notes),
            std::move(result.report)};
  }
  PreparedDocument prepared(result.document);
  return {std::move(prepared), std::move(result.document), std::move(result.notes),
          std::move(result.report)};
}

std::optional<PreparedDocument> LoadMediaFacts(DocumentDraft draft, const LoadingOptions& options,
                                               MediaProber& prober, const ProbeProgress& progress,
                                               std::string& note) {
  const ProbeOutcome outcome = prober.Probe(draft, progress);
  note = outcome.note;
  if (outcome.isCancelled || !outcome.hasFoundFiles) return std::nullopt;
  ApplyOptions(draft, options);
  return PreparedDocument(std::move(draft));
}

}  // namespace standalone
