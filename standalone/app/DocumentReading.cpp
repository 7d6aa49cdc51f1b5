#include "standalone/app/DocumentReading.h"

#include <iostream>
#include <utility>
#include <vector>

#include "standalone/app/CommandError.h"
#include "standalone/app/ProgressLine.h"
#include "standalone/import/TimelineReader.h"

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

std::filesystem::path GetInputPath(const std::string& file) {
  return file == kStream ? kStandardInput : file;
}

DocumentDraft ReadDocument(const std::string& file, bool isReporting) {
  ProgressLine line("reading " + file);
  try {
    ImportProgress progress;
    progress.report = [&line](double fraction) { line.Show(fraction); };
    ImportResult result = ReadTimelineFile(GetInputPath(file), progress);
    line.Clear();
    PrintNotes(file, result.notes);
    if (isReporting) PrintNotes(file, result.report);
    return std::move(result.document);
  } catch (const ImportError& error) {
    throw CommandError(file, error.GetLine(), error.what());
  }
}

}  // namespace standalone
