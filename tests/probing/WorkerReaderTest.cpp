#include "standalone/probing/WorkerReader.h"

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <climits>
#include <optional>
#include <thread>

#include "standalone/media/protocol/MediaMessages.h"
#include "standalone/probing/ChildProcess.h"
#include "support/MediaBomb.h"
#include "support/Process.h"

namespace standalone {
namespace {

using std::chrono::milliseconds;
using testing::HasSubstr;
using testing::StartsWith;

std::string Fixture(const std::string& name) {
  return std::string(SOURCE_FOLDER) + "/tests/media/fixtures/" + name;
}

MediaReadRequest MakeRequest(const std::string& path) {
  MediaReadRequest request;
  request.path = path;
  return request;
}

bool HasNoChild() {
  return waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD;
}

/// Reads through workers that do what a file's name says.
class FaultyWorkers : public testing::Test {
 protected:
  MediaReading Read(const std::string& fault) { return reader->Read(MakeRequest("/media/" + fault)); }
  MediaReading ReadWithin(const std::string& fault, milliseconds limit) {
    MediaReadRequest request = MakeRequest("/media/" + fault);
    request.timeLimit = limit;
    return reader->Read(request);
  }
  void ExpectGoodRead() {
    const MediaReading reading = Read("good");
    EXPECT_EQ(reading.outcome, MediaOutcome::kRead);
    EXPECT_EQ(reading.facts.codec, "Good");
  }
  std::size_t CountStarts() const { return process::ReadFile(folder / "starts").size(); }

 private:
  WorkerReader::Setup MakeSetup() const {
    WorkerReader::Setup setup;
    setup.program = FAULTY_WORKER;
    setup.library = folder / "starts";
    setup.grace = milliseconds(0);
    return setup;
  }

  process::Folder folder;

 protected:
  std::optional<WorkerReader> reader{std::in_place, MakeSetup()};
};

class FaultyAnswers : public FaultyWorkers, public testing::WithParamInterface<const char*> {};

TEST_P(FaultyAnswers, CostTheirFileAndNoOther) {
  const MediaReading reading = Read(GetParam());
  EXPECT_EQ(reading.outcome, MediaOutcome::kInaccessible);
  EXPECT_EQ(reading.reason, "reading it ended unexpectedly");
  ExpectGoodRead();
  reader.reset();
  EXPECT_TRUE(HasNoChild());
}

INSTANTIATE_TEST_SUITE_P(All, FaultyAnswers,
                         testing::Values("crash", "close", "garbage", "long", "partial", "more",
                                         "empty"),
                         [](const auto& test) { return std::string(test.param); });

TEST_F(FaultyWorkers, AWorkerIsKeptForFurtherFiles) {
  for (int i = 0; i < 20; ++i) ExpectGoodRead();
  EXPECT_EQ(CountStarts(), 1u);
}

TEST_F(FaultyWorkers, AFileThatEndsAWorkerThatHadReadOthersGetsASecondRead) {
  ExpectGoodRead();
  EXPECT_EQ(Read("crash").outcome, MediaOutcome::kInaccessible);
  EXPECT_EQ(CountStarts(), 2u) << "the first worker may have suffered from another file";
  ExpectGoodRead();
  EXPECT_EQ(CountStarts(), 3u);
}

TEST_F(FaultyWorkers, AWorkerThatEndsAfterItsAnswerIsReplaced) {
  EXPECT_EQ(Read("last").outcome, MediaOutcome::kRead);
  ExpectGoodRead();
  EXPECT_EQ(CountStarts(), 2u);
}

TEST_F(FaultyWorkers, AWorkerThatAnswersTwiceIsNotAskedAgain) {
  EXPECT_EQ(Read("twice").outcome, MediaOutcome::kRead);
  ExpectGoodRead();
  ExpectGoodRead();
}

TEST_F(FaultyWorkers, ALateWorkerIsEndedAndItsFileTookTooLong) {
  const MediaReading reading = ReadWithin("hang", milliseconds(30));
  EXPECT_EQ(reading.outcome, MediaOutcome::kTimeLimit);
  EXPECT_EQ(reading.reason, "it took longer than 30 ms");
  EXPECT_TRUE(HasNoChild());
  ExpectGoodRead();
}

TEST_F(FaultyWorkers, CancellingEndsTheWorkerThatReads) {
  MediaReadRequest request = MakeRequest("/media/hang");
  int questions = 0;
  request.context = &questions;
  request.isCancelled = [](void* context) { return ++*static_cast<int*>(context) >= 3; };
  const MediaReading reading = reader->Read(request);
  EXPECT_EQ(reading.outcome, MediaOutcome::kCancelled);
  EXPECT_TRUE(HasNoChild());
  ExpectGoodRead();
}

TEST_F(FaultyWorkers, EachReadThatRunsHasAWorkerToItself) {
  constexpr int kThreads = 4;
  constexpr int kReads = 25;
  std::atomic<int> good{0};
  {
    std::vector<std::jthread> threads;
    for (int i = 0; i < kThreads; ++i) {
      threads.emplace_back([&, i] {
        for (int k = 0; k < kReads; ++k) {
          const bool isFaulty = i == 0 && k % 5 == 0;
          if (Read(isFaulty ? "crash" : "good").outcome == MediaOutcome::kRead) ++good;
        }
      });
    }
  }
  EXPECT_EQ(good, kThreads * kReads - 5);
  // Of those that crash, each may have been read twice.
  EXPECT_LE(CountStarts(), kThreads + 2u * 5u);
  reader.reset();
  EXPECT_TRUE(HasNoChild());
}

TEST_F(FaultyWorkers, AThreadThatStartedAWorkerMayEndBeforeIt) {
  EXPECT_EQ(Read("close").outcome, MediaOutcome::kInaccessible);
  std::thread([this] { ExpectGoodRead(); }).join();
  const std::size_t starts = CountStarts();
  ExpectGoodRead();
  EXPECT_EQ(CountStarts(), starts);
}

std::string GetStartFailure(const std::filesystem::path& program,
                            const std::filesystem::path& library = MEDIA_LIBRARY) {
  WorkerReader::Setup setup;
  setup.program = program;
  setup.library = library;
  try {
    const WorkerReader reader(setup);
    return {};
  } catch (const std::runtime_error& failure) {
    EXPECT_TRUE(HasNoChild());
    return failure.what();
  }
}

std::filesystem::path WriteScript(const process::Folder& folder, const std::string& command) {
  const std::filesystem::path script = folder / "script";
  process::WriteFile(script, "#!/bin/sh\n" + command + "\n");
  std::filesystem::permissions(script, std::filesystem::perms::owner_all);
  return script;
}

TEST(WorkerStarts, WithoutTheProgramOneSentenceSaysWhatToDo) {
  EXPECT_EQ(
      GetStartFailure("/nowhere/sequence-index-media"),
      "Media files are not read: /nowhere/sequence-index-media is missing; install Sequence Index "
      "again.");
}

TEST(WorkerStarts, WithoutTheLibraryOneSentenceSaysWhatToDo) {
  EXPECT_EQ(
      GetStartFailure(WORKER, "/nowhere/libsequence_index_media.so"),
      "Media files are not read: /nowhere/libsequence_index_media.so is missing; install Sequence "
      "Index again.");
}

TEST(WorkerStarts, ALibraryThatCannotBeLoadedTellsWhatToInstall) {
  const process::Folder folder;
  process::WriteFile(folder / "library.so", std::string(4096, 'x'));
  const std::string failure = GetStartFailure(WORKER, folder / "library.so");
  EXPECT_THAT(failure, StartsWith("Media files are not read: "));
  EXPECT_THAT(failure, HasSubstr("invalid ELF header"));
  EXPECT_THAT(failure, HasSubstr("install the libraries of FFmpeg"));
}

TEST(WorkerStarts, ALibraryWithoutTheEntryIsOfAnotherVersion) {
  Dl_info library;
  ASSERT_NE(dladdr(reinterpret_cast<const void*>(&dladdr), &library), 0);
  EXPECT_THAT(GetStartFailure(WORKER, library.dli_fname),
              HasSubstr(" is of another version; install Sequence Index again."));
}

TEST(WorkerStarts, AProgramThatMayNotRunIsNamedWithTheReason) {
  const process::Folder folder;
  process::WriteFile(folder / "program", "");
  EXPECT_EQ(GetStartFailure(folder / "program"),
            "Media files are not read: " + (folder / "program").native() +
                " can't be started: Permission denied.");
}

TEST(WorkerStarts, AProgramThatEndsAtOnceDoesNotAnswer) {
  const process::Folder folder;
  EXPECT_THAT(GetStartFailure(WriteScript(folder, "exit 3")), HasSubstr(" does not answer; "));
}

TEST(WorkerStarts, AProgramThatSaysNothingDoesNotAnswer) {
  const process::Folder folder;
  WorkerReader::Setup setup;
  setup.program = WriteScript(folder, "exec sleep 1000");
  setup.startLimit = milliseconds(30);
  EXPECT_THROW(WorkerReader{setup}, std::runtime_error);
  EXPECT_TRUE(HasNoChild());
}

TEST(WorkerStarts, AProgramThatSpeaksOtherwiseIsOfAnotherVersion) {
  const process::Folder folder;
  EXPECT_THAT(GetStartFailure(WriteScript(folder, "echo Hello; exec sleep 1000")),
              HasSubstr("is of another version; install Sequence Index again."));
}

TEST(WorkerReads, ManyFilesInOneProcessAndNoneIsLeft) {
  const process::Folder folder;
  {
    WorkerReader::Setup setup;
    setup.program =
        WriteScript(folder, "echo >> '" + (folder / "starts").native() + "'; exec '" WORKER "' \"$@\"");
    WorkerReader reader(setup);
    for (int i = 0; i < 10; ++i) {
      EXPECT_EQ(reader.Read(MakeRequest(Fixture("still.png"))).facts.codec, "PNG");
      EXPECT_EQ(reader.Read(MakeRequest(Fixture("h264_25.mov"))).facts.codec, "H.264");
    }
  }
  EXPECT_EQ(process::ReadFile(folder / "starts"), "\n");
  EXPECT_TRUE(HasNoChild());
}

TEST(WorkerReads, PathsOfAnyBytes) {
  const process::Folder folder;
  std::filesystem::path file = folder / "a\n\"\xFF\xC3 \x01.png";
  std::filesystem::copy_file(Fixture("still.png"), file);
  WorkerReader reader{WorkerReader::Setup()};
  EXPECT_EQ(reader.Read(MakeRequest(file.native())).facts.codec, "PNG");
  EXPECT_EQ(reader.Read(MakeRequest(file.native() + std::string(1, '\0'))).outcome,
            MediaOutcome::kAbsent);
}

TEST(WorkerReads, PathsThatAreTooLongForThePlatform) {
  WorkerReader reader{WorkerReader::Setup()};
  for (const std::size_t length : {std::size_t{PATH_MAX} + 1, std::size_t{10} << 20}) {
    const MediaReading reading = reader.Read(MakeRequest(std::string(length, 'x')));
    EXPECT_EQ(reading.outcome, MediaOutcome::kInaccessible);
    EXPECT_EQ(reading.reason, "File name too long");
  }
}

TEST(WorkerReads, TheTimeLimitHoldsInTheWorker) {
  WorkerReader reader{WorkerReader::Setup()};
  MediaReadRequest request = MakeRequest(Fixture("still.png"));
  request.timeLimit = milliseconds(0);
  EXPECT_EQ(reader.Read(request).reason, "it took longer than 0 ms");
}

TEST(WorkerReads, AWorkerEndsWithItsHostInTheMidstOfARead) {
  const process::Folder folder;
  process::WriteFile(folder / "bomb.mxf", media_bombs::MakeIndexBomb(Fixture("mpeg2_25.mxf")));
  int ends[2];
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends), 0);
  const pid_t worker = StartChild(WORKER, MEDIA_LIBRARY, ends[1]);
  close(ends[1]);
  std::string greeting(kLongestMessage, '\0');
  EXPECT_GT(recv(ends[0], greeting.data(), greeting.size(), 0), 0);
  const std::string request = EncodeRequest(MakeRequest(folder / "bomb.mxf"));
  EXPECT_EQ(send(ends[0], request.data(), request.size(), 0), static_cast<ssize_t>(request.size()));
  close(ends[0]);
  int status = 0;
  EXPECT_EQ(waitpid(worker, &status, 0), worker);
  EXPECT_TRUE(WIFEXITED(status));
}

TEST(WorkerReads, AFileThatWouldTakeAllMemoryIsOfflineAndCostsTheProgramNone) {
  const process::Folder folder;
  process::WriteFile(folder / "bomb.mxf", media_bombs::MakeIndexBomb(Fixture("mpeg2_25.mxf")));
  WorkerReader reader{WorkerReader::Setup()};
  rusage before{};
  getrusage(RUSAGE_SELF, &before);
  const MediaReading reading = reader.Read(MakeRequest(folder / "bomb.mxf"));
  EXPECT_THAT(reading.outcome, testing::AnyOf(MediaOutcome::kInaccessible, MediaOutcome::kDamaged,
                                              MediaOutcome::kTimeLimit));
  rusage after{};
  getrusage(RUSAGE_SELF, &after);
  EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 64 * 1024) << "kilobytes";
  EXPECT_EQ(reader.Read(MakeRequest(Fixture("mpeg2_25.mxf"))).facts.codec, "MPEG-2");
}

}  // namespace
}  // namespace standalone
