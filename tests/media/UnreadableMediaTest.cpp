#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <random>

#include "media/MediaFixtures.h"
#include "support/OrdinaryUser.h"

namespace standalone {
namespace {

using std::chrono::milliseconds;

constexpr std::array kFixtures = {
    "anamorphic.mov",      "cover.flac",      "cover.m4a",       "h264_25.mkv",    "h264_25.mov",
    "h264_2997_sound.mp4", "h264_50.ts",      "mjpeg_23976.mov", "moving.apng",    "moving.gif",
    "mpeg2_25.mxf",        "prores_24.mov",   "still.gif",       "still.jpg",      "still.png",
    "still.tif",           "tone_44100.flac", "tone_44100.m4a",  "tone_44100.mp3", "tone_48000.wav",
};

/// A file of that content, read.
MediaReading ReadBytes(const std::string& name, const std::string& bytes) {
  const process::Folder folder;
  process::WriteFile(folder / name, bytes);
  return fixtures::Read(folder / name);
}

void ExpectUnreadable(const MediaReading& reading, MediaOutcome outcome, const std::string& reason) {
  EXPECT_EQ(reading.outcome, outcome);
  EXPECT_EQ(reading.reason, reason);
  EXPECT_EQ(reading.facts, MediaFacts());
}

TEST(UnreadableMedia, AFileThatIsNotThereIsAbsent) {
  const process::Folder folder;
  ExpectUnreadable(fixtures::Read(folder / "lost.mov"), MediaOutcome::kAbsent,
                   "No such file or directory");
}

TEST(UnreadableMedia, BelowAnArchiveNothingIsThere) {
  const process::Folder folder;
  process::WriteFile(folder / "cut.otioz", "PK");
  EXPECT_EQ(fixtures::Read(folder / "cut.otioz/media/a.mov").outcome, MediaOutcome::kAbsent);
}

TEST(UnreadableMedia, AFolderIsNoFile) {
  const process::Folder folder;
  ExpectUnreadable(fixtures::Read(folder.GetPath()), MediaOutcome::kInaccessible, "it is a folder");
}

TEST(UnreadableMedia, APipeDoesNotBlock) {
  const process::Folder folder;
  ASSERT_EQ(mkfifo((folder / "a.mov").c_str(), 0600), 0);
  ExpectUnreadable(fixtures::Read(folder / "a.mov"), MediaOutcome::kInaccessible, "it is not a file");
}

TEST(UnreadableMedia, APipeIsNotEvenOpened) {
  const process::Folder folder;
  const std::string pipe = folder / "a.mov";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  ASSERT_GE(inotify_add_watch(watch, pipe.c_str(), IN_OPEN), 0);
  fixtures::Read(pipe);
  std::array<char, 256> events;
  EXPECT_EQ(read(watch, events.data(), events.size()), -1) << "whoever writes to it would notice";
  close(watch);
}

TEST(UnreadableMedia, ALinkThatLeadsToItselfTellsSo) {
  const process::Folder folder;
  std::filesystem::create_symlink("a.mov", folder / "a.mov");
  ExpectUnreadable(fixtures::Read(folder / "a.mov"), MediaOutcome::kInaccessible,
                   "Too many levels of symbolic links");
}

TEST(UnreadableMedia, ALinkAndANameOfSeveralLinesAreFollowed) {
  const process::Folder folder;
  std::filesystem::create_symlink(fixtures::File("still.png"), folder / "a\nb.png");
  EXPECT_EQ(fixtures::Read(folder / "a\nb.png").outcome, MediaOutcome::kRead);
}

TEST(UnreadableMedia, ASocketIsNoFile) {
  const process::Folder folder;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string path = folder / "s.mov";
  ASSERT_LT(path.size(), sizeof address.sun_path);
  path.copy(address.sun_path, path.size());
  const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  ExpectUnreadable(fixtures::Read(path), MediaOutcome::kInaccessible, "it is not a file");
  close(listener);
}

TEST(UnreadableMedia, AFileThatMayNotBeReadTellsSo) {
  const process::Folder folder;
  std::filesystem::copy_file(fixtures::File("still.png"), folder / "a.png");
  ASSERT_EQ(chmod((folder / "a.png").c_str(), 0), 0);
  const rights::OrdinaryUser user(folder.GetPath());
  ExpectUnreadable(fixtures::Read(folder / "a.png"), MediaOutcome::kInaccessible, "Permission denied");
}

TEST(UnreadableMedia, AnEmptyFileIsDamaged) {
  ExpectUnreadable(ReadBytes("a.mov", ""), MediaOutcome::kDamaged, "it is empty");
}

TEST(UnreadableMedia, AnotherContentThanTheNameClaimsIsDamage) {
  ExpectUnreadable(ReadBytes("a.mov", "These are words."), MediaOutcome::kDamaged,
                   "its content is of no known kind");
  ExpectUnreadable(ReadBytes("A.MOV", std::string(5000, '\0')), MediaOutcome::kDamaged,
                   "its content is of no known kind");
}

TEST(UnreadableMedia, AKindThatIsNotReadHereIsLeftToOthers) {
  EXPECT_EQ(ReadBytes("camera.r3d", std::string(5000, 'R')).outcome, MediaOutcome::kUnknownKind);
  EXPECT_EQ(ReadBytes("notes.txt", "These are words.").outcome, MediaOutcome::kUnknownKind);
  EXPECT_EQ(ReadBytes("no extension", "These are words.").outcome, MediaOutcome::kUnknownKind);
}

TEST(UnreadableMedia, AMovieThatIsCutOffIsDamaged) {
  const std::string whole = process::ReadFile(fixtures::File("h264_25.mov"));
  ExpectUnreadable(ReadBytes("a.mov", whole.substr(0, whole.size() / 2)), MediaOutcome::kDamaged,
                   "its content is damaged or incomplete");
}

TEST(UnreadableMedia, ALengthThatNoMemoryCanHoldIsDamage) {
  std::string bytes = process::ReadFile(fixtures::File("tone_48000.wav"));
  ASSERT_EQ(bytes.substr(12, 4), "fmt ");
  bytes.replace(16, 4, "\xF0\xFF\xFF\x7F");
  ExpectUnreadable(ReadBytes("a.wav", bytes), MediaOutcome::kDamaged,
                   "its content is damaged or incomplete");
}

/// What a list of files names is never opened: the list itself is of no known kind, and so is the
/// movie that only refers to another one.
TEST(UnreadableMedia, AListOfFilesIsNoMedia) {
  const std::string movie = fixtures::File("h264_25.mov").native();
  const std::string playlist = "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n" + movie + "\n";
  const std::string concatenation = "ffconcat version 1.0\nfile '" + movie + "'\n";
  const std::string session = "v=0\no=- 0 0 IN IP4 127.0.0.1\nm=video 5004 RTP/AVP 96\n";
  for (const std::string& list : {playlist, concatenation, session}) {
    for (const char* name : {"a.m3u8", "a.ffconcat", "a.sdp", "a.txt"}) {
      EXPECT_EQ(ReadBytes(name, list).outcome, MediaOutcome::kUnknownKind) << name << "\n" << list;
    }
    EXPECT_EQ(ReadBytes("a.mov", list).outcome, MediaOutcome::kDamaged);
  }
}

MediaReading ReadWithin(const std::string& name, milliseconds limit) {
  const std::string path = fixtures::File(name).native();
  MediaReadRequest request;
  request.path = path;
  request.timeLimit = limit;
  MediaReading reading;
  ReadSequenceIndexMedia(request, reading);
  return reading;
}

TEST(ReadLimits, WithoutTimeNothingIsRead) {
  ExpectUnreadable(ReadWithin("h264_25.mov", milliseconds(0)), MediaOutcome::kTimeLimit,
                   "it took longer than 0 ms");
}

TEST(ReadLimits, WithEnoughTimeAllIs) {
  EXPECT_EQ(ReadWithin("h264_25.mov", std::chrono::hours(1)).outcome, MediaOutcome::kRead);
}

/// Cancels at the n-th question.
struct CancelAt {
  int n;
  int questions = 0;
};

MediaReading ReadUntil(const std::string& name, CancelAt& cancel) {
  MediaReadRequest request;
  request.path = fixtures::File(name).native();
  request.context = &cancel;
  request.isCancelled = [](void* context) {
    auto& at = *static_cast<CancelAt*>(context);
    return ++at.questions >= at.n;
  };
  MediaReading reading;
  ReadSequenceIndexMedia(request, reading);
  return reading;
}

TEST(ReadLimits, CancelEndsTheReadAtAnyPoint) {
  for (const char* name : kFixtures) {
    int n = 1;
    for (;; ++n) {
      CancelAt cancel{n};
      const MediaReading reading = ReadUntil(name, cancel);
      if (reading.outcome == MediaOutcome::kRead) break;
      ExpectUnreadable(reading, MediaOutcome::kCancelled, "reading was cancelled");
      EXPECT_EQ(cancel.questions, n) << "asked on after it was cancelled: " << name;
      ASSERT_LT(n, 1000) << name;
    }
    EXPECT_GT(n, 2) << name << " is read without asking";
  }
}

void ExpectAnOutcome(const MediaReading& reading, const std::string& what) {
  switch (reading.outcome) {
    case MediaOutcome::kRead:
      EXPECT_TRUE(reading.facts.hasPicture || reading.facts.hasSound) << what;
      EXPECT_GE(reading.facts.duration, 0) << what;
      break;
    case MediaOutcome::kDamaged:
    case MediaOutcome::kUnknownKind:
      EXPECT_FALSE(reading.reason.empty()) << what;
      break;
    default:
      ADD_FAILURE() << what << ": " << reading.reason;
  }
}

TEST(DamagedMedia, EveryFileCutOffAnywhereHasAnOutcome) {
  constexpr std::size_t kSteps = 24;
  for (const char* name : kFixtures) {
    const std::string whole = process::ReadFile(fixtures::File(name));
    for (std::size_t step = 1; step < kSteps; ++step) {
      const std::size_t length = whole.size() * step / kSteps;
      ExpectAnOutcome(ReadBytes(name, whole.substr(0, length)),
                      std::string(name) + " cut off after " + std::to_string(length));
    }
  }
}

/// Half of the damage hits the beginning, where the structure is.
std::string Damage(std::string bytes, std::mt19937& random) {
  const unsigned count = 1 + random() % 8;
  for (unsigned i = 0; i < count; ++i) {
    const std::size_t range =
        random() % 2 == 0 ? std::min<std::size_t>(bytes.size(), 256) : bytes.size();
    bytes[random() % range] = static_cast<char>(random());
  }
  return bytes;
}

void ReadDamaged(unsigned seeds) {
  for (const char* name : kFixtures) {
    const std::string whole = process::ReadFile(fixtures::File(name));
    for (unsigned seed = 0; seed < seeds; ++seed) {
      std::mt19937 random(seed);
      ExpectAnOutcome(ReadBytes(name, Damage(whole, random)),
                      std::string(name) + ", seed " + std::to_string(seed));
    }
  }
}

TEST(DamagedMedia, EveryFileWithWrongBytesHasAnOutcome) {
  ReadDamaged(40);
}

TEST(StressDamagedMedia, EveryFileWithWrongBytesHasAnOutcome) {
  ReadDamaged(1500);
}

}  // namespace
}  // namespace standalone
