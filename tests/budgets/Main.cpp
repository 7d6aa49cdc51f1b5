#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "budgets/Stages.h"

/// budget_stages            prints the compiler, then the stages, a line each
/// budget_stages STAGE      runs one of them
/// budget_stages STAGE N    runs it on the Nth part of its clips
namespace {

/// Counts of one compiler say nothing about those of another.
std::string DescribeCompiler() {
#if defined(__clang__)
  return "Clang " + std::to_string(__clang_major__);
#else
  return "GNU " + std::to_string(__GNUC__);
#endif
}

void PrintStages() {
  std::printf("%s\n", DescribeCompiler().c_str());
  for (const budgets::Stage& stage : budgets::GetStages()) {
    std::printf("%.*s\n", static_cast<int>(stage.name.size()), stage.name.data());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    PrintStages();
    return 0;
  }
  const std::string_view name = argv[1];
  const auto& stages = budgets::GetStages();
  const auto stage =
      std::ranges::find_if(stages, [name](const budgets::Stage& s) { return s.name == name; });
  if (stage == stages.end()) {
    std::fprintf(stderr, "There is no stage \"%s\".\n", argv[1]);
    return 2;
  }
  const std::size_t part = argc > 2 ? std::stoul(argv[2]) : 1;
  stage->run(stage->clips / part);
  return 0;
}
