#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/Csv.h"
#include "support/Process.h"

/// What the program takes from media files, and where it looks for them.
namespace {

namespace fs = std::filesystem;
using process::Folder;
using process::Outcome;
using process::WriteFile;
using testing::ElementsAre;

using Words = std::vector<std::string>;

const std::string kSamples = std::string(SOURCE_FOLDER) + "/samples";
const std::string kMedia = kSamples + "/media";

Outcome Export(const std::string& file, const Words& options) {
  Words arguments{PROGRAM, "export", file, "-o", "-"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  return process::Run(arguments);
}

/// The exported rows without their header, each with its cells joined by " | ".
Words GetRows(const std::string& file, const Words& options) {
  const Outcome outcome = Export(file, options);
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(outcome.errors, "");
  Words rows;
  for (const csv::Row& row : csv::Parse(outcome.output)) {
    std::string& joined = rows.emplace_back();
    for (const std::string& cell : row) joined += (joined.empty() ? "" : " | ") + cell;
  }
  if (!rows.empty()) rows.erase(rows.begin());
  return rows;
}

std::string MakeClip(const std::string& name, const std::string& url) {
  return R"({"OTIO_SCHEMA":"Clip.2","name":")" + name +
         R"(","source_range":{"OTIO_SCHEMA":"TimeRange.1",)"
         R"("start_time":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":0},)"
         R"("duration":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":25}},)"
         R"("media_references":{"DEFAULT_MEDIA":{"OTIO_SCHEMA":"ExternalReference.1","target_url":")" +
         url + R"("}},"active_media_reference_key":"DEFAULT_MEDIA"})";
}

std::string MakeTrack(const std::string& kind, const std::string& clips) {
  return R"({"OTIO_SCHEMA":"Track.1","kind":")" + kind + R"(","children":[)" + clips + "]}";
}

std::string MakeTimeline(const std::string& pictures, const std::string& sounds) {
  return R"({"OTIO_SCHEMA":"Timeline.1","name":"P","tracks":{"OTIO_SCHEMA":"Stack.1","children":[)" +
         MakeTrack("Video", pictures) + "," + MakeTrack("Audio", sounds) + "]}}";
}

/// A timeline that tells nothing of its media but where they lie, among them a picture under a name
/// that says nothing.
class Probing : public testing::Test {
 protected:
  Probing() {
    fs::copy_file(kMedia + "/stills/pier_1931.png", folder / "photo.bin");
    WriteFile(file, MakeTimeline(MakeClip("Oven", kMedia + "/day2/baker_24p.mp4") + "," +
                                     MakeClip("Phone", kMedia + "/day2/phone_0412.mp4") + "," +
                                     MakeClip("Archive", kMedia + "/archive/crossing_1974.mp4") + "," +
                                     MakeClip("Photo", "photo.bin"),
                                 MakeClip("Score", kMedia + "/sound/low_tide.m4a")));
  }

  const Folder folder;
  const std::string file = (folder / "cut.otio").native();
  const Words columns{"--columns", "Clip Name,Codec,Video Info,Frame Rate"};
};

TEST_F(Probing, FillsInWhatTheTimelineDoesNotTell) {
  EXPECT_THAT(GetRows(file, columns),
              ElementsAre("Oven | H.264 | 320 x 134 (1.0) | 24.00 fps", "Score |  |  | 44100 Hz",
                          "Phone | H.264 | 180 x 320 (1.0) | 29.97 fps",
                          "Archive | H.264 | 180 x 144 (1.0667) | 25.00 fps",
                          "Photo | PNG | 240 x 180 (1.0) | "));
}

TEST_F(Probing, IsLeftOutOnRequest) {
  Words options = columns;
  options.emplace_back("--no-probe");
  EXPECT_THAT(GetRows(file, options),
              ElementsAre("Oven |  |  | ", "Score |  |  | 48000 Hz", "Phone |  |  | ",
                          "Archive |  |  | ", "Photo |  |  | "));
}

TEST_F(Probing, TellsAPictureFromAMovieByItsContent) {
  const Words stills{"--filter", "still-image", "--columns", "Clip Name"};
  EXPECT_THAT(GetRows(file, stills), ElementsAre("Photo"));
  EXPECT_THAT(GetRows(file, {"--filter", "still-image", "--columns", "Clip Name", "--no-probe"}),
              ElementsAre());
}

TEST_F(Probing, CallsMediaOfflineThatCannotBeRead) {
  WriteFile(folder / "photo.bin", "");
  fs::rename(folder / "photo.bin", folder / "photo.png");
  WriteFile(file, MakeTimeline(MakeClip("Photo", "photo.png"), ""));
  const Words offline{"--filter", "offline-media", "--columns", "Clip Name"};
  EXPECT_THAT(GetRows(file, offline), ElementsAre("Photo"));
  EXPECT_THAT(GetRows(file, {"--filter", "offline-media", "--columns", "Clip Name", "--no-probe"}),
              ElementsAre());
}

TEST_F(Probing, TellsTheSameInATable) {
  const Outcome outcome = process::Run({PROGRAM, "table", file, "--columns", "Clip Name,Codec"});
  EXPECT_EQ(outcome.output,
            "Clip Name  Codec\n"
            "Oven       H.264\n"
            "Score\n"
            "Phone      H.264\n"
            "Archive    H.264\n"
            "Photo      PNG\n")
      << outcome.errors;
}

TEST_F(Probing, WithoutItsPartsForMediaFilesOneLineSaysSo) {
  const Folder installed;
  const auto install = [&installed](const char* part) {
    fs::copy_file(fs::path(PROGRAM).parent_path() / part, installed / part);
  };
  for (const char* part : {"sequence-index", "SequenceIndex.so", "libsequence_index_host.so"})
    install(part);
  const std::string program = (installed / "sequence-index").native();
  const std::string table = "Clip Name  Codec\nOven\nScore\nPhone\nArchive\nPhoto\n";
  for (const char* missing : {"sequence-index-media", "libsequence_index_media.so"}) {
    const Outcome outcome =
        process::Run({program, "table", file, file, "--columns", "Clip Name,Codec"});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.errors,
              "sequence-index: Media files are not read: " + (installed / missing).native() +
                  " is missing; install Sequence Index again.\n");
    EXPECT_EQ(outcome.output, file + ":\n" + table + "\n" + file + ":\n" + table);
    install(missing);
  }
}

class MediaRootsOption : public testing::Test {
 protected:
  MediaRootsOption() { fs::copy_file(kSamples + "/demo.otio", file); }

  const Folder folder;
  /// The demo away from its media.
  const std::string file = (folder / "demo.otio").native();
  const Words offline{"--filter", "offline-media", "--columns", "#,Clip Name"};
};

TEST_F(MediaRootsOption, FindMediaThatLieElsewhere) {
  const Words alone = GetRows(file, offline);
  EXPECT_GT(alone.size(), 50U);
  Words options = offline;
  options.insert(options.end(), {"--media-root", "media=" + kMedia});
  EXPECT_THAT(GetRows(file, options),
              ElementsAre("53 | Storm of 1962", "65 | Lighthouse, reel 14", "72 | Bollard"));
}

TEST_F(MediaRootsOption, AreTriedInTheirOrder) {
  Words options = offline;
  options.insert(options.end(), {"--media-root", "media=" + folder.GetPath().native(), "--media-root",
                                 "media/day1=" + kMedia + "/day1", "--media-root", "media=" + kMedia});
  EXPECT_EQ(GetRows(file, options).size(), 3U);
}

TEST_F(MediaRootsOption, ToRelativeFoldersAreTakenFromTheCurrentOne) {
  const fs::path before = fs::current_path();
  fs::current_path(kSamples);
  Words options = offline;
  options.insert(options.end(), {"--media-root", "media=media", "--no-probe"});
  EXPECT_EQ(GetRows(file, options).size(), 3U);
  fs::current_path(before);
}

}  // namespace
