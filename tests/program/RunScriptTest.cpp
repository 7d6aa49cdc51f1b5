#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/Process.h"

/// The script beside the sources, in a folder where everything is built already.
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class RunScript : public testing::Test {
 protected:
  RunScript() {
    fs::copy_file(fs::path(SOURCE_FOLDER) / "run", root / "run");
    fs::create_directories(root / "scripts");
    process::WriteFile(root / "scripts/packages.sh",
                       "sequence_index_packages=\ninstall_packages() { :; }\nbuild_preset() { :; }\n");
    fs::create_directories(root / "build/release/bin");
    fs::create_symlink(PROGRAM, root / "build/release/bin/sequence-index");
    fs::create_directory_symlink(fs::path(SOURCE_FOLDER) / "samples", root / "samples");
  }

  /// Runs the script in a folder; `arguments` as the shell reads them.
  process::Outcome RunIn(const fs::path& folder, const std::string& arguments = {}) const {
    return process::Run(
        {"/bin/sh", "-c",
         "cd '" + folder.native() + "' && '" + (root / "run").native() + "' " + arguments});
  }

  process::Folder root;
  process::Folder here;
};

TEST_F(RunScript, AloneShowsTheDemoAndWritesItsWholeIndex) {
  const process::Outcome outcome = RunIn(here.GetPath());
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_THAT(outcome.output, HasSubstr("Clip Name"));
  EXPECT_THAT(outcome.errors, HasSubstr("Wrote demo.csv: "));
  EXPECT_EQ(process::ReadFile(here / "demo.csv"),
            RunIn(here.GetPath(),
                  "export '" + (root / "samples/demo.otio").native() + "' --columns all --gaps -o -")
                .output);
}

TEST_F(RunScript, PassesArgumentsOn) {
  EXPECT_THAT(RunIn(here.GetPath(), "--version").output, StartsWith("sequence-index "));
  EXPECT_EQ(RunIn(here.GetPath(), "no-such.otio").code, 2);
  EXPECT_TRUE(fs::is_empty(here.GetPath()));
}

TEST_F(RunScript, TheTableIsShownEvenIfNothingCanBeWritten) {
  fs::create_directory(here / "demo.csv");
  const process::Outcome outcome = RunIn(here.GetPath());
  EXPECT_EQ(outcome.code, 2);
  EXPECT_THAT(outcome.output, HasSubstr("Clip Name"));
  EXPECT_THAT(outcome.errors,
              EndsWith("sequence-index: demo.csv: This is a folder; give a file to write.\n"));
}

}  // namespace
