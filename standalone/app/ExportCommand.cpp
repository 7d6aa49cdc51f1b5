#include "standalone/app/ExportCommand.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>
#include <utility>

#include "host/qelcore/Exceptions.h"
#include "standalone/app/CommandError.h"
#include "standalone/app/IndexSession.h"
#include "standalone/app/ProgressLine.h"
#include "standalone/app/StandardOutput.h"
#include "standalone/import/TimelineReader.h"

namespace standalone {

namespace {

namespace fs = std::filesystem;

constexpr const char* kStream = "-";
constexpr const char* kStandardInput = "/dev/stdin";

/// Where the timeline is read from.
std::string GetInputPath(const std::string& file) {
  return file == kStream ? kStandardInput : file;
}

/// The document of the file; what its reader noticed goes to standard error, a line each.
DocumentDraft ReadDocument(const std::string& file) {
  ProgressLine line("reading " + file);
  try {
    ImportProgress progress;
    progress.report = [&line](double fraction) { line.Show(fraction); };
    ImportResult result = ReadTimelineFile(GetInputPath(file), progress);
    line.Clear();
    for (const ImportNote& note : result.notes) {
      const std::string place = note.place.empty() ? "" : note.place + ": ";
      std::cerr << MakeReportLine(file, note.line, place + note.sentence) << '\n';
    }
    return std::move(result.document);
  } catch (const ImportError& error) {
    throw CommandError(file, error.GetLine(), error.what());
  }
}

/// The output as an absolute path. The host's paths use "\" between parts, so a name that holds one
/// would land elsewhere.
fs::path ResolveOutput(const ExportArguments& arguments) {
  const std::string& output = arguments.output;
  if (output.empty()) throw CommandError("The name of the output is empty; give a file to write.");
  const fs::path path = fs::absolute(output);
  if (path.native().find('\\') != std::string::npos) {
    throw CommandError(path.native(), 0, "A name with \"\\\" can't be written; give another one.");
  }
  std::error_code ignored;
  if (!path.has_filename() || fs::is_directory(path, ignored)) {
    throw CommandError(output, 0, "This is a folder; give a file to write.");
  }
  if (fs::equivalent(path, GetInputPath(arguments.file), ignored)) {
    throw CommandError(output, 0, "This is the timeline itself; give another file to write.");
  }
  return path;
}

void ExportTo(const fs::path& path, const ExportArguments& arguments, DocumentDraft document) {
  IndexSession session;
  session.ChooseColumns(arguments.columns);
  if (arguments.isKeepingGaps) session.KeepGaps(true);
  session.ShowDocument(std::move(document));
  session.Export(path);
}

void ExportToStandardOutput(const ExportArguments& arguments, DocumentDraft document) {
  std::ifstream written;
  {
    const PrivateFile file("index.csv");
    ExportTo(file.GetPath(), arguments, std::move(document));
    written.open(file.GetPath(), std::ios::binary);
  }
  // The file's name is gone before the first byte: who closes the pipe early ends this program.
  CopyToStandardOutput(written);
}

}  // namespace

void RunExport(const ExportArguments& arguments) {
  try {
    if (arguments.output == kStream) {
      ExportToStandardOutput(arguments, ReadDocument(arguments.file));
      return;
    }
    const fs::path path = ResolveOutput(arguments);
    ExportTo(path, arguments, ReadDocument(arguments.file));
  } catch (const qelcore::config::file_exception& failure) {
    throw CommandError(failure.what());  // names the output itself
  } catch (const std::exception& failure) {
    throw CommandError(arguments.file, 0, failure.what());
  }
}

}  // namespace standalone
