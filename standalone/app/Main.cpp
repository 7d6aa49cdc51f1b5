#include <exception>
#include <iostream>
#include <string>
#include <variant>

#include "standalone/app/Arguments.h"
#include "standalone/app/CommandError.h"
#include "standalone/app/ExportCommand.h"
#include "standalone/app/StandardOutput.h"
#include "standalone/app/TableCommand.h"
#include "standalone/app/WindowCommand.h"

namespace {

constexpr int kDone = 0;
/// The command line, the input or the output is at fault. (1 is kept for commands that find something.)
constexpr int kFailed = 2;

int Run(const standalone::TableArguments& arguments) {
  return standalone::RunTable(arguments) ? kDone : kFailed;
}

int Run(const standalone::ExportArguments& arguments) {
  standalone::RunExport(arguments);
  return kDone;
}

int Run(const standalone::WindowArguments& arguments) {
  return standalone::RunWindow(arguments);
}

int Run(const std::string& words) {
  standalone::WriteToStandardOutput(words);
  return kDone;
}

int Fail(const std::string& line) {
  std::cerr << line << '\n';
  return kFailed;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return std::visit([](const auto& wish) { return Run(wish); },
                      standalone::ParseArguments(argc, argv, standalone::HasDisplay()));
  } catch (const standalone::CommandError& error) {
    return Fail(error.GetLine());
  } catch (const std::exception& failure) {
    return Fail(standalone::MakeReportLine({}, 0, failure.what()));
  }
}
