#include "standalone/app/DocumentReading.h"

#include <iostream>
#include <utility>
#include <vector>

#include "standalone/app/CommandError.h"
#include "standalone/app/ProgressLine.h"

namespace standalone {

namespace {

constexpr const char* kStream = "-";
constexpr const char* kStandardInput = "/dev/stdin";

void PrintNotes(const std::string& file, const std::vector<ImportNote>& notes) {
  for (const ImportNote& note : notes) {
    const std::string place = note.place.empty() ? "" : note.place + ": ";
    std::cerr << MakeReportLine(file, note.line, place + note.sentence) << '\n';
  }
}

}  // namespace

std::optional<EffectsList> ReadWantedEffects(const ReadingOptions& options) {
  if (!options.effectsList) return std::nullopt;
  try {
    return ReadEffectsList(*options.effectsList);
  } catch (const ImportError& error) {
    throw CommandError(*options.effectsList, error.GetLine(), error.what());
  }
}

std::filesystem::path GetInputPath(const std::string& file) {
  return file == kStream ? kStandardInput : file;
}

DocumentReader::DocumentReader(const ReadingOptions& options)
    : importOptions{options.mediaRoots},
      isProbing(options.isProbing),
      isReporting(options.isReporting),
      effects(ReadWantedEffects(options)) {}

DocumentDraft DocumentReader::Read(const std::string& file) {
  DocumentDraft document = Import(file);
  if (isProbing) Probe(file, document);
  if (effects) MarkMissingEffects(document, *effects);
  return document;
}

DocumentDraft DocumentReader::Import(const std::string& file) const {
  ProgressLine line("reading " + file);
  try {
    ImportProgress progress;
    progress.report = [&line](double fraction) { line.Show(fraction); };
    ImportResult result = ReadTimelineFile(GetInputPath(file), importOptions, progress);
    line.Clear();
    PrintNotes(file, result.notes);
    if (isReporting) PrintNotes(file, result.report);
    return std::move(result.document);
  } catch (const ImportError& error) {
    throw CommandError(file, error.GetLine(), error.what());
  }
}

void DocumentReader::Probe(const std::string& file, DocumentDraft& document) {
  ProgressLine line("reading media of " + file);
  ProbeProgress progress;
  progress.report = [&line](std::size_t done, std::size_t all) {
    line.Show(static_cast<double>(done) / static_cast<double>(all));
  };
  const ProbeOutcome outcome = prober.Probe(document, progress);
  line.Clear();
  if (!outcome.note.empty()) std::cerr << MakeReportLine({}, 0, outcome.note) << '\n';
}

}  // namespace standalone
