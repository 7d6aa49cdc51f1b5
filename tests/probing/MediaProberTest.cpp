#include "standalone/probing/MediaProber.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <mutex>

#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/SteppedExecutor.h"
#include "support/Drafts.h"
#include "support/Process.h"

namespace standalone {
namespace {

using testing::IsEmpty;

std::string Fixture(const std::string& name) {
  return std::string(SOURCE_FOLDER) + "/tests/media/fixtures/" + name;
}

/// A clip that plays a file, of which the timeline tells nothing else.
ClipDraft& AddFile(TrackDraft& track, const std::string& path) {
  const auto start = static_cast<std::int64_t>(track.items.size()) * 10;
  ClipDraft& clip = drafts::AddClip(track, "clip", start, start + 10);
  clip.media.address = path;
  clip.media.lookUpPath = path;
  clip.isFrameDurationAssumed = true;
  clip.media.isStillAssumed = true;
  return clip;
}

/// A document of one track whose clips play those files.
DocumentDraft MakeDocument(const std::vector<std::string>& paths) {
  SequenceDraft sequence = drafts::MakeSequence();
  TrackDraft& track = drafts::AddTrack(sequence);
  for (const std::string& path : paths) AddFile(track, path);
  return drafts::MakeDocument(std::move(sequence));
}

const ClipDraft& ClipOf(const DocumentDraft& document, std::size_t item = 0) {
  return document.sequences.at(0).tracks.at(0).items.at(item).clip.value();
}

/// Stands in for the library: answers for every file, counts the reads of each, and does before each of
/// them what the test says.
class CountingReader {
 public:
  std::function<void(const MediaReadRequest&)> beforeEach;
  MediaOutcome outcome = MediaOutcome::kRead;

  MediaProber::Setup MakeSetup() {
    MediaProber::Setup setup;
    setup.findReader = [this] {
      ++loads;
      return MediaReader([this](const MediaReadRequest& request) { return Read(request); });
    };
    return setup;
  }

  /// Also while reads run.
  int CountReads() const {
    const std::scoped_lock lock(mutex);
    int sum = 0;
    for (const auto& [path, count] : reads) sum += count;
    return sum;
  }
  const std::map<std::string, int>& GetReads() const { return reads; }
  int GetLoads() const { return loads; }

 private:
  MediaReading Read(const MediaReadRequest& request) {
    {
      const std::scoped_lock lock(mutex);
      ++reads[request.path];
    }
    if (beforeEach) beforeEach(request);
    MediaReading reading;
    reading.outcome = outcome;
    reading.facts.codec = "Codec";
    reading.facts.hasPicture = true;
    return reading;
  }

  mutable std::mutex mutex;
  std::map<std::string, int> reads;
  std::atomic<int> loads{0};
};

/// Files of one byte each.
std::vector<std::string> MakeFiles(const process::Folder& folder, int count) {
  std::vector<std::string> paths;
  for (int i = 0; i < count; ++i) {
    paths.push_back(folder / (std::to_string(i) + ".mov"));
    process::WriteFile(paths.back(), "x");
  }
  return paths;
}

TEST(MediaProbes, FillAClipFromItsFile) {
  DocumentDraft document = MakeDocument({Fixture("anamorphic.mov")});
  MediaProber prober;
  const ProbeOutcome outcome = prober.Probe(document);
  EXPECT_EQ(outcome.note, "");
  EXPECT_EQ(outcome.readCount, 1u);
  EXPECT_EQ(ClipOf(document).media.codec, "H.264");
  EXPECT_EQ(ClipOf(document).media.fourCC, 0x61766331u);
  EXPECT_EQ(ClipOf(document).videoInfo, "720 x 576 (1.4222)");
  EXPECT_EQ(ClipOf(document).frameDuration, drafts::Frame(1));
}

TEST(MediaProbes, EveryKindOfFileGoesToItsClip) {
  SequenceDraft sequence = drafts::MakeSequence();
  AddFile(drafts::AddTrack(sequence), Fixture("h264_2997_sound.mp4"));
  AddFile(drafts::AddTrack(sequence), Fixture("still.png"));
  AddFile(drafts::AddTrack(sequence, TrackKind::kAudio), Fixture("tone_44100.flac"));
  DocumentDraft document = drafts::MakeDocument(std::move(sequence));
  MediaProber().Probe(document);
  const auto clip = [&](std::size_t track) {
    return document.sequences.at(0).tracks.at(track).items.at(0).clip.value();
  };
  EXPECT_EQ(clip(0).frameDuration,
            qelmediatypes::FrameRate::FromRational(30000, 1001).GetFrameDuration());
  EXPECT_TRUE(clip(1).media.isStill);
  EXPECT_EQ(clip(1).media.codec, "PNG");
  EXPECT_EQ(clip(1).videoInfo, "64 x 36 (1.0)");
  EXPECT_TRUE(clip(1).isFrameDurationAssumed);
  EXPECT_EQ(clip(2).frameDuration, qelmediatypes::FrameRate::FromRational(44100, 1).GetFrameDuration());
}

TEST(MediaProbes, ADamagedFileIsOfflineWithItsReason) {
  const process::Folder folder;
  process::WriteFile(folder / "a.mov", "These are words.");
  DocumentDraft document = MakeDocument({folder / "a.mov"});
  MediaProber().Probe(document);
  EXPECT_TRUE(ClipOf(document).media.isOffline);
  EXPECT_EQ(ClipOf(document).media.offlineReason,
            "Media file can't be read: its content is of no known kind");
}

TEST(MediaProbes, ReadEachFileOnceHoweverManyThereAre) {
  const process::Folder folder;
  const std::vector<std::string> files = MakeFiles(folder, 1000);
  std::vector<std::string> played;
  for (int round = 0; round < 3; ++round) played.insert(played.end(), files.begin(), files.end());
  DocumentDraft document = MakeDocument(played);
  CountingReader reader;
  MediaProber prober(reader.MakeSetup());
  EXPECT_EQ(prober.Probe(document).readCount, 1000u);
  EXPECT_EQ(reader.GetReads().size(), 1000u);
  EXPECT_EQ(reader.CountReads(), 1000);
  EXPECT_EQ(reader.GetLoads(), 1);
  for (std::size_t i = 0; i < played.size(); ++i) EXPECT_EQ(ClipOf(document, i).media.codec, "Codec");
}

TEST(MediaProbes, UseTheRuntimesPoolAndEndEvenIfItNeverRuns) {
  const process::Folder folder;
  DocumentDraft document = MakeDocument(MakeFiles(folder, 20));
  const auto stepped = std::make_shared<SteppedExecutor>();
  Runtime::Setup runtimeSetup;
  runtimeSetup.cpuExecutor = stepped;
  const Runtime runtime(runtimeSetup);
  CountingReader reader;
  MediaProber prober(reader.MakeSetup());
  EXPECT_EQ(prober.Probe(document).readCount, 20u);
  EXPECT_GT(stepped->CountWaiting(), 0u);
  stepped->RunUntilEmpty();
  EXPECT_EQ(reader.CountReads(), 20);
}

TEST(MediaProbes, LeaveOutWhatHasNoFileToRead) {
  const process::Folder folder;
  const std::string file = MakeFiles(folder, 1).front();
  SequenceDraft sequence = drafts::MakeSequence();
  TrackDraft& track = drafts::AddTrack(sequence);
  AddFile(track, file).media.isOffline = true;
  AddFile(track, file).media.isSynthetic = true;
  AddFile(track, "");
  AddFile(track, folder / "lost.mov");
  AddFile(track, file + "/below/an/archive.mov");
  drafts::AddGap(track, 50, 60);
  DocumentDraft document = drafts::MakeDocument(std::move(sequence));
  CountingReader reader;
  MediaProber prober(reader.MakeSetup());
  EXPECT_EQ(prober.Probe(document).readCount, 0u);
  EXPECT_THAT(reader.GetReads(), IsEmpty());
  EXPECT_EQ(reader.GetLoads(), 0);
  EXPECT_EQ(ClipOf(document, 0).media.codec, "");
  EXPECT_FALSE(ClipOf(document, 3).media.isOffline);
  EXPECT_FALSE(ClipOf(document, 4).media.isOffline);
}

TEST(MediaProbes, LeaveProxiesAlone) {
  const process::Folder folder;
  const std::vector<std::string> files = MakeFiles(folder, 2);
  DocumentDraft document = MakeDocument({files[0]});
  document.sequences[0].tracks[0].items[0].clip->proxy.emplace().lookUpPath = files[1];
  CountingReader reader;
  MediaProber(reader.MakeSetup()).Probe(document);
  EXPECT_EQ(reader.GetReads().count(files[1]), 0u);
}

TEST(MediaProbes, ReadAgainOnlyWhatChanged) {
  const process::Folder folder;
  const std::vector<std::string> files = MakeFiles(folder, 3);
  CountingReader reader;
  MediaProber prober(reader.MakeSetup());
  DocumentDraft first = MakeDocument(files);
  EXPECT_EQ(prober.Probe(first).readCount, 3u);
  DocumentDraft same = MakeDocument(files);
  EXPECT_EQ(prober.Probe(same).readCount, 0u);
  EXPECT_EQ(ClipOf(same, 2).media.codec, "Codec");
  process::WriteFile(files[1], "longer");
  using namespace std::chrono_literals;
  std::filesystem::last_write_time(files[2], std::filesystem::last_write_time(files[2]) - 1h);
  DocumentDraft changed = MakeDocument(files);
  EXPECT_EQ(prober.Probe(changed).readCount, 2u);
  EXPECT_EQ(reader.GetReads().at(files[0]), 1);
  EXPECT_EQ(reader.GetReads().at(files[1]), 2);
  EXPECT_EQ(reader.GetReads().at(files[2]), 2);
}

TEST(MediaProbes, AFileThatWasRefusedIsTriedAgain) {
  const process::Folder folder;
  const std::vector<std::string> files = MakeFiles(folder, 1);
  CountingReader reader;
  reader.outcome = MediaOutcome::kInaccessible;
  MediaProber prober(reader.MakeSetup());
  DocumentDraft document = MakeDocument(files);
  prober.Probe(document);
  EXPECT_TRUE(ClipOf(document).media.isOffline);
  DocumentDraft again = MakeDocument(files);
  EXPECT_EQ(prober.Probe(again).readCount, 1u);
}

TEST(MediaProbes, AFileWhoseSizeChangesMeanwhileIsGrowingAndReadAgain) {
  const process::Folder folder;
  const std::vector<std::string> files = MakeFiles(folder, 2);
  CountingReader reader;
  reader.beforeEach = [&](const MediaReadRequest& request) {
    if (request.path == files[1]) std::ofstream(files[1], std::ios::app) << "more";
  };
  MediaProber prober(reader.MakeSetup());
  DocumentDraft document = MakeDocument(files);
  prober.Probe(document);
  EXPECT_FALSE(ClipOf(document, 0).media.isGrowing);
  EXPECT_TRUE(ClipOf(document, 1).media.isGrowing);
  EXPECT_EQ(ClipOf(document, 1).media.codec, "Codec");
  reader.beforeEach = nullptr;
  DocumentDraft later = MakeDocument(files);
  EXPECT_EQ(prober.Probe(later).readCount, 1u);
  EXPECT_FALSE(ClipOf(later, 1).media.isGrowing);
}

TEST(MediaProbes, TellHowManyOfTheUnreadFilesAreDone) {
  const process::Folder folder;
  DocumentDraft document = MakeDocument(MakeFiles(folder, 10));
  CountingReader reader;
  MediaProber prober(reader.MakeSetup());
  std::vector<std::size_t> reports;
  ProbeProgress progress;
  progress.report = [&](std::size_t done, std::size_t all) {
    EXPECT_EQ(all, 10u);
    reports.push_back(done);
  };
  prober.Probe(document, progress);
  EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end()));
  EXPECT_EQ(reports.back(), 10u);
}

TEST(MediaProbes, CancelledOnesFillNothingAndRememberWhatWasRead) {
  const process::Folder folder;
  const std::vector<std::string> files = MakeFiles(folder, 30);
  DocumentDraft document = MakeDocument(files);
  CountingReader reader;
  MediaProber::Setup setup = reader.MakeSetup();
  const auto stepped = std::make_shared<SteppedExecutor>();
  setup.executor = stepped;
  MediaProber prober(setup);
  ProbeProgress progress;
  progress.isCancelled = [&] { return reader.CountReads() >= 5; };
  const ProbeOutcome outcome = prober.Probe(document, progress);
  EXPECT_TRUE(outcome.isCancelled);
  EXPECT_EQ(outcome.readCount, 5u);
  for (std::size_t i = 0; i < files.size(); ++i) EXPECT_EQ(ClipOf(document, i).media.codec, "");
  EXPECT_EQ(prober.Probe(document).readCount, 25u);
  EXPECT_EQ(ClipOf(document, 0).media.codec, "Codec");
  stepped->DropAll();
}

TEST(MediaProbes, CancelReachesTheReadsUnderWay) {
  const process::Folder folder;
  DocumentDraft document = MakeDocument(MakeFiles(folder, 4));
  CountingReader reader;
  std::atomic<bool> isReading{false};
  reader.beforeEach = [&](const MediaReadRequest& request) {
    isReading = true;
    while (!request.isCancelled(request.context)) std::this_thread::yield();
  };
  MediaProber prober(reader.MakeSetup());
  ProbeProgress progress;
  progress.isCancelled = [&] { return isReading.load(); };
  EXPECT_TRUE(prober.Probe(document, progress).isCancelled);
}

TEST(MediaProbes, LetTheirReaderGoWhenCancelled) {
  const process::Folder folder;
  DocumentDraft document = MakeDocument(MakeFiles(folder, 4));
  CountingReader reader;
  MediaProber prober(reader.MakeSetup());
  ProbeProgress progress;
  progress.isCancelled = [&] { return reader.CountReads() > 0; };
  EXPECT_TRUE(prober.Probe(document, progress).isCancelled);
  process::WriteFile(folder / "0.mov", "changed");
  prober.Probe(document);
  EXPECT_EQ(reader.GetLoads(), 2);
}

TEST(MediaProbes, EachFileGetsTheTimeLimit) {
  DocumentDraft document = MakeDocument({Fixture("still.png")});
  MediaProber::Setup setup;
  setup.timeLimit = std::chrono::milliseconds(0);
  MediaProber(setup).Probe(document);
  EXPECT_EQ(ClipOf(document).media.offlineReason, "Media file can't be read: it took longer than 0 ms");
}

TEST(MediaProbes, AFileThatCrashesItsReaderIsOfflineAndTheOthersAreRead) {
  const process::Folder folder;
  std::vector<std::string> files;
  for (const char* name : {"a", "crash", "b", "garbage", "c"}) files.push_back(folder / name);
  for (const std::string& file : files) process::WriteFile(file, "x");
  DocumentDraft document = MakeDocument(files);
  MediaProber::Setup setup;
  setup.findReader = [&] {
    WorkerReader::Setup worker;
    worker.program = FAULTY_WORKER;
    worker.library = folder / "starts";
    return StartMediaReader(worker);
  };
  EXPECT_EQ(MediaProber(setup).Probe(document).readCount, files.size());
  for (const std::size_t item : {0u, 2u, 4u}) EXPECT_EQ(ClipOf(document, item).media.codec, "Good");
  for (const std::size_t item : {1u, 3u}) {
    EXPECT_TRUE(ClipOf(document, item).media.isOffline);
    EXPECT_EQ(ClipOf(document, item).media.offlineReason,
              "Media file can't be read: reading it ended unexpectedly");
  }
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a worker is left";
}

TEST(MediaProbes, WithoutTheProgramOneNoteSaysWhatToDoAndNothingIsFilled) {
  MediaProber::Setup setup;
  setup.findReader = [] {
    WorkerReader::Setup worker;
    worker.program = "/nowhere/sequence-index-media";
    return StartMediaReader(worker);
  };
  MediaProber prober(setup);
  DocumentDraft document = MakeDocument({Fixture("still.png"), Fixture("h264_25.mov")});
  EXPECT_EQ(prober.Probe(document).note,
            "Media files are not read: /nowhere/sequence-index-media is missing; install "
            "Sequence Index again.");
  EXPECT_EQ(ClipOf(document).media.codec, "");
  EXPECT_FALSE(ClipOf(document).media.isOffline);
  EXPECT_EQ(prober.Probe(document).note, "") << "told once";
}

}  // namespace
}  // namespace standalone
