#include "standalone/probing/MediaProber.h"

#include <stdexcept>
#include <utility>

#include "standalone/probing/MediaFiles.h"
#include "standalone/probing/MediaProbe.h"

namespace standalone {

MediaProber::MediaProber() : MediaProber(Setup()) {}
MediaProber::MediaProber(Setup setup) : setup(std::move(setup)) {}

ProbeOutcome MediaProber::Probe(DocumentDraft& document, const ProbeProgress& progress) {
  ProbeOutcome outcome;
  MediaProbe probe(GatherMediaFiles(document), setup, cache, progress);
  probe.LookAtFiles();
  const MediaReader* const found =
      probe.HasFilesToRead() && !probe.IsCancelled() ? ProvideReader(outcome.note) : nullptr;
  if (found != nullptr) probe.ReadFiles(*found);
  probe.LookForGrowth();
  outcome.readCount = probe.CountReads();
  outcome.hasFoundFiles = probe.HasFoundFiles();
  outcome.isCancelled = probe.IsCancelled();
  if (!outcome.isCancelled) probe.Fill(document);
  if (outcome.isCancelled) reader = nullptr;
  return outcome;
}

const MediaReader* MediaProber::ProvideReader(std::string& note) {
  if (isReaderLacking) return nullptr;
  if (reader) return &reader;
  try {
    reader = setup.findReader();
    return &reader;
  } catch (const std::runtime_error& failure) {
    isReaderLacking = true;
    note = failure.what();
    return nullptr;
  }
}

}  // namespace standalone
