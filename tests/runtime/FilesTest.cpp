#include "host/qelcore/Files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "support/OrdinaryUser.h"

namespace {

namespace fs = std::filesystem;
using namespace qelcore::filesupport;
using qelcore::config::file_exception;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

std::string NameOf(std::string_view path, StorageType storage) {
  return std::string(File(path, storage).GetNameUTF8().View());
}

TEST(FileName, OfAPlatformFileIsTheLastPart) {
  EXPECT_EQ(NameOf("/a/b/c.csv", StorageType::kPlatformFile), "c.csv");
  EXPECT_EQ(NameOf("/a\\c.csv", StorageType::kPlatformFile), "c.csv");
  EXPECT_EQ(NameOf("c.csv", StorageType::kPlatformFile), "c.csv");
  EXPECT_EQ(NameOf("/", StorageType::kPlatformFile), "");
  EXPECT_EQ(NameOf("", StorageType::kPlatformFile), "");
}

TEST(FileName, OfAMediaAddressSplitsAtSlashes) {
  EXPECT_EQ(NameOf("/media/reel 1/A001.mov", StorageType::kMediaAddress), "A001.mov");
  EXPECT_EQ(NameOf("media/odd\\name.mov", StorageType::kMediaAddress), "odd\\name.mov");
  EXPECT_EQ(NameOf("/media/stills/", StorageType::kMediaAddress), "stills");
}

TEST(FileName, OfAForeignMediaAddressSplitsAtBackslashesToo) {
  EXPECT_EQ(NameOf("C:\\media\\A001.mov", StorageType::kMediaAddress), "A001.mov");
  EXPECT_EQ(NameOf("z:/media\\A001.mov", StorageType::kMediaAddress), "A001.mov");
  EXPECT_EQ(NameOf("\\\\server\\media\\A001.mov", StorageType::kMediaAddress), "A001.mov");
  EXPECT_EQ(NameOf("9:\\A001.mov", StorageType::kMediaAddress), "9:\\A001.mov");
}

TEST(FilePath, StaysAsItWasGiven) {
  EXPECT_EQ(File("/a\\\\b//c", StorageType::kPlatformFile).GetPathUTF8(), "/a\\\\b//c");
}

/// Ten million bytes at the beginning of a memory page; blocks that lie side by side differ.
class LongText {
 public:
  LongText() {
    for (std::size_t i = 0; i < kSize; ++i) bytes.get()[i] = static_cast<char>('a' + i / 7 % 26);
  }
  std::string_view View() const { return {bytes.get(), kSize}; }

 private:
  static constexpr std::size_t kSize = 10'000'000;
  static constexpr std::align_val_t kPage{4096};

  struct Delete {
    void operator()(char* memory) const { ::operator delete(memory, kPage); }
  };
  std::unique_ptr<char, Delete> bytes{static_cast<char*>(::operator new(kSize, kPage))};
};

class Files : public testing::Test {
 protected:
  Files() {
    std::string pattern = (fs::temp_directory_path() / "files-test-XXXXXX").native();
    folder = mkdtemp(pattern.data());
  }
  ~Files() override {
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, ignored);
    fs::remove_all(folder, ignored);
  }

  static void Write(const fs::path& path, std::string_view text) {
    std::ofstream(path, std::ios::binary) << text;
  }
  static std::string ReadAll(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename());
    return names;
  }

  /// Writes a file whole, as an export does.
  static void Save(const std::string& path, std::string_view text, bool failIfExists = false) {
    File file(path, StorageType::kPlatformFile);
    file.Create(failIfExists);
    OPlatformByteStream stream(file, OPlatformByteStream::kWrite);
    stream.WriteBlock(text.data(), static_cast<std::uint32_t>(text.size()));
    stream.Close();
  }
  /// The failure of saving, if it fails.
  static std::string FailureOfSaving(const std::string& path, bool failIfExists = false) {
    try {
      Save(path, "new", failIfExists);
      return "";
    } catch (const file_exception& failure) {
      EXPECT_EQ(failure.GetObject(), path);
      return failure.what();
    }
  }

  fs::path folder;
};

TEST_F(Files, AreWrittenByteForByte) {
  const std::string text("a\n\r\n\0\xC3\xA9\xFF", 8);
  Save(folder / "out.csv", text);
  EXPECT_EQ(ReadAll(folder / "out.csv"), text);
  EXPECT_THAT(Names(), ElementsAre("out.csv"));
}

/// Long texts go to the disk in another way where memory and file stand at whole blocks.
TEST_F(Files, LongOnesAreWrittenByteForByteFromWhereverTheyStand) {
  const LongText text;
  for (const std::size_t begin : {0U, 1U, 512U, 4096U}) {
    for (const std::size_t size : {2U << 20U, (2U << 20U) + 1U, (9U << 20U) + 5U}) {
      const std::string_view part = text.View().substr(begin, size);
      Save(folder / "out.csv", part);
      EXPECT_TRUE(ReadAll(folder / "out.csv") == part) << begin << " " << size;
    }
  }
}

TEST_F(Files, LongBlocksFollowEachOther) {
  const LongText text;
  for (const std::uint32_t size : {3U << 20U, (3U << 20U) + 7U}) {
    const std::string block(text.View().substr(0, size));
    File file((folder / "out.csv").native(), StorageType::kPlatformFile);
    file.Create(false);
    OPlatformByteStream stream(file, OPlatformByteStream::kWrite);
    for (int i = 0; i < 2; ++i) stream.WriteBlock(text.View().data(), size);
    stream.Close();
    EXPECT_TRUE(ReadAll(folder / "out.csv") == block + block) << size;
  }
}

TEST_F(Files, MayBeEmpty) {
  Save(folder / "out.csv", "");
  EXPECT_EQ(fs::file_size(folder / "out.csv"), 0U);
}

TEST_F(Files, ReplaceAnOlderOneWhole) {
  Write(folder / "out.csv", "a much longer older text");
  Save(folder / "out.csv", "new");
  EXPECT_EQ(ReadAll(folder / "out.csv"), "new");
  EXPECT_THAT(Names(), ElementsAre("out.csv"));
}

TEST_F(Files, BackslashesAndRunsOfSeparatorsAreMapped) {
  Save(folder.native() + "\\out.csv", "1");
  Save(folder.native() + "/\\name.csv", "2");
  EXPECT_EQ(ReadAll(folder / "out.csv"), "1");
  EXPECT_EQ(ReadAll(folder / "name.csv"), "2");
}

TEST_F(Files, StayAsTheyWereUntilTheStreamIsClosed) {
  Write(folder / "out.csv", "old");
  File file((folder / "out.csv").native(), std::uint32_t{0});
  file.Create(false);
  OPlatformByteStream stream(file, 2);
  stream.WriteBlock("new", 3);
  EXPECT_EQ(ReadAll(folder / "out.csv"), "old");
  stream.Close();
  EXPECT_EQ(ReadAll(folder / "out.csv"), "new");
}

TEST_F(Files, LeaveNothingBehindWithoutClose) {
  Write(folder / "out.csv", "old");
  {
    File file((folder / "out.csv").native(), StorageType::kPlatformFile);
    file.Create(false);
    OPlatformByteStream stream(file, OPlatformByteStream::kWrite);
    stream.WriteBlock("new", 3);
  }
  EXPECT_EQ(ReadAll(folder / "out.csv"), "old");
  EXPECT_THAT(Names(), ElementsAre("out.csv"));
}

TEST_F(Files, LeaveNothingBehindWhenNoStreamWasOpened) {
  {
    File file((folder / "out.csv").native(), StorageType::kPlatformFile);
    file.Create(false);
    EXPECT_EQ(Names().size(), 1U);
  }
  EXPECT_THAT(Names(), testing::IsEmpty());
}

TEST_F(Files, AFileObjectThatGoesFirstGivesTheFileUp) {
  std::optional<File> file;
  file.emplace((folder / "out.csv").native(), StorageType::kPlatformFile);
  file->Create(false);
  OPlatformByteStream stream(*file, OPlatformByteStream::kWrite);
  file.reset();
  EXPECT_THAT(Names(), testing::IsEmpty());
  EXPECT_THROW(stream.WriteBlock("x", 1), file_exception);
  EXPECT_THROW(stream.Close(), file_exception);
}

TEST_F(Files, CreatingAgainStartsOver) {
  File file((folder / "out.csv").native(), StorageType::kPlatformFile);
  file.Create(false);
  file.Create(false);
  EXPECT_EQ(Names().size(), 1U);
  OPlatformByteStream(file, OPlatformByteStream::kWrite).Close();
  EXPECT_THAT(Names(), ElementsAre("out.csv"));
}

TEST_F(Files, KeepTheOldMode) {
  Write(folder / "out.csv", "old");
  for (const mode_t mode : {0600U, 0644U, 0666U, 0755U, 0620U}) {
    chmod((folder / "out.csv").c_str(), mode);
    Save(folder / "out.csv", "new");
    struct stat now {};
    ASSERT_EQ(stat((folder / "out.csv").c_str(), &now), 0);
    EXPECT_EQ(now.st_mode & 07777, mode);
  }
}

TEST_F(Files, ANewOneHasTheModeOfAnyNewFile) {
  const mode_t before = umask(027);
  Save(folder / "out.csv", "new");
  umask(before);
  struct stat now {};
  ASSERT_EQ(stat((folder / "out.csv").c_str(), &now), 0);
  EXPECT_EQ(now.st_mode & 07777, 0640U);
}

TEST_F(Files, ASymbolicLinkIsFollowedAndStays) {
  fs::create_directory(folder / "real");
  Write(folder / "real" / "data.csv", "old");
  fs::create_symlink("real/data.csv", folder / "link");
  fs::create_symlink(folder / "link", folder / "second.csv");
  Save(folder / "second.csv", "new");
  EXPECT_TRUE(fs::is_symlink(folder / "second.csv"));
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(ReadAll(folder / "real" / "data.csv"), "new");
  EXPECT_THAT(Names(), UnorderedElementsAre("real", "link", "second.csv"));
}

TEST_F(Files, ASymbolicLinkToNothingCreatesItsTarget) {
  fs::create_symlink("later.csv", folder / "out.csv");
  Save(folder / "out.csv", "new");
  EXPECT_TRUE(fs::is_symlink(folder / "out.csv"));
  EXPECT_EQ(ReadAll(folder / "later.csv"), "new");
}

TEST_F(Files, ACircleOfLinksIsRefused) {
  fs::create_symlink("b", folder / "a");
  fs::create_symlink("a", folder / "b");
  EXPECT_THAT(FailureOfSaving(folder / "a"), HasSubstr("levels of symbolic links"));
}

TEST_F(Files, AFolderIsNoTarget) {
  fs::create_directory(folder / "out.csv");
  EXPECT_THAT(FailureOfSaving(folder / "out.csv"), HasSubstr("Is a directory"));
  EXPECT_THAT(Names(), ElementsAre("out.csv"));
}

TEST_F(Files, AMissingFolderIsAnError) {
  EXPECT_THAT(FailureOfSaving(folder / "none" / "out.csv"), HasSubstr("No such file or directory"));
  Write(folder / "file", "");
  EXPECT_THAT(FailureOfSaving(folder / "file" / "out.csv"), HasSubstr("Not a directory"));
  EXPECT_THAT(FailureOfSaving(""), HasSubstr("No such file or directory"));
}

TEST_F(Files, ANameThatIsTooLongIsAnErrorAtOnce) {
  EXPECT_THAT(FailureOfSaving(folder / std::string(300, 'x')), HasSubstr("File name too long"));
  EXPECT_THAT(Names(), testing::IsEmpty());
}

TEST_F(Files, ANameOfFullLengthIsPossible) {
  const std::string name(255, 'x');
  Save(folder / name, "new");
  EXPECT_THAT(Names(), ElementsAre(name));
}

TEST_F(Files, AnExistingOneIsKeptWhenItMustNotBeReplaced) {
  Write(folder / "out.csv", "old");
  EXPECT_THAT(FailureOfSaving(folder / "out.csv", true), HasSubstr("File exists"));
  EXPECT_EQ(ReadAll(folder / "out.csv"), "old");
  EXPECT_EQ(FailureOfSaving(folder / "new.csv", true), "");
}

TEST_F(Files, AnUnwritableFolderIsAnErrorAndTheOldFileStays) {
  const rights::OrdinaryUser user(folder);
  Write(folder / "out.csv", "old");
  fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_THAT(FailureOfSaving(folder / "out.csv"), HasSubstr("Permission denied"));
  EXPECT_EQ(ReadAll(folder / "out.csv"), "old");
}

TEST_F(Files, AWriteProtectedFileIsNotReplaced) {
  const rights::OrdinaryUser user(folder);
  Write(folder / "out.csv", "old");
  fs::permissions(folder / "out.csv", fs::perms::owner_read);
  EXPECT_THAT(FailureOfSaving(folder / "out.csv"), HasSubstr("Permission denied"));
  EXPECT_EQ(ReadAll(folder / "out.csv"), "old");
}

/// A limit on the size of files stands in for the full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit small = before;
    small.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &small);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
  }

 private:
  void (*handler)(int);
  rlimit before{};
};

TEST_F(Files, AFullDiskIsAnErrorAndTheOldFileStays) {
  const LongText text;
  constexpr std::uint32_t kLong = 8U << 20U;
  const std::vector<std::pair<std::uint32_t, rlim_t>> cases = {
      {10'000, 4096}, {kLong, kLong / 2}, {kLong, kLong / 2 + 100}};
  for (const auto& [size, room] : cases) {
    Write(folder / "out.csv", "old");
    {
      const FullDisk disk(room);
      File file((folder / "out.csv").native(), StorageType::kPlatformFile);
      file.Create(false);
      OPlatformByteStream stream(file, OPlatformByteStream::kWrite);
      EXPECT_THROW(stream.WriteBlock(text.View().data(), size), file_exception);
      EXPECT_THROW(stream.Close(), file_exception)
          << "a file with a hole never takes the target's place";
    }
    EXPECT_EQ(ReadAll(folder / "out.csv"), "old");
    EXPECT_THAT(Names(), ElementsAre("out.csv"));
  }
}

TEST_F(Files, ATargetThatBecameAFolderMakesCloseFail) {
  File file((folder / "out.csv").native(), StorageType::kPlatformFile);
  file.Create(false);
  OPlatformByteStream stream(file, OPlatformByteStream::kWrite);
  stream.WriteBlock("new", 3);
  fs::create_directory(folder / "out.csv");
  EXPECT_THROW(stream.Close(), file_exception);
  EXPECT_THAT(Names(), ElementsAre("out.csv"));
}

/// An ordinary user can't harm the system's devices, whatever a defect does.
class Devices : public Files {
 protected:
  const rights::OrdinaryUser user{folder};
  const std::string nullDevice = "/dev/null";
  const std::string fullDevice = "/dev/full";
};

TEST_F(Devices, AreWrittenDirectly) {
  Save(nullDevice, "anything");
  EXPECT_TRUE(fs::is_character_file(nullDevice));
}

TEST_F(Devices, AreFoundBehindLinks) {
  fs::create_symlink(nullDevice, folder / "out.csv");
  Save(folder / "out.csv", "anything");
  EXPECT_TRUE(fs::is_symlink(folder / "out.csv"));
  EXPECT_TRUE(fs::is_character_file(nullDevice));
}

TEST_F(Devices, ThatAreFullAreAnError) {
  EXPECT_THAT(FailureOfSaving(fullDevice), HasSubstr("No space left on device"));
  EXPECT_TRUE(fs::is_character_file(fullDevice));
}

TEST_F(Files, APipeIsWrittenDirectly) {
  const fs::path pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  std::string read;
  std::thread reader([&] { read = ReadAll(pipe); });
  const std::string text(200000, 'x');
  Save(pipe, text);
  reader.join();
  EXPECT_EQ(read, text);
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(Files, APipeWithoutANameIsWrittenDirectly) {
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
  Save("/dev/fd/" + std::to_string(ends[1]), "text");
  close(ends[1]);
  char read[8];
  EXPECT_EQ(std::string_view(read, static_cast<std::size_t>(::read(ends[0], read, sizeof read))),
            "text");
  close(ends[0]);
}

TEST_F(Files, APathWithAZeroByteIsRefused) {
  const std::string path = folder / std::string("out\0.csv", 8);
  EXPECT_THROW(Save(path, "new"), file_exception);
  EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(Files, AMediaAddressIsNeverWritten) {
  File file((folder / "out.mov").native(), StorageType::kMediaAddress);
  EXPECT_THROW(file.Create(false), file_exception);
  EXPECT_THAT(Names(), testing::IsEmpty());
}

TEST_F(Files, AStreamNeedsAFileThatWasCreated) {
  File file((folder / "out.csv").native(), StorageType::kPlatformFile);
  EXPECT_THROW(OPlatformByteStream(file, OPlatformByteStream::kWrite), file_exception);
  file.Create(false);
  EXPECT_THROW(OPlatformByteStream(file, 1), file_exception) << "only writing is possible";
}

TEST_F(Files, AStreamIsClosedOnce) {
  File file((folder / "out.csv").native(), StorageType::kPlatformFile);
  file.Create(false);
  OPlatformByteStream stream(file, OPlatformByteStream::kWrite);
  stream.Close();
  EXPECT_THROW(stream.Close(), file_exception);
  EXPECT_TRUE(fs::exists(folder / "out.csv"));
}

}  // namespace
