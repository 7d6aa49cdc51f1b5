#include <exception>
#include <iostream>
#include <string>
#include <variant>

#include "standalone/app/Arguments.h"
#include "standalone/app/CommandError.h"
#include "standalone/app/ExportCommand.h"
#include "standalone/app/StandardOutput.h"

namespace {

constexpr int kDone = 0;
/// The command line, the input or the output is at fault. (1 is kept for commands that find something.)
constexpr int kFailed = 2;

void Run(const standalone::ExportArguments& arguments) {
  standalone::RunExport(arguments);
}

void Run(const std::string& words) {
  standalone::WriteToStandardOutput(words);
}

int Fail(const std::string& line) {
  std::cerr << line << '\n';
  return kFailed;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    std::visit([](const auto& wish) { Run(wish); }, standalone::ParseArguments(argc, argv));
    return kDone;
  } catch (const standalone::CommandError& error) {
    return Fail(error.GetLine());
  } catch (const std::exception& failure) {
    return Fail(standalone::MakeReportLine({}, 0, failure.what()));
  }
}
