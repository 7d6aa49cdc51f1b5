#include "standalone/app/ExportCommand.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "host/qelcore/Exceptions.h"
#include "standalone/app/CommandError.h"
#include "standalone/app/CommandMemory.h"
#include "standalone/app/DocumentReading.h"
#include "standalone/app/IndexSession.h"
#include "standalone/app/PanelSetUp.h"
#include "standalone/app/StandardOutput.h"

namespace standalone {

namespace {

namespace fs = std::filesystem;

constexpr const char* kStream = "-";
constexpr const char* kBundledTimeline = "content.otio";

/// Also for the timeline within a bundle that is a folder.
bool IsTimelineItself(const fs::path& output, const fs::path& input) {
  std::error_code ignored;
  return fs::equivalent(output, input, ignored) ||
         fs::equivalent(output, input / kBundledTimeline, ignored);
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
  if (IsTimelineItself(path, GetInputPath(arguments.file))) {
    throw CommandError(output, 0, "This is the timeline itself; give another file to write.");
  }
  return path;
}

void ExportToStandardOutput(IndexSession& session) {
  std::ifstream written;
  {
    const PrivateFile file("index.csv");
    session.Export(file.GetPath());
    written.open(file.GetPath(), std::ios::binary);
  }
  // The file's name is gone before the first byte: who closes the pipe early ends this program.
  CopyToStandardOutput(written);
}

}  // namespace

void RunExport(const ExportArguments& arguments) {
  KeepMemoryBetweenSteps();
  try {
    const bool isStream = arguments.output == kStream;
    const fs::path path = isStream ? fs::path() : ResolveOutput(arguments);
    DocumentReader reader(arguments.options.reading);
    IndexSession session(arguments.options.reading.isProbing);
    SetUpPanel(session, arguments.options);
    ShowTimeline(session, reader, arguments.file, arguments.options);
    if (isStream) {
      ExportToStandardOutput(session);
    } else {
      session.Export(path);
    }
  } catch (const qelcore::config::file_exception& failure) {
    throw CommandError(failure.what());  // names the output itself
  } catch (const std::exception& failure) {
    throw CommandError(arguments.file, 0, failure.what());
  }
}

}  // namespace standalone
