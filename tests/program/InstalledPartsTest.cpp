#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/Process.h"

namespace standalone {
namespace {

namespace fs = std::filesystem;

/// The program with what every command needs, and nothing else, in a folder of its own.
class InstalledParts : public testing::Test {
 protected:
  InstalledParts() {
    for (const char* part : {"sequence-index", "SequenceIndex.so", "libsequence_index_host.so"}) {
      Install(part);
    }
  }

  void Install(const char* part) {
    fs::copy_file(fs::path(PROGRAM).parent_path() / part, installed / part);
  }

  process::Outcome PrintTable(const std::string& file) const {
    return process::Run({(installed / "sequence-index").native(), "table", "--no-probe", "--columns",
                         "Clip Name", file});
  }

  /// "FAILURE: LIBRARY: the linker's reason".
  std::string ExplainMissing(const std::string& failure, const char* library) const {
    return failure + ": " + (installed / library).native() +
           ": cannot open shared object file: No such file or directory";
  }

  const process::Folder installed;
  const process::Folder folder;
};

TEST_F(InstalledParts, AnArchiveNeedsTheArchiveLibraryAndSaysSo) {
  const std::string file = (folder / "cut.otioz").native();
  process::WriteFile(file, "PK\x03\x04 and no more");
  constexpr const char* kLibrary = "libsequence_index_archive.so";
  const process::Outcome without = PrintTable(file);
  EXPECT_EQ(without.code, 2);
  EXPECT_EQ(without.errors,
            "sequence-index: " + file + ": " +
                ExplainMissing("Zip archives can't be opened", kLibrary) +
                "; install what is missing, or give the bundle as a folder (.otiod).\n");
  Install(kLibrary);
  EXPECT_EQ(PrintTable(file).errors,
            "sequence-index: " + file +
                ": This zip archive is damaged or not complete; export or copy it again.\n");
}

TEST_F(InstalledParts, TextsNeedTheFontLibraryAndSaySo) {
  const std::string file = SOURCE_FOLDER "/samples/demo.otio";
  constexpr const char* kLibrary = "libsequence_index_fonts.so";
  const process::Outcome without = PrintTable(file);
  EXPECT_EQ(without.code, 2);
  EXPECT_EQ(without.output, "");
  EXPECT_THAT(without.errors,
              testing::HasSubstr(ExplainMissing("The installed fonts can't be listed", kLibrary)));
  Install(kLibrary);
  EXPECT_EQ(PrintTable(file).code, 0);
}

}  // namespace
}  // namespace standalone
